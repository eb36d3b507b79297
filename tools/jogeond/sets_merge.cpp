#include "tools/jogeond/sets_merge.h"

#include <algorithm>
#include <map>
#include <set>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/condition_header.h"

namespace jogeon {
namespace {

using sets_text::TextSet;

std::string NameOf(const store::StoredSet& set) {
    return ToUtf8(TrimRight(Read(set.record, condition_header::kName)));
}

class Merge {
public:
    Merge(MergeMode mode, const std::vector<store::StoredSet>& present, std::string file)
        : mode_(mode), file_(std::move(file)) {
        for (const store::StoredSet& set : present) {
            records_[set.number] = set.record;
            numbersByName_[NameOf(set)].push_back(set.number);
        }
    }

    void Take(const TextSet& incoming) {
        if (!namesTaken_.insert(incoming.name).second) return Conflict(incoming, "stands twice in the file");
        const auto same = numbersByName_.find(incoming.name);
        if (same == numbersByName_.end()) return Add(incoming);
        const std::string number = ZeroPadded(same->second.front(), 2);
        if (mode_ == MergeMode::Add)
            return Conflict(incoming, "is there already, number " + number + "; --update replaces it");
        if (same->second.size() > 1)
            return Conflict(incoming, "is there more than once; which one is to be replaced?");
        records_[same->second.front()] = incoming.stored.record;
        ++result_.replaced;
    }

    MergeResult Finish() {
        if (records_.size() > store::kMostSets)
            conflicts_.push_back(file_ + ": the user would have " + std::to_string(records_.size()) +
                                 " sets; 99 is the most");
        if (!conflicts_.empty()) throw MergeConflict(Join(conflicts_, "\n"));
        for (const auto& [number, record] : records_) result_.sets.push_back({number, record});
        return result_;
    }

private:
    // Under the lowest free number.
    void Add(const TextSet& incoming) {
        int number = 0;
        while (records_.contains(number)) ++number;
        records_[number] = incoming.stored.record;
        ++result_.added;
    }

    void Conflict(const TextSet& incoming, const std::string& problem) {
        conflicts_.push_back(file_ + ":" + std::to_string(incoming.line) + ": a set \"" + incoming.name +
                             "\" " + problem);
    }

    const MergeMode mode_;
    const std::string file_;
    std::map<int, std::string> records_;
    std::map<std::string, std::vector<int>> numbersByName_;
    std::set<std::string> namesTaken_;
    std::vector<std::string> conflicts_;
    MergeResult result_;
};

MergeResult ReplaceAll(const std::vector<store::StoredSet>& present, const std::vector<TextSet>& incoming) {
    MergeResult result;
    for (const TextSet& set : incoming) result.sets.push_back(set.stored);
    std::sort(result.sets.begin(), result.sets.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    const auto had = [&](const store::StoredSet& set) {
        return std::any_of(present.begin(), present.end(),
                           [&](const auto& other) { return other.number == set.number; });
    };
    result.replaced = static_cast<int>(std::count_if(result.sets.begin(), result.sets.end(), had));
    result.added = static_cast<int>(result.sets.size()) - result.replaced;
    result.removed = static_cast<int>(present.size()) - result.replaced;
    return result;
}

}  // namespace

MergeResult MergeSets(MergeMode mode, const std::vector<store::StoredSet>& present,
                      const std::vector<TextSet>& incoming, const std::string& file) {
    if (mode == MergeMode::Replace) return ReplaceAll(present, incoming);
    Merge merge(mode, present, file);
    for (const TextSet& set : incoming) merge.Take(set);
    return merge.Finish();
}

}  // namespace jogeon
