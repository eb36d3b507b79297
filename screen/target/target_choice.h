// What the target dialog lets the user choose: the three trees, restored from a target and turned into one.
//
// Relies on the host for the code lists and the accounts; a list that can't be had is an empty one. Months
// and exclusions have no rules of their own, so that the dialog keeps them.
#pragma once

#include <array>
#include <optional>

#include "screen/host/services.h"
#include "screen/target/search_target.h"
#include "screen/target/target_tree.h"

namespace jogeon {

class TargetChoice {
public:
    // Fills the trees, and checks in the tree of the target's own tab what the target has chosen.
    TargetChoice(host::CodeLists& codeLists, host::LinkStore& links, const TargetFields& target);

    TargetTree& Tree(TargetTab tab) { return trees_[static_cast<std::size_t>(tab)]; }
    const TargetTree& Tree(TargetTab tab) const { return trees_[static_cast<std::size_t>(tab)]; }

    // The labelled target for what is checked in a tab's tree, with the exclusions and the month of `options`
    // (whose other fields don't count). None where nothing is checked.
    std::optional<SearchTarget> TargetOf(TargetTab tab, const TargetFields& options) const;

private:
    void Restore(const TargetFields& target);

    std::array<TargetTree, 3> trees_;  // in the order of TargetTab
};

}  // namespace jogeon
