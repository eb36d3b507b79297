// One of the target dialog's trees of check boxes: top nodes, and under each the entries of a list.
//
// It keeps the rules of checking, so that whoever shows it only passes on which node was touched. Texts are
// CP949.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace jogeon {

class TargetTree {
public:
    struct Leaf {
        std::string code;  // three-byte group code, or the number of an account
        std::string text;
        bool checked = false;
    };

    enum class Kind {
        List,     // any of its leaves may be checked
        OneOnly,  // at most one of its leaves
        Whole     // has no leaves, and stands for those of all the others
    };

    struct Branch {
        std::string text;
        Kind kind = Kind::List;
        std::vector<Leaf> leaves = {};
        bool checked = false;  // all leaves are; never without a leaf, but for Kind::Whole

        std::vector<std::string> CheckedCodes() const;
        const Leaf* FirstChecked() const;  // null if none is
    };

    // A place in the tree; without a leaf it is the branch's own node.
    struct Node {
        std::size_t branch = 0;
        std::optional<std::size_t> leaf = std::nullopt;
    };

    TargetTree() = default;
    explicit TargetTree(std::vector<Branch> branches) : branches_(std::move(branches)) {}

    const std::vector<Branch>& Branches() const { return branches_; }

    // Turns a node's check over, as a click does. A branch passes its new state to its leaves; a leaf decides
    // its branch's. The branch of accounts takes the first of them, or lets go of the one that is checked. A
    // Whole branch is cleared with the first leaf, but no leaf checks it.
    void Toggle(Node node);

    // Checks a whole branch.
    void Check(std::size_t branch);

    // Checks the leaves of lists that have one of these codes; a code counts as "%3.3s" of it.
    void CheckCodes(const std::vector<std::string>& codes);

    // Checks the leaf of the OneOnly branches with this code or, failing that, this text.
    void CheckOne(const std::string& codeOrText);

private:
    void SetLeaves(Branch& branch, bool checked);
    void Settle();

    std::vector<Branch> branches_;
};

}  // namespace jogeon
