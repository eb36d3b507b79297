#include "screen/transactions/packet_writer.h"

#include <limits>

#include <gtest/gtest.h>

namespace jogeon {
namespace {

TEST(PacketWriter, FieldsAreCutOrFilledToTheirWidth) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutField("abc", 2);
    writer.PutField("", 3);
    writer.PutField("abc", 3);
    writer.PutField("abc", 5);
    writer.PutField(std::string_view("a\0b", 3), 3);
    EXPECT_EQ(writer.TotalLength(), 16u);
    EXPECT_EQ(writer.Detach(), "ab   abcabc  a  ");
    EXPECT_EQ(writer.TotalLength(), 0u);
    writer.PutChar('x');
    EXPECT_EQ(writer.Detach(), "x");
}

TEST(PacketWriter, OtherPutsAddExactlyWhatTheyAreGiven) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutChar('T');
    writer.PutFill('0', 2);
    writer.PutBytes("a\0b", 3);
    writer.PutFormat("%04d%.8x", 12345, 0xABCu);
    EXPECT_EQ(writer.Detach(), std::string("T00a\0b", 6) + "1234500000abc");
}

TEST(PacketWriter, LengthsAreSixteenBitNumbers) {
    PacketWriter writer(kPayloadBlockHint);
    const std::string bytes(65538, 'x');
    writer.PutBytes(bytes.data(), bytes.size());
    writer.PutField("abc", 65536);
    EXPECT_EQ(writer.Detach(), "xx");
}

TEST(PacketWriter, OutOfMemoryLeavesItUntouched) {
    PacketWriter writer(kPayloadBlockHint);
    writer.PutField("kept", 4);
    EXPECT_EQ(writer.PutFill(' ', std::numeric_limits<std::size_t>::max()), 0);
    EXPECT_EQ(writer.Detach(), "kept");
}

}  // namespace
}  // namespace jogeon
