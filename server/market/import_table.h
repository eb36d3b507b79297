// One file of an import while it is read: its lines, and what its header and its name tell.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "server/market/csv_fields.h"
#include "server/market/import_form.h"
#include "server/market/source_text.h"
#include "server/market/text_lines.h"

namespace jogeon::market {

class ImportTable {
public:
    // Reads the header. Throws MarketError when the file can't be read, its form is unknown, or its name
    // doesn't tell what a file of its form must: the code or the date.
    explicit ImportTable(const std::filesystem::path& path);

    const std::string& Name() const { return name_; }
    const TableHeader& Header() const { return header_; }
    const std::string& Code() const { return code_; }  // of a table of one stock
    int Date() const { return date_; }                 // of a table of one market day
    SourceText& Text() { return text_; }

    // Goes to the next line that isn't empty; false after the last one. Throws MarketError when the file
    // turns out to be damaged.
    bool Next();

    // Why the line can't be taken apart; empty when Line has all its fields.
    const std::string& LineFault() const { return lineFault_; }
    const CsvFields& Line() const { return line_; }
    std::string_view Get(Column column) const { return header_.Get(line_, column); }
    long LineNumber() const { return lines_.Number(); }
    std::uint64_t BytesRead() const { return lines_.BytesRead(); }

private:
    [[noreturn]] void Fail(const char* what) const;
    TableHeader ReadHeader();
    void ReadFileName(const std::string& fileName);

    std::string name_;
    TextLines lines_;
    SourceText text_;
    CsvFields line_;
    TableHeader header_;
    std::string code_;
    int date_ = 0;
    std::string lineFault_;
};

}  // namespace jogeon::market
