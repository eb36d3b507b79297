// Condition sets that are watched over a trading day: what a screen asks of the service, wherever it runs.
//
// A watch goes on only when it is asked to: each Advance lets its clock go on and brings what has happened by
// then. Callable from several threads at once; nobody reaches another user's watches. Texts are CP949.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace jogeon::service {

// Why there is no such watch, in one line of UTF-8.
class WatchError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A watch as it begins. Times are milliseconds since midnight.
struct WatchStart {
    int id = 0;
    int date = 0;        // yyyymmdd
    bool replay = true;  // the day is told again; not the market of this moment
    int opens = 0;
    int closes = 0;

    friend bool operator==(const WatchStart&, const WatchStart&) = default;
};

struct WatchedStock {
    std::string code;  // six bytes
    std::string name;
    double price = 0;   // won
    double change = 0;  // percent against the day before, NaN where that is unknown

    friend bool operator==(const WatchedStock&, const WatchedStock&) = default;
};

// A stock came to match the set, or no longer does.
struct WatchEvent {
    WatchedStock stock;
    int time = 0;
    bool entered = false;
    std::string rose;  // letters of the conditions that have become true for it
    std::string fell;  // and of those that have become false

    friend bool operator==(const WatchEvent&, const WatchEvent&) = default;
};

// A stock that matches now.
struct WatchMatch {
    WatchedStock stock;
    int since = 0;
    std::string holding;  // letters of the conditions that are true

    friend bool operator==(const WatchMatch&, const WatchMatch&) = default;
};

struct WatchNews {
    int time = 0;
    bool over = false;                // no trade will come any more
    std::int64_t ticks = 0;           // since the news before
    std::vector<WatchEvent> events;   // since the news before, in order of time
    std::vector<WatchMatch> matches;  // in order of code

    friend bool operator==(const WatchNews&, const WatchNews&) = default;
};

class Watches {
public:
    static constexpr int kMostOfUser = 8;

    virtual ~Watches() = default;

    // Begins to watch `conditionSet`, the bytes of a header and its blocks, from the opening of the market's
    // last day on. The user's groups stay as they are now for the watch. Throws WatchError for a set that
    // can't be judged, and when the user has kMostOfUser open; like the next, std::runtime_error when the
    // service can't be asked.
    virtual WatchStart Open(const std::string& user, const std::string& conditionSet) = 0;

    // Lets the watch's clock go on by `milliseconds`; 0 keeps it alive. Throws WatchError for an id that the
    // user has no watch of: one that nobody asked for in five minutes is closed.
    virtual WatchNews Advance(const std::string& user, int id, int milliseconds) = 0;

    // Nothing for an id that the user has no watch of.
    virtual void Close(const std::string& user, int id) = 0;
};

}  // namespace jogeon::service
