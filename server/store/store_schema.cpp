#include "server/store/store_schema.h"

#include <iterator>
#include <system_error>

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

// A user is in "investors" once he has been met. Text is UTF-8; the stocks of a group are their six-byte
// codes in their order, one behind the other.
void MakePortfolioTables(Database& database) {
    database.Run(
        "CREATE TABLE investors (user TEXT PRIMARY KEY, revision INTEGER NOT NULL,"
        " last_group INTEGER NOT NULL CHECK (last_group BETWEEN 0 AND 99)) STRICT;"
        "CREATE TABLE interest_groups (user TEXT NOT NULL, code TEXT NOT NULL"
        " CHECK (code GLOB '5[0-9][0-9]' AND code > '500'), place INTEGER NOT NULL, name TEXT NOT NULL,"
        " stocks TEXT NOT NULL CHECK (length(stocks) % 6 = 0), PRIMARY KEY (user, code)) STRICT;"
        "CREATE TABLE accounts (user TEXT NOT NULL, number TEXT NOT NULL CHECK (length(number) = 11),"
        " place INTEGER NOT NULL, PRIMARY KEY (user, number)) STRICT;"
        "CREATE TABLE holdings (user TEXT NOT NULL, account TEXT NOT NULL, place INTEGER NOT NULL,"
        " stock TEXT NOT NULL CHECK (length(stock) = 6), quantity INTEGER NOT NULL,"
        " average_price REAL NOT NULL, PRIMARY KEY (user, account, place)) STRICT");
}

// The step at place n leads from form n to form n + 1; form 0 is an empty file.
constexpr void (*kSteps[])(Database&) = {MakeTables, MakePortfolioTables};
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

Database OpenStore(const std::filesystem::path& file) {
    std::error_code error;
    if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path(), error);
    if (error)
        throw StoreError(file.parent_path().string() + ": can't be made a folder (" + error.message() + ")");
    Database database(file);
    PrepareSchema(database);
    return database;
}

}  // namespace jogeon::store
