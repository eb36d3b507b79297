// SQLite, as much of it as the store needs: a database file, prepared statements, transactions.
//
// Relies on sqlite3. Whatever goes wrong is thrown as StoreError, with the file's name and one line. One
// thread at a time uses a database and what belongs to it.
#pragma once

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include <sqlite3.h>

namespace jogeon::store {

// Why the store can't do what it was asked, in one line for the user.
class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Database {
public:
    // Opens the file, or makes it; its folder must be there. Another process that holds the file locked is
    // waited for, here and in every later call, for as long as a user waits for an answer.
    explicit Database(const std::filesystem::path& file);

    // Runs statements that give no rows. `sql` is a constant of the program.
    void Run(const char* sql);

    bool IsReadOnly() const;

    // Whether the file has been deleted since it was opened, or another one has taken its place: what is
    // written then nobody finds again.
    bool IsGone() const;

    // Undoes the transaction that is open, if one is.
    void RollBack() noexcept;

    [[noreturn]] void Fail(std::string_view problem) const;

    // Throws what SQLite's own code means, with its words.
    [[noreturn]] void FailWith(int code) const;

    sqlite3* Handle() const { return handle_.get(); }

private:
    struct Closer {
        void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
    };

    std::string file_;
    std::unique_ptr<sqlite3, Closer> handle_;
};

// A statement, compiled once. The database outlives it.
class Statement {
public:
    Statement(Database& database, const char* sql);

private:
    friend class Execution;
    struct Finalizer {
        void operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }
    };

    Database& database_;
    std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

// Bytes that are no text.
struct Blob {
    std::string_view bytes;
};

// One run of a statement, with the values of its parameters in order; the statement is free again when the
// run goes. Columns count from 0.
class Execution {
public:
    template <typename... Values>
    explicit Execution(Statement& statement, const Values&... values) : statement_(statement) {
        int place = 0;
        (Bind(++place, values), ...);
    }
    ~Execution();
    Execution(const Execution&) = delete;
    Execution& operator=(const Execution&) = delete;

    // Goes to the next row; false behind the last one.
    bool Next();

    std::int64_t Number(int column) const;
    double Real(int column) const;
    std::string Bytes(int column) const;

private:
    void Bind(int place, std::int64_t number);
    // For nothing but doubles, so that an int isn't one by chance.
    void Bind(int place, std::same_as<double> auto number) { BindReal(place, number); }
    void BindReal(int place, double number);
    void Bind(int place, std::string_view text);
    void Bind(int place, Blob blob);
    void Check(int code) const;

    Statement& statement_;
};

// Everything between its making and Commit happens wholly or not at all.
class Transaction {
public:
    enum class Kind {
        Read,   // sees one state of the file
        Write,  // the only one that writes, from the start; not to a file that is gone
    };

    Transaction(Database& database, Kind kind);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // When this returns, what was written survives.
    void Commit();

private:
    Database& database_;
};

}  // namespace jogeon::store
