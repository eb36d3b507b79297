// Writes a plain worksheet file (.xls) with no spreadsheet program: numbers as numbers, texts as CP949 bytes.
//
// Relies on an atomic file: the sheet stands at its path when Close says so, and until then what stood there
// before.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "screen/files/atomic_file.h"

namespace jogeon {

class XlsWriter {
public:
    enum Alignment : std::uint8_t { kLeft = 1, kCentre = 2, kRight = 3 };
    enum Border : std::uint8_t { kNoBorder = 0, kBottom = 0x40, kAllSides = 0x78 };

    XlsWriter() = default;
    XlsWriter(const XlsWriter&) = delete;
    XlsWriter& operator=(const XlsWriter&) = delete;
    virtual ~XlsWriter() = default;  // a sheet that is still open is discarded

    // Begins a sheet; one that is open is closed first. 1, or 0 if no file may be written at `path`.
    int Open(const std::filesystem::path& path);

    // Ends the sheet. True if the whole of it stands at its path; false if none was open or any write failed.
    bool Close();

    // Cells in any order, counted from 0; of an index the low 16 bits are written. A text ends at a NUL, or
    // at the last whole character within 255 bytes. Ignored while no sheet is open.
    void WriteLabel(int row, int col, std::string_view text);
    void WriteNumber(int row, int col, double value);

    // For all cells from now on.
    void SetAlignment(std::uint8_t alignment) { alignment_ = alignment; }
    void SetBorder(std::uint8_t border) { border_ = border; }

private:
    AtomicFile file_;
    std::uint8_t alignment_ = 0;
    std::uint8_t border_ = kNoBorder;
};

}  // namespace jogeon
