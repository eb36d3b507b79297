#include "tools/jogeond/result_printer.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace jogeon {
namespace {

struct CodeRange {
    std::uint32_t first;
    std::uint32_t last;
};

// The blocks that Unicode's table of East Asian widths calls wide or fullwidth, as far as CP949 reaches.
constexpr CodeRange kWide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
                               {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}};

// The code point that begins at `at`, which moves behind it. Relies on well-formed UTF-8, and only comes out
// with a wrong number where it isn't.
std::uint32_t NextCodePoint(std::string_view text, std::size_t& at) {
    const auto first = static_cast<unsigned char>(text[at++]);
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    std::uint32_t code = more == 0 ? first : first & (0x3Fu >> more);
    for (int i = 0; i < more && at < text.size(); ++i)
        code = (code << 6) | (static_cast<unsigned char>(text[at++]) & 0x3Fu);
    return code;
}

void Pad(std::ostream& out, std::size_t places) {
    out << std::string(places, ' ');
}

void PrintTable(std::ostream& out, const PrintedTable& table) {
    std::vector<std::size_t> widths;
    for (const PrintedColumn& column : table.columns) widths.push_back(DisplayWidth(column.title));
    for (const auto& row : table.rows)
        for (std::size_t i = 0; i < widths.size(); ++i) widths[i] = std::max(widths[i], DisplayWidth(row[i]));

    const auto printLine = [&](const auto& cellOf) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const std::string& cell = cellOf(i);
            const std::size_t gap = widths[i] - DisplayWidth(cell);
            if (i) out << "  ";
            if (table.columns[i].number) Pad(out, gap);
            out << cell;
            if (!table.columns[i].number && i + 1 < widths.size()) Pad(out, gap);
        }
        out << '\n';
    };
    printLine([&](std::size_t i) -> const std::string& { return table.columns[i].title; });
    for (const auto& row : table.rows) printLine([&](std::size_t i) -> const std::string& { return row[i]; });
}

std::string CsvField(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (char c : text) quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

void PrintCsv(std::ostream& out, const PrintedTable& table) {
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        out << (i ? "," : "") << CsvField(table.columns[i].title);
    out << '\n';
    for (const auto& row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i) out << (i ? "," : "") << CsvField(row[i]);
        out << '\n';
    }
}

std::string JsonString(const std::string& text) {
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escape[7];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
            quoted += escape;
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

// A number's cell holds plain digits; anything else, as a field of stars for one that didn't fit, is a text.
std::string JsonValue(const std::string& cell, bool number) {
    if (!number) return JsonString(cell);
    if (cell.empty()) return "null";
    return cell.find_first_not_of("-.0123456789") == std::string::npos ? cell : JsonString(cell);
}

void PrintJson(std::ostream& out, const PrintedTable& table) {
    out << '[';
    for (std::size_t r = 0; r < table.rows.size(); ++r) {
        out << (r ? ",\n {" : "\n {");
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            out << (i ? ", " : "") << JsonString(table.columns[i].title) << ": "
                << JsonValue(table.rows[r][i], table.columns[i].number);
        out << '}';
    }
    out << "\n]\n";
}

}  // namespace

std::size_t DisplayWidth(std::string_view utf8) {
    std::size_t width = 0;
    for (std::size_t at = 0; at < utf8.size();) {
        const std::uint32_t code = NextCodePoint(utf8, at);
        const bool wide = std::any_of(std::begin(kWide), std::end(kWide), [code](CodeRange range) {
            return code >= range.first && code <= range.last;
        });
        width += wide ? 2 : 1;
    }
    return width;
}

void Print(std::ostream& out, const PrintedTable& table, OutputFormat format) {
    switch (format) {
        case OutputFormat::Table:
            return PrintTable(out, table);
        case OutputFormat::Csv:
            return PrintCsv(out, table);
        case OutputFormat::Json:
            return PrintJson(out, table);
    }
}

}  // namespace jogeon
