// Finding a text among the nodes of the tree pane: which ones match, which of them is shown, the counter.
//
// Knows no widget: it is given the texts in the order they are shown and hands out positions in that order.
// All text is CP949; letters a to z match in either case.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

// `text` with a to z as A to Z, those inside a two-byte character left alone.
std::string FoldCase(std::string_view text);

// Whether `part` stands in `text`, beginning where a character begins.
bool ContainsText(std::string_view text, std::string_view part);

class TreeFind {
public:
    // Whether a find that is asked for at this tick (milliseconds) is done: not if the one before was asked
    // for less than a second ago, done or not.
    bool Trigger(std::uint32_t tick);

    // Replaces the result by the positions of all `texts` that contain `text`, and shows the first. An empty
    // text is no search: it clears.
    void Search(std::string_view text, const std::vector<std::string>& texts);

    void Clear();

    // The hit behind or before the shown one, round the ends. False, and nothing done, without hits.
    bool Next();
    bool Previous();

    bool HasHit() const { return m_nFoundIndex >= 0; }
    std::size_t Item() const { return m_FoundItems.at(static_cast<std::size_t>(m_nFoundIndex)); }
    const std::vector<std::string>& FoundTexts() const { return m_FoundTexts; }

    // "2/5" for the second of five hits, "0/0" when a search found nothing, "" when there was none.
    std::string CounterText() const;

private:
    bool Step(int by);

    std::vector<std::string> m_FoundTexts;  // parallel to the positions
    std::vector<std::size_t> m_FoundItems;
    int m_nFoundIndex = -1;  // position in the result, -1 without hits
    bool searched_ = false;
    std::optional<std::uint32_t> lastTrigger_;
};

}  // namespace jogeon
