#include "screen/transactions/reply_record.h"

#include "screen/transactions/block_lists.h"

namespace jogeon {
namespace {

using namespace reply_record;

constexpr std::size_t kPointerSize = 4;

}  // namespace

std::string BuildReplyRecord(std::string_view data) {
    std::string block(kSize, '\0');
    PutLittleEndian(block, kDataLength.offset, static_cast<std::uint32_t>(data.size()), kDataLength.width);
    const std::size_t packet = block.size();
    AppendList(block, kPackets.offset, std::string(kListContainerSize, '\0'));

    const std::size_t pointer = block.size();
    AppendList(block, packet, std::string(kPointerSize, '\0'));
    PutLittleEndian(block, pointer, static_cast<std::uint32_t>(block.size()), kPointerSize);
    return block.append(data);
}

std::optional<std::string_view> ReplyData(std::string_view block) {
    const auto length = GetLittleEndian(block, kDataLength.offset, kDataLength.width);
    const auto packets = ListElements(block, kPackets.offset);
    if (!length || !packets || packets->size() < kListContainerSize) return std::nullopt;

    const auto packet = static_cast<std::size_t>(packets->data() - block.data());
    const auto pointers = ListElements(block, packet);
    if (!pointers) return std::nullopt;
    const auto pointer = GetLittleEndian(*pointers, 0, kPointerSize);
    if (!pointer) return std::nullopt;
    return Inside(block, *pointer, *length);
}

}  // namespace jogeon
