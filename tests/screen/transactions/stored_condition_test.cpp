#include "screen/transactions/stored_condition.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "screen/transactions/condition_block.h"
#include "screen/transactions/condition_header.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/random_conditions.h"

namespace jogeon {
namespace {

using test::Blanks;
using test::Fields;
using test::Hex;

std::string Record(const std::string& number, const std::string& count, const std::string& blocks) {
    return Fields("trader  |") + number + Hex("B0 AD BC BC") + Blanks(76) +
           Fields("1|    |0|3|12345678901|2|") + Fields("0002|0AL902") + Blanks(594) +
           Fields("1010001|00|1|5|05|A&!B") + Blanks(96) + count + blocks;
}

// A plain indicator of family T: list code 2, period 5, 1 bar ago.
std::string PlainBlock() {
    return Fields("T|1|0|A|010101|011| | 1|  2|") + Blanks(25) + "        5" + Blanks(18);
}

// The second variant of a selector of family B: 3 times, 0 bars ago.
std::string VariantBlock() {
    return Fields("B|0|1|B|040102|021| | 0|") + Blanks(12 + 4 + 9) + "        3" + Blanks(21);
}

class StoredConditionTest : public testing::Test {
protected:
    StoredConditionTest() {
        test::WriteCatalogue(folder_.Path());
        catalogue_.Load(folder_.Path(), {});
    }

