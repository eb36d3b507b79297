// Settings in sectioned text ("[Section]", "Key=value"), read and written one value at a time.
//
// Names are compared without case, blanks around names and values are cut. A write replaces the file
// atomically and leaves every other line as it was, comments too.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace jogeon {

// The value of a key, or `defaultValue` if the file, the section or the key isn't there.
std::string ReadProfileText(const std::filesystem::path& file, std::string_view section, std::string_view key,
                            std::string_view defaultValue = {});

// Sets one value; file, section and key are made where they are missing. False if the file can't be read or
// saved, or if a name or the value can't stand on one line.
bool WriteProfileText(const std::filesystem::path& file, std::string_view section, std::string_view key,
                      std::string_view value);

}  // namespace jogeon
