// The requests to the store that haven't been answered, each with the set that it was about.
//
// A reply names its kind only. A request whose guard has run out stays here, since a late answer still
// counts; when two of a kind are out, nobody can tell which one is answered.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "screen/condition/saved_index_info.h"

namespace jogeon {

struct StoreRequest {
    char letter = 0;      // the payload's first byte
    std::string version;  // that the request went out with
    std::shared_ptr<CSavedIndexInfo>
        set;  // "A", "E": `pendingSaved`, made from the screen. "D": what is to go
    std::shared_ptr<CSavedIndexInfo> screen;  // what stood on the screen when it went out
    std::vector<std::string> order;           // "C": the numbers in their new order
};

class StoreRequests {
public:
    using List = std::vector<StoreRequest>;

    void Add(StoreRequest request) { open_.push_back(std::move(request)); }

    // Takes out all requests that a reply with this first byte can answer; none for one that answers nothing.
    List Take(char letter) {
        List taken;
        for (StoreRequest& request : open_) {
            if (request.letter == letter) taken.push_back(std::move(request));
        }
        std::erase_if(open_, [&](const StoreRequest& request) { return request.letter == letter; });
        return taken;
    }

    // Whether this very set is on its way to the server.
    bool IsBeingSaved(const CSavedIndexInfo& set) const {
        for (const StoreRequest& request : open_) {
            if (request.letter != 'D' && request.set.get() == &set) return true;
        }
        return false;
    }

private:
    List open_;
};

}  // namespace jogeon