    test::TempFolder folder_;
    Catalogue catalogue_;
    std::size_t length_ = 0;
};

TEST_F(StoredConditionTest, DecodesARecordByteForByte) {
    ASSERT_EQ(PlainBlock().size(), kConditionBlockSize);
    ASSERT_EQ(VariantBlock().size(), kConditionBlockSize);
    const std::string record = Record("07", "02", PlainBlock() + VariantBlock());
    const auto set = DecodeStoredCondition(record + "the next", catalogue_, length_);
    ASSERT_TRUE(set);
    EXPECT_EQ(length_, 828u + 2 * 71);
    EXPECT_EQ(set->m_strKey, "07");
    EXPECT_EQ(ToUtf8(set->Name), "강세");
    EXPECT_EQ(set->TypePosition, 0);
    TargetFields target;
    target.Portfolio = 3;
    target.Recommend = 2;
    target.Acc = "12345678901";
    target.Group = {"0AL", "902"};
    target.Except1 = target.Except3 = target.Except7 = target.Except10 = 1;
    target.Month = 5;
    EXPECT_EQ(static_cast<const TargetFields&>(*set), target);
    EXPECT_EQ(set->Exp, "A&!B");
    EXPECT_EQ(set->Count, 2);
    ASSERT_EQ(set->m_Conditions.size(), 2u);
    const CIndexInfo& plain = *set->m_Conditions[0];
    EXPECT_EQ(plain.GetValueText(), "40^2|60^5|30^1");
    EXPECT_EQ(plain.m_RoleValues, (std::map<int, std::string>{{30, "1"}, {40, "2"}, {60, "5"}}));
    EXPECT_EQ(plain.m_bShowValue, 1);
    EXPECT_EQ(plain.m_bChecked, 0);
    EXPECT_EQ(plain.m_chLetter, 'A');
    EXPECT_EQ(set->m_Conditions[1]->GetValueText(), "10^1|61^3|30^0");
    EXPECT_EQ((*catalogue_.FindFieldsByKey("0101010008"))[2]->m_strValue, "20") << "the catalogue's own stay";
}

TEST_F(StoredConditionTest, BadRecordsAreNullAndTellWhereTheNextBegins) {
    const std::string unknown = "T10A999999011" + Blanks(58);
    struct Case {
        std::string what;
        std::string data;
        std::size_t length;
    };
    const std::string whole = Record("07", "02", PlainBlock() + VariantBlock());
    const Case cases[] = {
        {"unknown indicator", Record("07", "02", unknown + PlainBlock()) + whole, 970},
        {"cut in a block", whole.substr(0, 969), 969},
        {"cut in the header", whole.substr(0, 827), 827},
        {"nothing", "", 0},
        {"no number", Record("x7", "02", PlainBlock() + VariantBlock()), 970},
        {"no count", Record("07", "-1", PlainBlock()), 899},
        {"a count that lies", Record("07", "99", PlainBlock()), 899},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(DecodeStoredCondition(c.data, catalogue_, length_), nullptr) << c.what;
        EXPECT_EQ(length_, c.length) << c.what;
    }
    EXPECT_EQ(StoredConditionLength(Record("07", "00", "") + "x"), 828u);
}

TEST_F(StoredConditionTest, OddValuesStayInsideTheFields) {
    std::string far = VariantBlock();
    far.replace(10, 3, "999");  // an option that the selector doesn't have
    for (const std::string& block : {far, "B11A040102-99" + std::string(58, '\xff'),
                                     "X11A010101011" + std::string(58, '9'), "F11A010101011" + Blanks(58)}) {
        const auto set = DecodeStoredCondition(Record("07", "01", block), catalogue_, length_);
        ASSERT_TRUE(set) << block;
        set->m_Conditions[0]->BuildDescription();
        EXPECT_EQ(BuildConditionBlock(*set->m_Conditions[0]).size(), kConditionBlockSize);
    }
}

// What an 'F' block says in each of its forms, for an indicator whose every variant has all of its roles.
TEST_F(StoredConditionTest, FilterBlocksFollowTheirSubType) {
    test::WriteCatalogue(folder_.Path(), "[r]\n0701010008=f;40;C\n",
                         "[0701010008]\n0=;;;a|b|c|d;1|1|1|1\n"
                         "1=60;1;10;0;0;1;0;1;0;;;a|b|c|d;0|1|2|3;2^3^4^5|2^3^4^5|2^3^4^5|2^3^4^5\n"
                         "2=30;1;20;;0;1;0;1\n3=40;1;50;;0;1;0;1;0;;;x|y;1|2\n4=30;1;60;;0;1;0;1\n"
                         "5=30;1;61;;0;1;0;1\n");
    catalogue_.Load(folder_.Path(), {});
    const std::pair<char, const char*> cases[] = {
        {'1', "10^0|20^7|50^1|60^500|61^500"}, {'2', "10^0|20^7|50^2|60^900|61^900"},
        {'3', "10^1|20^7|50^|60^500|61^900"},  {'4', "10^2|20^7|50^|60^500|61^500"},
        {'5', "10^3|20^7|50^|60^900|61^900"},  {' ', "10^0|20^7|50^|60^7|61^7"},
    };
    for (const auto& [subType, values] : cases) {
        const std::string block = std::string("F01A0701010407") + subType + "      500      900" + Blanks(38);
        const auto set = DecodeStoredCondition(Record("07", "01", block), catalogue_, length_);
        ASSERT_TRUE(set) << subType;
        EXPECT_EQ(set->m_Conditions[0]->GetValueText(), values) << subType;
    }
}

TEST_F(StoredConditionTest, TwoIndicatorsShareAKeyOfSixCharacters) {
    const std::string fields = "[0401030008]\n0=;;;a;\n[0401030009]\n0=;;;b;\n";
    const std::string marked = "B01A040103430" + Blanks(15) + "VV" + Blanks(41);
    const std::string plain = "B01A040103430" + Blanks(58);
    const auto key = [&](const std::string& block) {
        const auto set = DecodeStoredCondition(Record("07", "01", block), catalogue_, length_);
        return set ? set->m_Conditions[0]->m_strKey : std::string();
    };
    test::WriteCatalogue(folder_.Path(), "[r]\n0401030008=a;430;C\n0401030009=b;430;S\n", fields);
    catalogue_.Load(folder_.Path(), {});
    EXPECT_EQ(key(marked), "0401030009");
    EXPECT_EQ(key(plain), "0401030008");
    test::WriteCatalogue(folder_.Path(), "[r]\n0401030009=b;430;C\n", fields);
    catalogue_.Load(folder_.Path(), {});
    EXPECT_EQ(key(plain), "0401030009") << "a catalogue with the second one only";
}

TEST(StoredConditionRoundTrip, DecodingUndoesEncodingForEveryIndicatorVariantAndField) {
    test::RandomConditions random(20250430);
    ASSERT_GT(random.Variants(), 40u);
    while (random.Made() < 40 * random.Variants()) {
        CSavedIndexInfo set;
        set.m_strKey = "42";
        set.Exp = "A";
        set.Count = 2;
        std::string record = BuildSavedConditionHeader(set, "trader");
        for (const char letter : {'A', 'Z'}) {
            set.m_Conditions.push_back(random.Make(letter));
            record += BuildConditionBlock(*set.m_Conditions.back());
        }
        std::size_t length = 0;
        const auto decoded = DecodeStoredCondition(record, random.catalogue, length);
        ASSERT_TRUE(decoded);
        for (std::size_t i = 0; i < 2; ++i) {
            const CIndexInfo& before = *set.m_Conditions[i];
            const CIndexInfo& after = *decoded->m_Conditions[i];
            SCOPED_TRACE(before.m_strKey + " " + before.GetValueText());
            ASSERT_EQ(before.m_strKey, after.m_strKey);
            ASSERT_EQ(before.GetValueText(), after.GetValueText());
            ASSERT_EQ(before.m_RoleValues, after.m_RoleValues);
            ASSERT_EQ(before.GetEffectiveIndexNo(), after.GetEffectiveIndexNo());
            ASSERT_EQ(BuildConditionBlock(before), BuildConditionBlock(after));
        }
    }
}

}  // namespace
}  // namespace jogeon
