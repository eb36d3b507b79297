#include "screen/target/target_tree.h"

#include <algorithm>
#include <set>

#include "screen/text/bytes.h"

namespace jogeon {
namespace {

constexpr std::size_t kCodeWidth = 3;

bool AllChecked(const TargetTree::Branch& branch) {
    return std::all_of(branch.leaves.begin(), branch.leaves.end(),
                       [](const TargetTree::Leaf& leaf) { return leaf.checked; });
}

void CheckOnly(TargetTree::Branch& branch, const TargetTree::Leaf& chosen) {
    for (TargetTree::Leaf& leaf : branch.leaves) leaf.checked = &leaf == &chosen;
}

}  // namespace

std::vector<std::string> TargetTree::Branch::CheckedCodes() const {
    std::vector<std::string> codes;
    for (const Leaf& leaf : leaves) {
        if (leaf.checked) codes.push_back(leaf.code);
    }
    return codes;
}

const TargetTree::Leaf* TargetTree::Branch::FirstChecked() const {
    const auto first =
        std::find_if(leaves.begin(), leaves.end(), [](const Leaf& leaf) { return leaf.checked; });
    return first == leaves.end() ? nullptr : &*first;
}

void TargetTree::Toggle(Node node) {
    Branch& branch = branches_.at(node.branch);
    if (!node.leaf) {
        SetLeaves(branch, branch.kind == Kind::OneOnly ? !branch.FirstChecked() : !branch.checked);
    } else {
        Leaf& leaf = branch.leaves.at(*node.leaf);
        leaf.checked = !leaf.checked;
        if (leaf.checked && branch.kind == Kind::OneOnly) CheckOnly(branch, leaf);
    }
    Settle();
}

void TargetTree::Check(std::size_t branch) {
    SetLeaves(branches_.at(branch), true);
    Settle();
}

void TargetTree::CheckCodes(const std::vector<std::string>& codes) {
    std::set<std::string> wanted;
    for (const std::string& code : codes) wanted.insert(RightIn(code, kCodeWidth));
    for (Branch& branch : branches_) {
        if (branch.kind != Kind::List) continue;
        for (Leaf& leaf : branch.leaves) leaf.checked |= wanted.contains(leaf.code);
    }
    Settle();
}

void TargetTree::CheckOne(const std::string& codeOrText) {
    for (Branch& branch : branches_) {
        if (branch.kind != Kind::OneOnly) continue;
        for (const auto member : {&Leaf::code, &Leaf::text}) {
            const auto found = std::ranges::find(branch.leaves, codeOrText, member);
            if (found == branch.leaves.end()) continue;
            CheckOnly(branch, *found);
            break;
        }
    }
    Settle();
}

void TargetTree::SetLeaves(Branch& branch, bool checked) {
    if (branch.kind == Kind::Whole) {
        branch.checked = checked;
        for (Branch& other : branches_) {
            if (other.kind != Kind::Whole) SetLeaves(other, checked);
        }
    } else if (branch.kind == Kind::OneOnly && checked) {
        if (!branch.leaves.empty()) CheckOnly(branch, branch.leaves.front());
    } else {
        for (Leaf& leaf : branch.leaves) leaf.checked = checked;
    }
}

void TargetTree::Settle() {
    bool all = true;
    for (Branch& branch : branches_) {
        if (branch.kind == Kind::Whole) continue;
        branch.checked = !branch.leaves.empty() && AllChecked(branch);
        all = all && AllChecked(branch);
    }
    for (Branch& branch : branches_) {
        if (branch.kind == Kind::Whole) branch.checked = branch.checked && all;
    }
}

}  // namespace jogeon
