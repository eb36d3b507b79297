#include "screen/results/grid_layout_files.h"

#include <system_error>

#include "screen/files/data_paths.h"

namespace jogeon {

std::filesystem::path UserLayoutPath(host::LinkStore& links, const std::string& userId) {
    return GetDataFilePath(links, kUserFolder, userId + "_0150TempGrid01.dlg");
}

std::filesystem::path TemplateLayoutPath(host::LinkStore& links) {
    return GetDataFilePath(links, "Screen/Dlg", "0150TempGrid.dlg");
}

GridLayout LoadGridLayout(host::LinkStore& links, const std::string& userId) {
    const std::filesystem::path own = UserLayoutPath(links, userId);
    std::error_code error;
    return ReadGridLayout(std::filesystem::exists(own, error) ? own : TemplateLayoutPath(links));
}

}  // namespace jogeon
