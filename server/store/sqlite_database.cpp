#include "server/store/sqlite_database.h"

#include <chrono>
#include <cstring>
#include <thread>

namespace jogeon::store {
namespace {

// How often a file that another connection holds is tried again, a millisecond apart: ten seconds at least,
// where the screen gives up after fifteen. SQLite's own waits grow, so that whoever has waited for long is
// passed by those who come later.
constexpr int kMostTries = 10'000;

int TryAgain(void*, int tries) {
    if (tries >= kMostTries) return 0;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return 1;
}

std::string_view Meaning(int code) {
    switch (code & 0xFF) {
        case SQLITE_CANTOPEN:
            return "can't be opened";
        case SQLITE_NOTADB:
            return "is no condition store, or is damaged";
        case SQLITE_CORRUPT:
            return "is damaged";
        case SQLITE_PERM:
        case SQLITE_READONLY:
            return "may not be written";
        case SQLITE_FULL:
            return "finds no more room on its disk";
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "is held by another program";
        default:
            return "can't be used";
    }
}

}  // namespace

Database::Database(const std::filesystem::path& file) : file_(file.string()) {
    sqlite3* handle = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(file_.c_str(), &handle, flags, nullptr);
    handle_.reset(handle);
    if (!handle) throw std::bad_alloc();
    if (code != SQLITE_OK) FailWith(code);
    sqlite3_busy_handler(handle, TryAgain, nullptr);
}

void Database::Run(const char* sql) {
    const int code = sqlite3_exec(Handle(), sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) FailWith(code);
}

bool Database::IsReadOnly() const {
    return sqlite3_db_readonly(Handle(), "main") == 1;
}

bool Database::IsGone() const {
    int moved = 0;
    return sqlite3_file_control(Handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

void Database::RollBack() noexcept {
    if (!sqlite3_get_autocommit(Handle())) sqlite3_exec(Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Database::Fail(std::string_view problem) const {
    throw StoreError(file_ + ": " + std::string(problem));
}

void Database::FailWith(int code) const {
    std::string words = sqlite3_errmsg(Handle());
    const int system = sqlite3_system_errno(Handle());
    const bool systemTells = (code & 0xFF) == SQLITE_CANTOPEN && system != 0;
    if (systemTells) words = std::strerror(system);
    Fail(std::string(Meaning(code)) + " (" + words + ")");
}

Statement::Statement(Database& database, const char* sql) : database_(database) {
    sqlite3_stmt* handle = nullptr;
    const int code =
        sqlite3_prepare_v3(database.Handle(), sql, -1, SQLITE_PREPARE_PERSISTENT, &handle, nullptr);
    handle_.reset(handle);
    if (code != SQLITE_OK) database.FailWith(code);
}

Execution::~Execution() {
    sqlite3_reset(statement_.handle_.get());
    sqlite3_clear_bindings(statement_.handle_.get());
}

bool Execution::Next() {
    const int code = sqlite3_step(statement_.handle_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) statement_.database_.FailWith(code);
    return code == SQLITE_ROW;
}

std::int64_t Execution::Number(int column) const {
    return sqlite3_column_int64(statement_.handle_.get(), column);
}

double Execution::Real(int column) const {
    return sqlite3_column_double(statement_.handle_.get(), column);
}

std::string Execution::Bytes(int column) const {
    const void* bytes = sqlite3_column_blob(statement_.handle_.get(), column);
    const int length = sqlite3_column_bytes(statement_.handle_.get(), column);
    return bytes ? std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(length))
                 : std::string();
}

void Execution::Bind(int place, std::int64_t number) {
    Check(sqlite3_bind_int64(statement_.handle_.get(), place, number));
}

void Execution::BindReal(int place, double number) {
    Check(sqlite3_bind_double(statement_.handle_.get(), place, number));
}

void Execution::Bind(int place, std::string_view text) {
    Check(sqlite3_bind_text64(statement_.handle_.get(), place, text.data(), text.size(), SQLITE_TRANSIENT,
                              SQLITE_UTF8));
}

void Execution::Bind(int place, Blob blob) {
    Check(sqlite3_bind_blob64(statement_.handle_.get(), place, blob.bytes.data(), blob.bytes.size(),
                              SQLITE_TRANSIENT));
}

void Execution::Check(int code) const {
    if (code != SQLITE_OK) statement_.database_.FailWith(code);
}

Transaction::Transaction(Database& database, Kind kind) : database_(database) {
    if (kind == Kind::Write && database.IsGone()) database.Fail("was deleted or replaced while in use");
    database.Run(kind == Kind::Write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Transaction::~Transaction() {
    database_.RollBack();
}

void Transaction::Commit() {
    database_.Run("COMMIT");
}

}  // namespace jogeon::store
