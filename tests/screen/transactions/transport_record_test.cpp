// The two blocks that cross the transport: the request record and the reply record.

#include <gtest/gtest.h>

#include "screen/transactions/reply_record.h"
#include "screen/transactions/request_record.h"
#include "tests/screen/support/bytes.h"

namespace jogeon {
namespace {

using test::Hex;

// A request "Zab" of window 0x12345678 with major id 7 and key 0x11.
std::string NormalRequest() {
    return Hex("54 08 00 00 07 11") + "pisoscop" + Hex("00") + "            " +
           Hex("0A000000 01000000"
               "00 000000 7B000000 7F000000 7F000000"
               "00 000000 7F000000 81000000 81000000"
               "00 000000 81000000 83000000 83000000"
               "00 000000 00000000 00000000 00000000"
               "00 000000 83000000 85000000 85000000"
               "03000000 85000000"
               "78563412 0000 0000 0100") +
           std::string("Zab\0", 4);
}

TEST(RequestRecord, NormalRequestByteForByte) {
    EXPECT_EQ(BuildRequestRecord(7, 0x11, "pisoscop", 0x12345678, "Zab"), NormalRequest());
}

TEST(RequestRecord, ClosingMessageByteForByte) {
    const std::string expected = Hex("57 00 02 00 07 FF") + "PIBOFIDJ" + Hex("00") + std::string(12, '\0') +
                                 Hex("05000000 00000000") + std::string(80, '\0') + Hex("01000000 7B000000") +
                                 "1";
    EXPECT_EQ(BuildClosingRecord(7), expected);
}

TEST(RequestRecord, TheHostReadsBothBack) {
    const auto request = ParseRequestRecord(NormalRequest());
    ASSERT_TRUE(request);
    EXPECT_EQ(request->kind, 'T');
    EXPECT_EQ(request->majorId, 7);
    EXPECT_EQ(request->requestKey, 0x11);
    EXPECT_EQ(request->transaction, "pisoscop");
    EXPECT_EQ(request->window, 0x12345678u);
    EXPECT_EQ(request->payload, "Zab");

    const auto closing = ParseRequestRecord(BuildClosingRecord(9));
    ASSERT_TRUE(closing);
    EXPECT_EQ(closing->kind, 'W');
    EXPECT_EQ(closing->transaction, "PIBOFIDJ");
    EXPECT_EQ(closing->requestKey, 0xFF);
    EXPECT_EQ(closing->window, 0u);
    EXPECT_EQ(closing->payload, "1");
}

struct Lie {
    const char* what;
    std::size_t offset;
    const char* bytes;
};

TEST(RequestRecord, OffsetsThatLieGiveNothing) {
    const Lie lies[] = {
        {"data longer than the block", 115, "FFFFFF7F"},
        {"length and pointer overflow", 115, "FFFFFFFF"},
        {"data behind the end", 119, "FF000000"},
        {"window list behind the end", 39, "FF000000"},
        {"window list ends before it begins", 43, "7A000000"},
        {"storage ends before the window list", 47, "7B000000"},
        {"window list runs out of the block", 43, "FFFFFF7F"},
        {"half a window handle", 43, "7D000000"},
    };
    for (const Lie& lie : lies) {
        std::string block = NormalRequest();
        block.replace(lie.offset, 4, Hex(lie.bytes));
        EXPECT_FALSE(ParseRequestRecord(block)) << lie.what;
    }
    const std::string whole = NormalRequest();
    for (std::size_t size = 0; size < whole.size() - 1; ++size) {  // the NUL behind the payload isn't read
        EXPECT_FALSE(ParseRequestRecord(std::string_view(whole).substr(0, size))) << size;
    }
}

std::string ReplyOfFour() {
    return Hex("04000000") + std::string(135, '\0') +
           Hex("00 000000 9B000000 AB000000 AB000000"
               "00 000000 AB000000 AF000000 AF000000"
               "AF000000") +
           "T1ab";
}

TEST(ReplyRecord, ByteForByteAndBack) {
    EXPECT_EQ(BuildReplyRecord("T1ab"), ReplyOfFour());
    const std::string block = ReplyOfFour();
    const auto data = ReplyData(block);
    ASSERT_TRUE(data);
    EXPECT_EQ(*data, "T1ab");
    EXPECT_EQ(data->data(), block.data() + 175);
}

TEST(ReplyRecord, OffsetsThatLieGiveNothing) {
    const Lie lies[] = {
        {"length beyond the block", 0, "05000000"},   {"no packets", 147, "9B000000"},
        {"packets behind the end", 143, "FFFFFFFF"},  {"half a packet", 147, "A3000000"},
        {"packet without pointers", 163, "AB000000"}, {"pointers behind the end", 159, "00FFFFFF"},
        {"data behind the end", 171, "B0000000"},
    };
    for (const Lie& lie : lies) {
        std::string block = ReplyOfFour();
        block.replace(lie.offset, 4, Hex(lie.bytes));
        EXPECT_FALSE(ReplyData(block)) << lie.what;
    }
    const std::string whole = ReplyOfFour();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(ReplyData(std::string_view(whole).substr(0, size))) << size;
    }
}

}  // namespace
}  // namespace jogeon
