#include "screen/results/grid_layout.h"

#include <algorithm>
#include <set>

#include "screen/files/ini_mem_file.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

constexpr char kNumber[] = "Number";
constexpr char kFid[] = "Fid";
constexpr char kHeader[] = "Header";
constexpr char kWidth[] = "Width";
constexpr char kHidden[] = "Hidden";
constexpr char kFormat[] = "Format";

GridColumn ReadColumn(const CIniMemFile& file, const std::string& section, int place) {
    const auto text = [&](const char* key) { return file.GetString(section, key, ""); };
    GridColumn column;
    column.number = Atoi(text(kNumber));
    if (column.number < 1) column.number = place;
    column.fid = Trim(text(kFid));
    column.header = text(kHeader);
    const int width = Atoi(text(kWidth));
    column.width = width == 0 ? kDefaultColumnWidth : std::clamp(width, kMinColumnWidth, kMaxColumnWidth);
    column.hidden = Atoi(text(kHidden)) != 0;
    column.format = FormatOfWord(Trim(text(kFormat)));
    return column;
}

}  // namespace

GridLayout GridLayoutFrom(const CIniMemFile& file) {
    std::vector<std::string> sections;
    file.GetSections(sections);
    GridLayout layout;
    std::set<std::string> seen;  // a section written twice is one column
    for (const std::string& section : sections) {
        if (layout.size() == kMaxGridColumns) break;
        if (!seen.insert(section).second) continue;
        layout.push_back(ReadColumn(file, section, static_cast<int>(layout.size()) + 1));
    }
    std::stable_sort(layout.begin(), layout.end(),
                     [](const GridColumn& a, const GridColumn& b) { return a.number < b.number; });
    int number = 0;
    for (GridColumn& column : layout) column.number = ++number;
    return layout;
}

void GridLayoutTo(CIniMemFile& file, const GridLayout& layout) {
    for (const GridColumn& column : layout) {
        const std::string section = "Column" + ZeroPadded(column.number, 2);
        file.WriteInt(section, kNumber, column.number);
        file.WriteString(section, kFid, column.fid);
        file.WriteString(section, kHeader, column.header);
        file.WriteInt(section, kWidth, column.width);
        file.WriteInt(section, kHidden, column.hidden ? 1 : 0);
        file.WriteString(section, kFormat, std::string(FormatWord(column.format)));
    }
}

GridLayout ReadGridLayout(const std::filesystem::path& path) {
    CIniMemFile file;
    return file.LoadIniFile(path.string(), 1) ? GridLayoutFrom(file) : GridLayout();
}

bool WriteGridLayout(const std::filesystem::path& path, const GridLayout& layout) {
    if (layout.empty()) return false;
    CIniMemFile file(1);
    GridLayoutTo(file, layout);
    return file.SaveIniFile(path.string()) != 0;
}

}  // namespace jogeon
