// The groups of every user that the service has met, made on first sight.
//
// A user's groups never change under a reader: adding one replaces the whole. Callable from several threads.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "server/engine/user_groups.h"

namespace jogeon::service {

class UserTable {
public:
    using Groups = std::shared_ptr<const engine::UserGroups>;

    explicit UserTable(const market::Market& market) : market_(market) {}

    Groups Of(const std::string& user);

    // Adds an interest group and returns its code; empty when the name is empty, none of the codes is of this
    // market, or all codes of groups are taken. `name` is UTF-8.
    std::string AddInterestGroup(const std::string& user, const std::string& name,
                                 const std::vector<std::string>& codes);

private:
    const market::Market& market_;
    std::mutex mutex_;
    std::map<std::string, Groups> users_;
};

}  // namespace jogeon::service
