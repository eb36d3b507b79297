#include "screen/transactions/condition_header.h"

#include <gtest/gtest.h>

#include "screen/condition/saved_index_info.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/bytes.h"

namespace jogeon {
namespace {

using test::Blanks;
using test::Fields;
using test::Hex;

TargetFields HoldingsTarget() {
    TargetFields target;
    target.Portfolio = 3;
    target.Acc = "123456789";
    target.Group = {"001", "0AL"};
    target.Except1 = target.Except4 = target.Except10 = 1;
    target.Month = 5;
    return target;
}

// The header of that target: a buy set "강세" with number 07 and two conditions.
std::string HoldingsHeader() {
    return Fields("trader1 |07") + Hex("B0 AD BC BC") + Blanks(76) + "2" + Blanks(4) +
           Fields("03|123456789  |0|0002|0010AL") + Blanks(594) + Fields("1001000|00|1|5|05|A&B") +
           Blanks(97) + "02";
}

HeaderSource HoldingsSource() {
    HeaderSource source;
    source.userId = "trader1";
    source.buy = true;
    source.target = HoldingsTarget();
    return source;
}

TEST(ConditionHeader, ByteForByteFromScreenAndFromSavedSet) {
    CSavedIndexInfo saved;
    static_cast<TargetFields&>(saved) = HoldingsTarget();
    saved.m_strKey = "07";
    saved.Name = "강세"_cp949;
    saved.TypePosition = 1;
    saved.Exp = "A&B";
    saved.Count = 2;
    HeaderSource source = HoldingsSource();
    source.currentSaved = &saved;

    ASSERT_EQ(HoldingsHeader().size(), kConditionHeaderSize);
    EXPECT_EQ(BuildConditionHeader(source, "A&B", 2), HoldingsHeader());
    EXPECT_EQ(BuildSavedConditionHeader(saved, "trader1"), HoldingsHeader());

    saved.TypePosition = 0;
    EXPECT_EQ(BuildSavedConditionHeader(saved, "trader1")[90], '1');
}

TEST(ConditionHeader, NameAndNumberFollowTheCurrentSet) {
    const std::tuple<bool, const char*, std::optional<std::string>, const char*, std::string> cases[] = {
        {true, "label", std::nullopt, "07", "kept"},       {true, "label", "given", "07", "given"},
        {false, "label", "given", "99", "label"},          {false, "", "given", "99", "given"},
        {false, "", std::nullopt, "99", "임시조건"_cp949},
    };
    CSavedIndexInfo saved;
    saved.m_strKey = "07";
    saved.Name = "kept";
    for (const auto& [isSaved, label, nameOverride, number, name] : cases) {
        HeaderSource source = HoldingsSource();
        source.currentSaved = isSaved ? &saved : nullptr;
        source.nameLabel = label;
        const std::string header = BuildConditionHeader(source, "A", 1, nameOverride);
        EXPECT_EQ(header.substr(8, 2), number);
        EXPECT_EQ(header.substr(10, 80), LeftIn(name, 80));
        EXPECT_EQ(SearchHandleOf(source.currentSaved), number);
    }
}

TEST(ConditionHeader, MonthsBothWays) {
    const std::pair<int, const char*> months[] = {{0, "0  "},  {3, "1  "}, {6, "2  "}, {9, "3  "},
                                                  {12, "4  "}, {1, "501"}, {5, "505"}, {11, "511"}};
    for (const auto& [month, bytes] : months) {
        ConditionHeader header;
        header.target.Month = month;
        const std::string encoded = EncodeConditionHeader(header);
        EXPECT_EQ(encoded.substr(723, 3), bytes);
        EXPECT_EQ(DecodeConditionHeader(encoded)->target.Month, month);
    }
    std::string odd = HoldingsHeader();
    odd[723] = '7';
    EXPECT_EQ(DecodeConditionHeader(odd)->target.Month, 0);
}

TEST(ConditionHeader, AccountIsSentForHoldingsOnly) {
    for (const int portfolio : {0, 1, 2, 3}) {
        ConditionHeader header;
        header.target.Portfolio = portfolio;
        header.target.Acc = "123";
        EXPECT_EQ(EncodeConditionHeader(header).substr(97, 11), LeftIn(portfolio > 1 ? "123" : "", 11));
    }
}

TEST(ConditionHeader, NothingLeavesItsField) {
    ConditionHeader header;
    header.userId = std::string(20, 'u');
    header.number = "123";
    header.name = std::string(100, 'n');
    header.exp = std::string(200, 'e');
    header.count = 123;
    header.target.Upjong = 77;
    header.target.Group.assign(250, "abc");
    const std::string encoded = EncodeConditionHeader(header);
    ASSERT_EQ(encoded.size(), kConditionHeaderSize);
    EXPECT_EQ(encoded.substr(0, 12), "uuuuuuuu12nn");
    EXPECT_EQ(encoded.substr(95, 2), "70");
    EXPECT_EQ(encoded.substr(109, 7), "0200abc");
    EXPECT_EQ(encoded.substr(710, 16), Fields("abc0000000000|0  "));
    EXPECT_EQ(encoded.substr(825), "e12");
}

TEST(ConditionHeader, DecodingUndoesEncoding) {
    const auto header = DecodeConditionHeader(HoldingsHeader() + "blocks follow");
    ASSERT_TRUE(header);
    EXPECT_EQ(EncodeConditionHeader(*header), HoldingsHeader());
    EXPECT_TRUE(header->target == HoldingsTarget());
    EXPECT_FALSE(DecodeConditionHeader(HoldingsHeader().substr(0, 827)));

    std::string lying = HoldingsHeader();
    lying.replace(109, 4, "9999");
    EXPECT_EQ(DecodeConditionHeader(lying)->target.Group.size(), 200u);
    lying.replace(109, 4, "-001");
    EXPECT_TRUE(DecodeConditionHeader(lying)->target.Group.empty());
}

}  // namespace
}  // namespace jogeon
