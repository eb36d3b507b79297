#include "server/service/user_table.h"

namespace jogeon::service {

UserTable::Groups UserTable::Of(const std::string& user) {
    const std::lock_guard lock(mutex_);
    Groups& groups = users_[user];
    if (!groups) groups = std::make_shared<engine::UserGroups>(engine::ExampleGroups(market_, user));
    return groups;
}

std::string UserTable::AddInterestGroup(const std::string& user, const std::string& name,
                                        const std::vector<std::string>& codes) {
    indicators::BitSet members(market_.Instruments().size());
    for (const std::string& code : codes) {
        const int stock = market_.Find(code);
        if (stock >= 0) members.Set(static_cast<std::size_t>(stock));
    }
    if (name.empty() || members.Count() == 0) return {};
    const Groups before = Of(user);
    const std::lock_guard lock(mutex_);
    Groups& groups = users_[user];
    std::string code = groups->FreeInterestCode();
    if (code.empty()) return {};
    auto changed = std::make_shared<engine::UserGroups>(*groups);
    changed->interests.push_back({code, name, members});
    groups = std::move(changed);
    return code;
}

}  // namespace jogeon::service
