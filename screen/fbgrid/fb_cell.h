// One cell of CFBGrid, a row of cells, and how cells are named.
//
// Plain data: no window, no painting. Text is CP949 bytes.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "screen/fbgrid/fb_export.h"

// A colour as one number, red in the low byte: 0x00bbggrr. With the top bit set it is a colour of the desktop
// instead, which follows the desktop's theme.
using FBColour = std::uint32_t;

namespace fbcolour {
inline constexpr FBColour kWindow = 0x80000005;
inline constexpr FBColour kWindowText = 0x80000008;
inline constexpr FBColour kInactiveBorder = 0x8000000b;
inline constexpr FBColour kHighlight = 0x8000000d;
inline constexpr FBColour kButtonFace = 0x8000000f;
inline constexpr FBColour kButtonText = 0x80000012;
}  // namespace fbcolour

// A place in the grid, header rows and columns counted. (-1, -1) is no cell.
struct CCellID {
    int row = -1;
    int col = -1;

    bool operator==(const CCellID&) const = default;
};

// A block of cells, both ends within it. A maximum below its minimum is an empty block.
struct CCellRange {
    int minRow = 0;
    int minCol = 0;
    int maxRow = -1;
    int maxCol = -1;

    bool operator==(const CCellRange&) const = default;
};

class FB_GRID_API CCell {
public:
    // Kinds, combined bitwise in `state`.
    enum State : std::uint32_t {
        kEdit = 0x01,         // in-place edit on the second click
        kList = 0x02,         // in-place drop-down list
        kCheck = 0x04,        // check box
        kButton = 0x08,       // push button
        kNumeric = 0x10,      // shows `value`, with `text` behind it
        kTwoDecimals = 0x40,  // with kNumeric: always two decimals
        kFreeList = 0x80,     // in-place drop-down list whose box can be typed in
    };
    enum Format : std::uint32_t { kLeft = 0, kRight = 2, kCentre = 6 };
    enum Check : std::uint32_t { kOff = 0, kOn = 1, kDisabled = 3 };

    CCell() = default;
    CCell(const CCell&) = default;
    CCell& operator=(const CCell&) = default;
    virtual ~CCell() = default;

    std::string text;
    double value = 0;
    std::uint32_t state = 0;
    std::uint32_t format = kRight;
    std::int32_t image = -1;      // index in the grid's image list, -1 for none
    std::int32_t listIndex = -1;  // which of the grid's drop-down lists, -1 for none
    FBColour backColour = fbcolour::kWindow;
    FBColour textColour = fbcolour::kWindowText;
    std::uint32_t check = kOff;  // for a list cell, the selected index
};

// The cells of one row, each a heap object of its own. An index that isn't there is a fault of the caller:
// a debug build stops, a release build hands out a cell that belongs to no grid.
class FB_GRID_API CRow {
public:
    explicit CRow(int columns = 0) { Resize(columns); }

    int Count() const { return static_cast<int>(cells_.size()); }
    void Resize(int columns);
    CCell& operator[](int col);
    const CCell& operator[](int col) const;

private:
    std::vector<std::unique_ptr<CCell>> cells_;
};
