#include "screen/files/profile_text.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <optional>
#include <vector>

#include "screen/files/atomic_file.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;  // each with its line end, so that joining them gives the file back

// Far more than any settings file holds; a larger one is damage, and must not fill the memory.
constexpr std::uintmax_t kMostBytes = 64u << 20;

// No text for a file that is there and can't be read; an empty one for a file that isn't there.
std::optional<std::string> ReadText(const fs::path& file) {
    std::error_code error;
    if (!fs::exists(file, error)) return "";
    if (!fs::is_regular_file(file, error)) return std::nullopt;  // a pipe would wait for its writer
    if (fs::file_size(file, error) > kMostBytes || error) return std::nullopt;
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::string text;
    char buffer[4096];
    while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
        text.append(buffer, static_cast<std::size_t>(in.gcount()));
    }
    return in.bad() ? std::nullopt : std::optional<std::string>(std::move(text));
}

Lines Split(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

bool SameName(std::string_view a, std::string_view b) {
    return UpperCase(Trim(a)) == UpperCase(Trim(b));
}

// The name of a section's first line; none for any other line.
std::optional<std::string_view> SectionName(std::string_view line) {
    const std::string_view text = Trim(line);
    const std::size_t end = text.find(']');
    if (text.empty() || text.front() != '[' || end == std::string_view::npos) return std::nullopt;
    return text.substr(1, end - 1);
}

// The value of a line that sets `key`; none for any other line.
std::optional<std::string_view> ValueOf(std::string_view line, std::string_view key) {
    const std::string_view text = Trim(line);
    const std::size_t equals = text.find('=');
    if (text.empty() || text.front() == ';' || equals == std::string_view::npos) return std::nullopt;
    if (!SameName(text.substr(0, equals), key)) return std::nullopt;
    return Trim(text.substr(equals + 1));
}

// The lines of the first section of that name, without its header; [size, size) if there is none.
struct Range {
    std::size_t begin;
    std::size_t end;
    bool found;
};

Range FindSection(const Lines& lines, std::string_view section) {
    const auto isHeader = [](const std::string& line) { return SectionName(line).has_value(); };
    const auto isSought = [&](const std::string& line) {
        const auto name = SectionName(line);
        return name && SameName(*name, section);
    };
    const auto header = std::find_if(lines.begin(), lines.end(), isSought);
    if (header == lines.end()) return {lines.size(), lines.size(), false};
    const auto end = std::find_if(header + 1, lines.end(), isHeader);
    return {static_cast<std::size_t>(header + 1 - lines.begin()),
            static_cast<std::size_t>(end - lines.begin()), true};
}

// Index of the line in the range that sets `key`; the range's end if none does.
std::size_t FindKey(const Lines& lines, const Range& range, std::string_view key) {
    std::size_t line = range.begin;
    while (line < range.end && !ValueOf(lines[line], key)) ++line;
    return line;
}

// A new line goes in front of the blank lines that part the section from the next one.
std::size_t PlaceForNewLine(const Lines& lines, const Range& range) {
    std::size_t line = range.end;
    while (line > range.begin && Trim(lines[line - 1]).empty()) --line;
    return line;
}

bool FitsOneLine(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) == text.npos;
}

bool CanBeWritten(std::string_view section, std::string_view key, std::string_view value) {
    const bool fit = FitsOneLine(section) && FitsOneLine(key) && FitsOneLine(value);
    const bool readBack =
        !Trim(key).empty() && key.find('=') == key.npos && section.find(']') == section.npos;
    return fit && readBack && Trim(key).front() != ';' && Trim(key).front() != '[';
}

void SetValue(Lines& lines, std::string_view section, std::string_view key, std::string_view value) {
    const std::string newLine = std::string(key).append("=").append(value).append("\r\n");
    if (!lines.empty() && lines.back().back() != '\n') lines.back() += "\r\n";
    Range range = FindSection(lines, section);
    if (!range.found) {
        lines.push_back(std::string("[").append(section).append("]\r\n"));
        range = {lines.size(), lines.size(), true};
    }
    const std::size_t line = FindKey(lines, range, key);
    if (line < range.end) {
        lines[line] = newLine;
    } else {
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(PlaceForNewLine(lines, range)), newLine);
    }
}

}  // namespace

std::string ReadProfileText(const fs::path& file, std::string_view section, std::string_view key,
                            std::string_view defaultValue) {
    const Lines lines = Split(ReadText(file).value_or(""));
    const Range range = FindSection(lines, section);
    const std::size_t line = FindKey(lines, range, key);
    return std::string(line < range.end ? *ValueOf(lines[line], key) : defaultValue);
}

bool WriteProfileText(const fs::path& file, std::string_view section, std::string_view key,
                      std::string_view value) {
    if (!CanBeWritten(section, key, value)) return false;
    const std::optional<std::string> text = ReadText(file);
    if (!text) return false;
    Lines lines = Split(*text);
    SetValue(lines, section, key, value);
    std::error_code error;
    fs::create_directories(file.parent_path(), error);  // of a new home; the write tells a failure
    return WriteFileAtomically(file, Join(lines, ""));
}

}  // namespace jogeon
