#include "screen/files/xls_writer.h"

#include <bit>
#include <initializer_list>
#include <string>

#include "screen/text/cp949.h"

namespace jogeon {
namespace {

// A record is its id, the length of the data behind and the data; all integers are little-endian.
enum RecordId : std::uint16_t {
    kNumber = 0x0003,
    kLabel = 0x0004,
    kEof = 0x000A,
    kDimensions = 0x0200,
    kBof = 0x0809,
};

// BOF, 16 bits each
constexpr std::uint16_t kVersion = 0x0200;
constexpr std::uint16_t kWorksheet = 0x0010;
constexpr std::uint16_t kBofEnd = 0;

// DIMENSIONS, 16 bits each. They don't tell the real content, which isn't known when they are written.
constexpr std::uint16_t kFirstRow = 0;
constexpr std::uint16_t kRowsEnd = 0xFFFF;
constexpr std::uint16_t kFirstColumn = 0;
constexpr std::uint16_t kColumnsEnd = 0x0100;
constexpr std::uint16_t kReserved = 0;

constexpr std::size_t kLongestLabel = 0xFF;  // its length is one byte

std::string LittleEndian(std::uint64_t value, int bytes) {
    std::string out;
    for (int i = 0; i < bytes; ++i) out.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    return out;
}

std::string Words(std::initializer_list<std::uint16_t> words) {
    std::string out;
    for (const std::uint16_t word : words) out += LittleEndian(word, 2);
    return out;
}

std::string Record(RecordId id, const std::string& data) {
    return Words({id, static_cast<std::uint16_t>(data.size())}) + data;
}

// What every cell record begins with: row, column and three bytes of attributes.
std::string CellHead(int row, int col, int attributes) {
    return Words({static_cast<std::uint16_t>(row), static_cast<std::uint16_t>(col)}) + Words({0}) +
           LittleEndian(static_cast<std::uint8_t>(attributes), 1);
}

}  // namespace

int XlsWriter::Open(const std::filesystem::path& path) {
    if (file_.IsOpen()) Close();
    if (!file_.Open(path)) return 0;
    file_.Write(Record(kBof, Words({kVersion, kWorksheet, kBofEnd})));
    file_.Write(Record(kDimensions, Words({kFirstRow, kRowsEnd, kFirstColumn, kColumnsEnd, kReserved})));
    return 1;
}

bool XlsWriter::Close() {
    file_.Write(Record(kEof, {}));
    return file_.Commit();
}

void XlsWriter::WriteLabel(int row, int col, std::string_view text) {
    const std::string_view label = CutToBytes(text.substr(0, text.find('\0')), kLongestLabel);
    file_.Write(Record(kLabel, CellHead(row, col, alignment_ | border_) + LittleEndian(label.size(), 1) +
                                   std::string(label)));
}

void XlsWriter::WriteNumber(int row, int col, double value) {
    file_.Write(Record(kNumber, CellHead(row, col, alignment_ | border_) +
                                    LittleEndian(std::bit_cast<std::uint64_t>(value), 8)));
}

}  // namespace jogeon
