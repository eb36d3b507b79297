#include "server/store/store_schema.h"

#include <iterator>

namespace jogeon::store {
namespace {

constexpr std::int64_t kApplicationId = 0x6A6F676E;  // "jogn" in the file's own mark of who made it

// A set's number and owner stand in columns only; the fields of its record for them are blank.
void MakeTables(Database& database) {
    database.Run(
        "CREATE TABLE users (id TEXT PRIMARY KEY, version INTEGER NOT NULL"
        " CHECK (version BETWEEN 0 AND 999999)) STRICT;"
        "CREATE TABLE sets (user TEXT NOT NULL, number INTEGER NOT NULL CHECK (number BETWEEN 0 AND 98),"
        " record BLOB NOT NULL, PRIMARY KEY (user, number)) STRICT;"
        "PRAGMA application_id = 0x6A6F676E");
}

// The step at place n leads from form n to form n + 1; form 0 is an empty file.
constexpr void (*kSteps[])(Database&) = {MakeTables};
constexpr std::int64_t kForm = std::size(kSteps);

std::int64_t Ask(Database& database, const char* sql) {
    Statement statement(database, sql);
    Execution answer(statement);
    return answer.Next() ? answer.Number(0) : 0;
}

// The form of the file as it stands.
std::int64_t FormOf(Database& database) {
    const std::int64_t form = Ask(database, "PRAGMA user_version");
    const bool empty = form == 0 && Ask(database, "SELECT count(*) FROM sqlite_schema") == 0;
    if (!empty && Ask(database, "PRAGMA application_id") != kApplicationId)
        database.Fail("is a database of another program");
    if (form > kForm)
        database.Fail("was written by a newer jogeon (form " + std::to_string(form) + "; this one knows " +
                      std::to_string(kForm) + ")");
    return form;
}

// Read again inside the transaction: another process may just have done the same.
void CarryOver(Database& database) {
    Transaction transaction(database, Transaction::Kind::Write);
    for (std::int64_t form = FormOf(database); form < kForm; ++form) kSteps[form](database);
    database.Run(("PRAGMA user_version = " + std::to_string(kForm)).c_str());
    transaction.Commit();
}

// A write-ahead log costs one flush a save. Where the file system can't have one, or another process is just
// at work, the file keeps its rollback journal, which is as safe.
void ChooseJournal(Database& database) {
    sqlite3_exec(database.Handle(), "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
    database.Run("PRAGMA synchronous = FULL");
}

void DemandWhole(Database& database) {
    Statement statement(database, "PRAGMA quick_check(1)");
    Execution check(statement);
    const std::string verdict = check.Next() ? check.Bytes(0) : std::string();
    if (verdict != "ok") database.Fail("is damaged (" + verdict.substr(0, verdict.find('\n')) + ")");
}

}  // namespace

void PrepareSchema(Database& database) {
    const std::int64_t form = FormOf(database);
    if (database.IsReadOnly()) database.Fail("may not be written");
    ChooseJournal(database);
    if (form < kForm) CarryOver(database);
    DemandWhole(database);
}

}  // namespace jogeon::store
