// A saved sheet as a spreadsheet program reads it that knows nothing of ours.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/screen/support/condition_files.h"

namespace jogeon::test {

inline bool HasSpreadsheetProgram() {
    return std::system("command -v soffice >/dev/null") == 0;
}

// Converts `folder`/`name` to .csv files beside it, as `options` of the program's own filter say; the text of
// the file `result`, or what the program has said. A file that names no code page is read in that of the
// locale; one that isn't installed can't write files with Korean names.
inline std::string AsCsv(const std::filesystem::path& folder, const std::string& name,
                         const std::string& options, const std::string& result,
                         const std::string& locale = "C.UTF-8") {
    const std::string command =
        "LC_ALL=" + locale + " timeout 120 soffice --headless -env:UserInstallation=file://" +
        (folder / "profile").string() + " --convert-to 'csv:Text - txt - csv (StarCalc):" + options +
        "' --outdir " + folder.string() + " " + (folder / name).string() + " >" + (folder / "log").string() +
        " 2>&1";
    return ReadBytes(folder / (std::system(command.c_str()) == 0 ? result : "log"));
}

}  // namespace jogeon::test
