#include "server/store/condition_store.h"

#include <algorithm>
#include <limits>
#include <map>

#include "server/store/store_schema.h"

namespace jogeon::store {
namespace {

constexpr std::int64_t kLastVersion = 999'999;

std::string VersionText(std::int64_t version) {
    const std::string digits = std::to_string(1'000'000 + version).substr(1);
    return digits.substr(0, 3) + "." + digits.substr(3, 3);
}

std::int64_t VersionNumber(const std::string& text) {
    return std::stol(text.substr(0, 3)) * 1000 + std::stol(text.substr(4, 3));
}

// The lowest number from 0 on that isn't among `numbers`, which are in ascending order.
int LowestFree(const std::vector<int>& numbers) {
    int free = 0;
    for (int number : numbers) {
        if (number != free) break;
        ++free;
    }
    return free;
}

}  // namespace

std::filesystem::path StorePath(const std::filesystem::path& home) {
    return home / "Store" / "conditions.sqlite";
}

bool IsVersion(std::string_view text) {
    if (text.size() != 7 || text[3] != '.') return false;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return std::all_of(text.begin(), text.begin() + 3, isDigit) &&
           std::all_of(text.begin() + 4, text.end(), isDigit);
}

ConditionStore::ConditionStore(const std::filesystem::path& file)
    : database_(OpenStore(file)),
      readVersion_(database_, "SELECT version FROM users WHERE id = ?"),
      writeVersion_(database_,
                    "INSERT INTO users (id, version) VALUES (?, ?)"
                    " ON CONFLICT (id) DO UPDATE SET version = excluded.version"),
      readNumbers_(database_, "SELECT number FROM sets WHERE user = ? ORDER BY number"),
      readSets_(database_, "SELECT number, record FROM sets WHERE user = ? AND number >= ? ORDER BY number"),
      putSet_(database_,
              "INSERT INTO sets (user, number, record) VALUES (?, ?, ?)"
              " ON CONFLICT (user, number) DO UPDATE SET record = excluded.record"),
      removeSet_(database_, "DELETE FROM sets WHERE user = ? AND number = ?"),
      removeAll_(database_, "DELETE FROM sets WHERE user = ?") {}

std::string ConditionStore::Version(const std::string& user) {
    const std::lock_guard lock(mutex_);
    return VersionOf(user);
}

Listing ConditionStore::List(const std::string& user, int from, std::size_t bytes) {
    const std::lock_guard lock(mutex_);
    Transaction transaction(database_, Transaction::Kind::Read);
    return ListWithin(user, from, bytes);
}

Listing ConditionStore::ListAll(const std::string& user) {
    return List(user, 0, std::numeric_limits<std::size_t>::max());
}

Change ConditionStore::Add(const std::string& user, const std::string& version, const std::string& record) {
    return Do(user, version, [&](int& number) {
        number = LowestFree(NumbersOf(user));
        if (number >= kMostSets) return Outcome::NoFreeNumber;
        Insert(user, {number, record});
        return Outcome::Done;
    });
}

Change ConditionStore::Put(const std::string& user, const std::string& version, const StoredSet& set) {
    return Do(user, version, [&](int& number) {
        number = set.number;
        Insert(user, set);
        return Outcome::Done;
    });
}

Change ConditionStore::Remove(const std::string& user, const std::string& version, int number) {
    return Do(user, version, [&](int&) {
        const std::vector<int> numbers = NumbersOf(user);
        if (!std::binary_search(numbers.begin(), numbers.end(), number)) return Outcome::NoSuchSet;
        Execution(removeSet_, user, number).Next();
        return Outcome::Done;
    });
}

Change ConditionStore::Reorder(const std::string& user, const std::string& version,
                               const std::vector<int>& order) {
    return Do(user, version, [&](int&) {
        std::vector<int> sorted = order;
        std::sort(sorted.begin(), sorted.end());
        if (sorted != NumbersOf(user)) return Outcome::NotEverySet;
        std::map<int, std::string> records;
        for (StoredSet& set : ListWithin(user, 0, std::numeric_limits<std::size_t>::max()).sets)
            records.emplace(set.number, std::move(set.record));
        Execution(removeAll_, user).Next();
        int number = 0;
        for (int before : order) Insert(user, {number++, records.at(before)});
        return Outcome::Done;
    });
}

Change ConditionStore::ReplaceAll(const std::string& user, const std::string& version,
                                  const std::vector<StoredSet>& sets) {
    return Do(user, version, [&](int&) {
        Execution(removeAll_, user).Next();
        for (const StoredSet& set : sets) Insert(user, set);
        return Outcome::Done;
    });
}

template <typename Command>
Change ConditionStore::Do(const std::string& user, const std::string& version, Command command) {
    const std::lock_guard lock(mutex_);
    Transaction transaction(database_, Transaction::Kind::Write);
    Change change;
    change.version = VersionOf(user);
    change.outcome = version == change.version ? command(change.number) : Outcome::WrongVersion;
    if (change.outcome != Outcome::Done) return change;
    const std::int64_t before = VersionNumber(change.version);
    const std::int64_t next = before < kLastVersion ? before + 1 : 1;
    Execution(writeVersion_, user, next).Next();
    transaction.Commit();
    change.version = VersionText(next);
    return change;
}

Listing ConditionStore::ListWithin(const std::string& user, int from, std::size_t bytes) {
    Listing listing;
    listing.version = VersionOf(user);
    std::size_t used = 0;
    Execution sets(readSets_, user, from);
    while (sets.Next()) {
        StoredSet set{static_cast<int>(sets.Number(0)), sets.Bytes(1)};
        used += set.record.size();
        listing.more = used > bytes && !listing.sets.empty();
        if (listing.more) break;
        listing.sets.push_back(std::move(set));
    }
    return listing;
}

std::string ConditionStore::VersionOf(const std::string& user) {
    Execution version(readVersion_, user);
    return version.Next() ? VersionText(version.Number(0)) : kFirstVersion;
}

std::vector<int> ConditionStore::NumbersOf(const std::string& user) {
    std::vector<int> numbers;
    Execution rows(readNumbers_, user);
    while (rows.Next()) numbers.push_back(static_cast<int>(rows.Number(0)));
    return numbers;
}

void ConditionStore::Insert(const std::string& user, const StoredSet& set) {
    Execution(putSet_, user, set.number, Blob{set.record}).Next();
}

}  // namespace jogeon::store
