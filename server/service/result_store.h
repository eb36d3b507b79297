// The results that windows may still page through, each under a number from 00 to 98.
//
// A new result takes the next number in turn, so that a number isn't used again soon, and after 99 results
// the oldest one's. Windows that never release anything can't fill the memory: beyond a bound the window
// that has been still for the longest loses its results. Callable from several threads.
#pragma once

#include <compare>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "server/service/kept_result.h"

namespace jogeon::service {

struct ResultOwner {
    std::string user;
    std::uint32_t window = 0;

    friend auto operator<=>(const ResultOwner&, const ResultOwner&) = default;
};

class ResultStore {
public:
    static constexpr int kHandles = 99;
    static constexpr std::size_t kMaxOwners = 64;

    // The number under which `Find` gives the result back.
    int Keep(const ResultOwner& owner, std::shared_ptr<const KeptResult> result);

    // Null when the owner has no result of that number.
    std::shared_ptr<const KeptResult> Find(const ResultOwner& owner, int handle);

    // Forgets all results of the owner.
    void Release(const ResultOwner& owner);

private:
    struct Shelf {
        ResultOwner owner;
        int next = 0;
        std::map<int, std::shared_ptr<const KeptResult>> results;
    };

    // The owner's shelf, moved to the front; shelves_.end() if he has none.
    std::list<Shelf>::iterator Use(const ResultOwner& owner);

    std::mutex mutex_;
    std::list<Shelf> shelves_;  // the most recently used first
};

}  // namespace jogeon::service
