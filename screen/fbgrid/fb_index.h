// What the grid does about an index that isn't there: a fault of the caller.
//
// A debug build stops at an assertion. A release build goes on, and the operation is ignored.
#pragma once

#include "screen/fbgrid/fb_export.h"

namespace jogeon {

FB_GRID_API void ReportWrongIndex();

// Whether `index` is one of `count`. Doesn't return in a debug build if it isn't.
inline bool IndexExists(int index, int count) {
    if (index >= 0 && index < count) return true;
    ReportWrongIndex();
    return false;
}

// For tests: while it lives, a debug build treats wrong indices as a release build does.
class ReleaseIndexRule {
public:
    ReleaseIndexRule();
    ~ReleaseIndexRule();
    ReleaseIndexRule(const ReleaseIndexRule&) = delete;
    ReleaseIndexRule& operator=(const ReleaseIndexRule&) = delete;
};

}  // namespace jogeon
