// A workbook file as what it is: a zip archive of XML texts.
//
// Relies on zlib. The library that writes workbooks doesn't notice when a full disk cuts one of its scratch
// files, and packs the stump; this tells such a file from a whole one.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace jogeon::terminal {

// The texts of a package by their names in it; none if the archive is damaged.
std::optional<std::map<std::string, std::string>> ReadParts(std::string_view package);

// Whether every text of the package is there up to the end of its root element.
bool IsWhole(std::string_view package);

}  // namespace jogeon::terminal
