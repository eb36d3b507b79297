// Reading the requests over a user's condition sets.
//
// Each throws BadRequest for a payload that isn't what its layout says, and for one that names another user
// than the request is of.
#pragma once

#include <string>
#include <vector>

#include "screen/transactions/list_request.h"
#include "server/service/payload_reader.h"
#include "server/service/request.h"
#include "server/service/store_layout.h"
#include "server/store/condition_store.h"

namespace jogeon::service {

struct ListQuestion {
    ListStep step{};
    int from = 0;
    std::string version;  // of a following request: what the packet before told
};

ListQuestion ReadListQuestion(const Request& request);

// The record to store; the fields for owner and number are blank.
std::string ReadNewSet(const Request& request);
store::StoredSet ReadNumberedSet(const Request& request);

// Only the set's number counts, so that a set can be deleted whatever has become of it at the screen.
int ReadDeletedNumber(const Request& request);

// The present numbers of the sets in their new order.
std::vector<int> ReadOrder(const Request& request);

}  // namespace jogeon::service
