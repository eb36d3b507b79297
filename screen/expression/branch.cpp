#include "screen/expression/branch.h"

#include <algorithm>
#include <iterator>

namespace jogeon {
namespace {

// The precedences at which a climbing operator stops, in the order of S4PTSTOPS.
constexpr std::int16_t kStopPrecedences[] = {110, 120, 130};

// Stops of a node whose part has `own` ones and hangs under a node with the stops `above`.
S4PTSTOPS Join(const S4PTSTOPS& own, const S4PTSTOPS& above) {
    S4PTSTOPS joined;
    std::transform(own.begin(), own.end(), above.begin(), joined.begin(),
                   [](S4PTNODE* mine, S4PTNODE* theirs) { return mine ? mine : theirs; });
    return joined;
}

// The number of stops that a node of this precedence is itself.
std::size_t StopCount(std::int16_t precedence) {
    const auto* end = std::upper_bound(std::begin(kStopPrecedences), std::end(kStopPrecedences), precedence);
    return static_cast<std::size_t>(end - std::begin(kStopPrecedences));
}

}  // namespace

S4PTBRANCH S4PTBRANCH::Of(S4PTNODE& node) {
    S4PTBRANCH branch;
    branch.m_pRoot = branch.m_pCurrent = branch.m_pFirstLeaf = &node;
    return branch;
}

// The root is only gone on from when it's a pair of brackets, which stop no operator.
void S4PTBRANCH::GoOnFromRoot() {
    m_pCurrent = m_pRoot;
    m_CurrentStops = {};
}

void S4PTBRANCH::GoOnFromFirstLeaf() {
    m_pCurrent = m_pFirstLeaf;
    m_CurrentStops = m_LeafStops;
}

int S4PTBRANCH::PutOnTop(S4PTNODE& node, S4PTERROR& error) {
    if (node.AppendChild(m_pRoot, error) != 0) return -1;
    m_pRoot = &node;
    GoOnFromRoot();
    return 0;
}

int S4PTBRANCH::Append(const S4PTBRANCH& part, S4PTERROR& error) {
    if (!m_pCurrent) {
        *this = part;
        return 0;
    }
    if (m_pCurrent->AppendChild(part.m_pRoot, error) != 0) return -1;
    if (m_pFirstLeaf == m_pCurrent) {
        m_pFirstLeaf = part.m_pFirstLeaf;
        m_LeafStops = Join(part.m_LeafStops, m_CurrentStops);
    }
    m_pCurrent = part.m_pCurrent;
    m_CurrentStops = Join(part.m_CurrentStops, m_CurrentStops);
    return 0;
}

int S4PTBRANCH::Place(S4PTNODE& node, S4PTERROR& error) {
    const std::size_t stops = StopCount(node.m_nPrecedence);
    S4PTNODE* const stop = m_CurrentStops[stops - 1];
    if ((stop ? stop->InsertChild(&node, error) : node.AppendChild(m_pRoot, error)) != 0) return -1;
    if (!stop) m_pRoot = &node;

    // On top it's above the first leaf as well. Under a stop it stands beside that leaf, or above it where
    // the stop lacks its right operand, and then the stop is refused in the end whatever is placed where.
    for (std::size_t i = 0; i < stops; ++i) {
        if (!stop && !m_LeafStops[i]) m_LeafStops[i] = &node;
        m_CurrentStops[i] = &node;
    }
    m_pCurrent = &node;
    return 0;
}

}  // namespace jogeon
