// The condition sets of all users, in one SQLite file.
//
// A set is a number from 0 to 98 and a record of bytes that the store doesn't look into. Every command is one
// transaction: when it returns, the change survives the end of the process and of the power; when it throws,
// nothing has changed. Several threads and several processes may use one file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <mutex>
#include <string>
#include <vector>

#include "server/store/sqlite_database.h"

namespace jogeon::store {

inline constexpr int kMostSets = 99;  // for each user, numbered 0 to 98

// Where the store lies in a terminal's home folder.
std::filesystem::path StorePath(const std::filesystem::path& home);

// The version of a user who has never saved anything. Every change of a user's sets gives him the next one;
// after "999.999" comes "000.001", since this one means: nothing yet.
inline constexpr const char* kFirstVersion = "000.000";

// Whether the text is three digits, a point and three digits.
bool IsVersion(std::string_view text);

struct StoredSet {
    int number = 0;
    std::string record;

    friend bool operator==(const StoredSet&, const StoredSet&) = default;
};

// A user's sets in the order of their numbers, or a part of them, as they were at one moment.
struct Listing {
    std::string version;
    std::vector<StoredSet> sets;
    bool more = false;  // there are sets behind the last of these
};

enum class Outcome {
    Done,
    WrongVersion,  // the asker doesn't know the user's sets as they are
    NoFreeNumber,  // the user has 99 sets
    NoSuchSet,
    NotEverySet,  // a new order doesn't name every set once
};

struct Change {
    Outcome outcome{};
    std::string version;  // the user's, after the command
    int number = 0;       // of the set that was added
};

class ConditionStore {
public:
    // Opens the file, or makes it and its folder. Throws StoreError, like all that follows.
    explicit ConditionStore(const std::filesystem::path& file);

    std::string Version(const std::string& user);

    // The sets from number `from` on: at least one, then as many as keep the records within `bytes`.
    Listing List(const std::string& user, int from, std::size_t bytes);
    Listing ListAll(const std::string& user);

    // Each of these does nothing unless `version` is the user's.

    // Adds a set under the lowest free number.
    Change Add(const std::string& user, const std::string& version, const std::string& record);

    // Puts the set under `number` in the place of what was there, if anything was.
    Change Put(const std::string& user, const std::string& version, const StoredSet& set);

    Change Remove(const std::string& user, const std::string& version, int number);

    // Numbers the sets anew from 0, in this order of their present numbers.
    Change Reorder(const std::string& user, const std::string& version, const std::vector<int>& order);

    // Makes `sets` all that the user has. Their numbers are different from each other.
    Change ReplaceAll(const std::string& user, const std::string& version,
                      const std::vector<StoredSet>& sets);

private:
    // Runs `command`, which returns an outcome and may set the change's number, in a transaction of its own
    // and, if it is done, gives the user his next version.
    template <typename Command>
    Change Do(const std::string& user, const std::string& version, Command command);

    Listing ListWithin(const std::string& user, int from, std::size_t bytes);
    std::string VersionOf(const std::string& user);
    std::vector<int> NumbersOf(const std::string& user);
    void Insert(const std::string& user, const StoredSet& set);

    std::mutex mutex_;
    Database database_;
    Statement readVersion_;
    Statement writeVersion_;
    Statement readNumbers_;
    Statement readSets_;
    Statement putSet_;
    Statement removeSet_;
    Statement removeAll_;
};

}  // namespace jogeon::store
