#include "screen/panes/tree_find.h"

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr std::uint32_t kTriggerPause = 1000;  // milliseconds

}  // namespace

std::string FoldCase(std::string_view text) {
    std::string folded(text);
    for (std::size_t at = 0; at < folded.size(); at += CharacterLength(text, at)) {
        char& letter = folded[at];
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    return folded;
}

bool ContainsText(std::string_view text, std::string_view part) {
    for (std::size_t at = 0; at + part.size() <= text.size(); at += CharacterLength(text, at)) {
        if (text.substr(at, part.size()) == part) return true;
    }
    return false;
}

// The tick count may wrap; the difference doesn't mind.
bool TreeFind::Trigger(std::uint32_t tick) {
    const bool early = lastTrigger_ && tick - *lastTrigger_ < kTriggerPause;
    lastTrigger_ = tick;
    return !early;
}

void TreeFind::Search(std::string_view text, const std::vector<std::string>& texts) {
    Clear();
    if (text.empty()) return;
    searched_ = true;
    const std::string part = FoldCase(text);
    for (std::size_t item = 0; item < texts.size(); ++item) {
        if (!ContainsText(FoldCase(texts[item]), part)) continue;
        m_FoundTexts.push_back(texts[item]);
        m_FoundItems.push_back(item);
    }
    if (!m_FoundItems.empty()) m_nFoundIndex = 0;
}

void TreeFind::Clear() {
    m_FoundTexts.clear();
    m_FoundItems.clear();
    m_nFoundIndex = -1;
    searched_ = false;
}

bool TreeFind::Next() {
    return Step(1);
}

bool TreeFind::Previous() {
    return Step(-1);
}

bool TreeFind::Step(int by) {
    if (!HasHit()) return false;
    const int count = static_cast<int>(m_FoundItems.size());
    m_nFoundIndex = (m_nFoundIndex + by + count) % count;
    return true;
}

std::string TreeFind::CounterText() const {
    if (!searched_) return {};
    return Decimal(m_nFoundIndex + 1) + "/" + Decimal(static_cast<int>(m_FoundItems.size()));
}

}  // namespace jogeon
