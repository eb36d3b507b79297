// The layout of the result grid: which columns it has, and the sectioned text file that keeps them.
//
// One section stands for one column. Reading takes from a damaged file what can be read; writing replaces
// the file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "screen/results/cell_format.h"

class CIniMemFile;

namespace jogeon {

inline constexpr int kMinColumnWidth = 16;  // pixels
inline constexpr int kMaxColumnWidth = 1000;
inline constexpr int kDefaultColumnWidth = 80;
inline constexpr std::size_t kMaxGridColumns = 256;

struct GridColumn {
    int number = 0;   // from 1, the column's place in the grid
    std::string fid;  // empty: a spare column, free for a value column of a result
    std::string header;
    int width = kDefaultColumnWidth;  // pixels
    bool hidden = false;
    CellFormat format = CellFormat::Text;

    friend bool operator==(const GridColumn&, const GridColumn&) = default;
};

using GridLayout = std::vector<GridColumn>;

// The columns of a file, in the order of their numbers and numbered from 1 without a gap. A column without a
// number that can be read takes its place in the file. Empty if the file can't be read or has no section.
GridLayout ReadGridLayout(const std::filesystem::path& path);
GridLayout GridLayoutFrom(const CIniMemFile& file);

// False if the file can't be written, or for a layout without columns, which writes nothing.
bool WriteGridLayout(const std::filesystem::path& path, const GridLayout& layout);
void GridLayoutTo(CIniMemFile& file, const GridLayout& layout);

}  // namespace jogeon
