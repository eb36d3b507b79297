#include "server/service/result_store.h"

#include <algorithm>

namespace jogeon::service {

int ResultStore::Keep(const ResultOwner& owner, std::shared_ptr<const KeptResult> result) {
    const std::lock_guard lock(mutex_);
    auto shelf = Use(owner);
    if (shelf == shelves_.end()) shelf = shelves_.insert(shelves_.begin(), Shelf{owner, 0, {}});
    const int handle = shelf->next;
    shelf->next = (handle + 1) % kHandles;
    shelf->results[handle] = std::move(result);
    if (shelves_.size() > kMaxOwners) shelves_.pop_back();
    return handle;
}

std::shared_ptr<const KeptResult> ResultStore::Find(const ResultOwner& owner, int handle) {
    const std::lock_guard lock(mutex_);
    const auto shelf = Use(owner);
    if (shelf == shelves_.end()) return nullptr;
    const auto found = shelf->results.find(handle);
    return found == shelf->results.end() ? nullptr : found->second;
}

void ResultStore::Release(const ResultOwner& owner) {
    const std::lock_guard lock(mutex_);
    shelves_.remove_if([&owner](const Shelf& shelf) { return shelf.owner == owner; });
}

std::list<ResultStore::Shelf>::iterator ResultStore::Use(const ResultOwner& owner) {
    const auto found = std::find_if(shelves_.begin(), shelves_.end(),
                                    [&owner](const Shelf& shelf) { return shelf.owner == owner; });
    if (found != shelves_.end()) shelves_.splice(shelves_.begin(), shelves_, found);
    return found;
}

}  // namespace jogeon::service
