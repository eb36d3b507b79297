#include "screen/transactions/store_request.h"

#include "screen/condition/saved_index_info.h"
#include "screen/text/bytes.h"
#include "screen/transactions/condition_block.h"
#include "screen/transactions/packet_writer.h"

namespace jogeon {
namespace {

// The letter and the version that every request begins with.
PacketWriter Begin(char letter, std::string_view version) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutChar(letter);
    writer.PutField(version, store_request::kVersion.width);
    return writer;
}

void PutWhole(PacketWriter& writer, const std::string& bytes) {
    writer.PutBytes(bytes.data(), bytes.size());
}

bool Fits(const SaveInputs& inputs, std::string_view name) {
    return !inputs.conditions.empty() && inputs.conditions.size() <= kMostConditions &&
           name.size() <= kMostNameBytes && inputs.expression.size() <= condition_header::kExp.width;
}

}  // namespace

std::optional<std::string> BuildSaveRequest(const SaveInputs& inputs, std::string_view name,
                                            std::string_view number) {
    if (!Fits(inputs, name)) return std::nullopt;
    const int count = static_cast<int>(inputs.conditions.size());
    std::string header = BuildConditionHeader(inputs.header, inputs.expression, count);
    Write(header, condition_header::kName, name);
    if (!number.empty()) Write(header, condition_header::kNumber, number);

    PacketWriter writer = Begin(number.empty() ? 'A' : 'E', inputs.version);
    PutWhole(writer, header);
    for (const CIndexInfo* condition : inputs.conditions) PutWhole(writer, BuildConditionBlock(*condition));
    return writer.Detach();
}

std::string BuildDeleteRequest(const CSavedIndexInfo& saved, std::string_view userId,
                               std::string_view version) {
    PacketWriter writer = Begin('D', version);
    PutWhole(writer, BuildSavedConditionHeader(saved, userId));
    for (const auto& condition : saved.m_Conditions) PutWhole(writer, BuildConditionBlock(*condition));
    const std::size_t blocks = saved.m_Conditions.size();
    if (blocks < store_request::kDeleteBlockPlaces) {
        writer.PutFill(' ', (store_request::kDeleteBlockPlaces - blocks) * kConditionBlockSize);
    }
    return writer.Detach();
}

std::string BuildReorderRequest(std::string_view userId, std::string_view version,
                                const std::vector<std::string>& numbers) {
    PacketWriter writer = Begin('C', version);
    writer.PutField(userId, reorder_request::kUserId.width);
    PutWhole(writer, ZeroPadded(static_cast<int>(numbers.size()), reorder_request::kCount.width));
    for (const std::string& number : numbers) writer.PutField(number, condition_header::kNumber.width);
    return writer.Detach();
}

}  // namespace jogeon
