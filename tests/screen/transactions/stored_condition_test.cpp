#include "screen/transactions/stored_condition.h"

#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include "screen/condition/token_list.h"
#include "screen/text/cp949.h"
#include "screen/transactions/condition_block.h"
#include "screen/transactions/condition_header.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/condition_files.h"

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
    const struct {
        char subType;
        const char* values;
    } cases[] = {
        {'1', "10^0|20^7|50^1|60^500|61^500"}, {'2', "10^0|20^7|50^2|60^900|61^900"},
        {'3', "10^1|20^7|50^|60^500|61^900"},  {'4', "10^2|20^7|50^|60^500|61^500"},
        {'5', "10^3|20^7|50^|60^900|61^900"},  {' ', "10^0|20^7|50^|60^7|61^7"},
    };
    for (const auto& c : cases) {
        const std::string block =
            std::string("F01A0701010407") + c.subType + "      500      900" + Blanks(38);
        const auto set = DecodeStoredCondition(Record("07", "01", block), catalogue_, length_);
        ASSERT_TRUE(set) << c.subType;
        EXPECT_EQ(set->m_Conditions[0]->GetValueText(), c.values) << c.subType;
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

// --- random sets over the real catalogue

class RandomSets {
public:
    RandomSets() {
        const char* home = std::getenv("JOGEON_HOME_DATA");
        catalogue.Load(std::filesystem::path(home ? home : "") / "System", {"001 sector", "102 other"});
        for (const auto& index : catalogue.Indexes()) {
            if (index->m_bLeaf) keys_.push_back(index->m_strKey);
        }
    }

    const std::vector<std::string>& Keys() const { return keys_; }

    // A condition with random values in all fields of its variant; `variant` counts from 0.
    std::unique_ptr<CIndexInfo> Condition(const std::string& key, int variant) {
        auto condition = catalogue.MakeCondition(key);
        std::string text = "10^" + std::to_string(variant);
        for (const auto& field : *condition->m_pFields) {
            if (!field->m_bStored || field->m_nRole == kRoleSelector) continue;
            // Two variants may give one role to fields of their own.
            const CIndexField* selector = FindFieldByRole(*condition->m_pFields, kRoleSelector);
            const auto active = [&] {
                CIndexField chosen = *selector;
                chosen.m_nSelected = variant;
                return ActiveFieldIds(chosen).contains(field->m_nId);
            };
            if (selector && !active()) continue;
            text += "|" + std::to_string(field->m_nRole) + "^" + Value(*field);
        }
        condition->SetValueText(text);
        condition->m_bChecked = Pick(2);
        condition->m_bShowValue = Pick(2);
        condition->m_chLetter = static_cast<char>('A' + Pick(26));
        return condition;
    }

    int Variants(const std::string& key) const {
        const auto condition = catalogue.MakeCondition(key);
        const CIndexField* selector = FindFieldByRole(*condition->m_pFields, kRoleSelector);
        return selector ? CTokenList(selector->m_strVariantFields, '|').GetCount() : 1;
    }

    int Pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    Catalogue catalogue;

private:
    std::string Value(const CIndexField& field) {
        const CTokenList codes(field.m_strCodes, '|');
        if (codes.GetCount() > 0) return codes.GetToken(Pick(codes.GetCount()));
        if (!field.m_bRange) return field.m_strValue;
        const int least = static_cast<int>(field.m_dMin);
        const int most = static_cast<int>(field.m_dMax);
        return std::to_string(Pick(4) == 0 ? most : std::uniform_int_distribution<int>(least, most)(random_));
    }

    std::mt19937 random_{20250430};
    std::vector<std::string> keys_;
};

TEST(StoredConditionRoundTrip, DecodingUndoesEncodingForEveryIndicatorVariantAndField) {
    RandomSets sets;
    ASSERT_GT(sets.Keys().size(), 40u) << "JOGEON_HOME_DATA must name the built home folder";
    for (int round = 0; round < 20; ++round) {
        for (const std::string& key : sets.Keys()) {
            for (int variant = 0; variant < sets.Variants(key); ++variant) {
                CSavedIndexInfo set;
                set.m_strKey = "42";
                set.Exp = "A";
                set.m_Conditions.push_back(sets.Condition(key, variant));
                set.m_Conditions.push_back(sets.Condition(sets.Keys()[round % sets.Keys().size()], 0));
                set.Count = 2;
                std::string record = BuildSavedConditionHeader(set, "trader");
                for (const auto& condition : set.m_Conditions) record += BuildConditionBlock(*condition);
                std::size_t length = 0;
                const auto decoded = DecodeStoredCondition(record, sets.catalogue, length);
                ASSERT_TRUE(decoded) << key;
                for (std::size_t i = 0; i < 2; ++i) {
                    const CIndexInfo& before = *set.m_Conditions[i];
                    const CIndexInfo& after = *decoded->m_Conditions[i];
                    EXPECT_EQ(before.m_strKey, after.m_strKey);
                    EXPECT_EQ(before.GetValueText(), after.GetValueText()) << key;
                    EXPECT_EQ(before.m_RoleValues, after.m_RoleValues) << key;
                    EXPECT_EQ(before.GetEffectiveIndexNo(), after.GetEffectiveIndexNo()) << key;
                    EXPECT_EQ(BuildConditionBlock(before), BuildConditionBlock(after)) << key;
                }
            }
        }
    }
}

}  // namespace
}  // namespace jogeon
