#include "screen/transactions/request_record.h"

#include "screen/transactions/block_lists.h"

namespace jogeon {
namespace {

using namespace request_record;

constexpr std::size_t kHandleSize = 4;
constexpr std::size_t kShortSize = 2;

void PutNumber(std::string& block, ByteField field, std::uint32_t value) {
    PutLittleEndian(block, field.offset, value, field.width);
}

std::string Element(std::uint32_t value, std::size_t width) {
    std::string bytes(width, '\0');
    PutLittleEndian(bytes, 0, value, width);
    return bytes;
}

// Appends the payload and whatever follows it, and notes where it stands.
void AppendData(std::string& block, std::string_view payload, std::string_view behind) {
    PutNumber(block, kDataLength, static_cast<std::uint32_t>(payload.size()));
    PutNumber(block, kDataPointer, static_cast<std::uint32_t>(block.size()));
    block.append(payload).append(behind);
}

std::uint8_t ByteAt(std::string_view block, ByteField field) {
    return static_cast<std::uint8_t>(block[field.offset]);
}

// The first element of the window list, 0 for an empty one; none for a list that lies.
std::optional<std::uint32_t> FirstWindow(std::string_view block) {
    const auto windows = ListElements(block, kWindowList.offset);
    if (!windows) return std::nullopt;
    if (windows->empty()) return 0;
    return GetLittleEndian(*windows, 0, kHandleSize);
}

}  // namespace

std::string BuildRequestRecord(std::uint8_t majorId, std::uint8_t requestKey, std::string_view transaction,
                               std::uint32_t window, std::string_view payload) {
    std::string block(kSize, '\0');
    Write(block, kKind, std::string_view(&kRequestKind, 1));
    PutNumber(block, kFlagA, 8);
    PutNumber(block, kMajorId, majorId);
    PutNumber(block, kRequestKey, requestKey);
    Write(block, kTransaction, transaction);
    Write(block, kReservedTextA, "");
    Write(block, kReservedTextB, "");
    PutNumber(block, kValueA, 10);
    PutNumber(block, kValueB, 1);
    AppendList(block, kWindowList.offset, Element(window, kHandleSize));
    AppendList(block, kListA.offset, Element(0, kShortSize));
    AppendList(block, kListB.offset, Element(0, kShortSize));
    AppendList(block, kListD.offset, Element(1, kShortSize));
    AppendData(block, payload, std::string_view("\0", 1));
    return block;
}

std::string BuildClosingRecord(std::uint8_t majorId) {
    std::string block(kSize, '\0');
    Write(block, kKind, std::string_view(&kClosingKind, 1));
    PutNumber(block, kFlagB, 2);
    PutNumber(block, kMajorId, majorId);
    PutNumber(block, kRequestKey, 0xFF);
    Write(block, kTransaction, "PIBOFIDJ");
    PutNumber(block, kValueA, 5);
    AppendData(block, "1", "");
    return block;
}

std::optional<CommRequestRecord> ParseRequestRecord(std::string_view block) {
    if (block.size() < kSize) return std::nullopt;
    const auto window = FirstWindow(block);
    const auto length = GetLittleEndian(block, kDataLength.offset, kDataLength.width);
    const auto pointer = GetLittleEndian(block, kDataPointer.offset, kDataPointer.width);
    const auto payload = Inside(block, *pointer, *length);
    if (!window || !payload) return std::nullopt;

    CommRequestRecord record;
    record.kind = block[kKind.offset];
    record.majorId = ByteAt(block, kMajorId);
    record.requestKey = ByteAt(block, kRequestKey);
    record.transaction = Read(block, kTransaction);
    record.window = *window;
    record.payload = *payload;
    return record;
}

}  // namespace jogeon
