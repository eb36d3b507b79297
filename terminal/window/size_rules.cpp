#include "terminal/window/size_rules.h"

#include <algorithm>

namespace jogeon::terminal {
namespace {

struct Span {
    int start;
    int length;
};

// One direction of Grown.
Span GrownAlong(Span window, int extra, Span desktop) {
    const int most = std::max(window.length, desktop.length);
    const int length = std::min(window.length + extra, most);
    const int overhang = window.start + length - (desktop.start + desktop.length);
    const bool wasWithin = window.start + window.length <= desktop.start + desktop.length;
    if (overhang <= 0 || !wasWithin) return {window.start, length};
    return {std::max(std::min(desktop.start, window.start), window.start - overhang), length};
}

}  // namespace

QRect Grown(const QRect& window, const QSize& extra, const QRect& desktop) {
    const Span across =
        GrownAlong({window.x(), window.width()}, extra.width(), {desktop.x(), desktop.width()});
    const Span down =
        GrownAlong({window.y(), window.height()}, extra.height(), {desktop.y(), desktop.height()});
    return {across.start, down.start, across.length, down.length};
}

QRect PlacedWhole(const QPoint& corner, const QSize& size, const QRect& desktop) {
    const QSize fits = size.boundedTo(desktop.size());
    const QSize left = desktop.size() - fits;
    return {{std::clamp(corner.x(), desktop.x(), desktop.x() + left.width()),
             std::clamp(corner.y(), desktop.y(), desktop.y() + left.height())},
            fits};
}

}  // namespace jogeon::terminal
