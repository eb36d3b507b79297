// The sizes of all rows, or of all columns, and the positions that follow from them.
//
// Positions are pixels from the start of index 0. Every question and every change takes a time that grows
// with the logarithm of the count, so that a grid of 100,000 rows answers at once (a Fenwick tree: P. M.
// Fenwick, A New Data Structure for Cumulative Frequency Tables, 1994).
#pragma once

#include <cstdint>
#include <vector>

#include "screen/fbgrid/fb_export.h"

class FB_GRID_API FBAxis {
public:
    int Count() const { return static_cast<int>(sizes_.size()); }

    // Grows with sizes of `newSize`, or drops the sizes from `count` on.
    void Resize(int count, int newSize);

    // The size of an index, 0 for one that isn't there. A negative size is stored as 0.
    int Size(int index) const;
    void SetSize(int index, int size);

    // The sum of the sizes before `index`, which is cut to 0..Count(). Total() is that of all.
    std::int64_t Offset(int index) const;
    std::int64_t Total() const { return total_; }

    // The index whose pixels hold `position`: the first one whose end lies beyond it. Count() if none does, 0
    // for a negative position.
    int IndexAt(std::int64_t position) const;

private:
    std::vector<int> sizes_;
    std::vector<std::int64_t> sums_;
    std::int64_t total_ = 0;
};
