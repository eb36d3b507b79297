// Writes a table and its notes to a workbook file (.xlsx).
//
// Relies on libxlsxwriter, which works on scratch files in the temporary folder, and on the one place that
// replaces files.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "screen/host/services.h"

namespace jogeon::terminal {

// Writes the sheet to `path`, with the notes on a second one. The file is complete or what stood there is
// untouched. Returns what has failed, for the user (CP949); nothing when it is written.
std::string WriteXlsx(const host::Sheet& sheet, const std::vector<host::SheetNote>& notes,
                      const std::filesystem::path& path);

}  // namespace jogeon::terminal
