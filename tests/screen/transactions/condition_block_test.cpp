#include "screen/transactions/condition_block.h"

#include <gtest/gtest.h>

#include "tests/screen/support/bytes.h"
#include "tests/screen/support/conditions.h"

namespace jogeon {
namespace {

using test::AddSelector;
using test::Blanks;
using test::Fields;
using test::MakeCondition;
using Roles = std::map<int, std::string>;

Roles AllRoles() {
    return {{10, "9"},  {20, "2x"}, {30, "7"},  {40, "5"},   {41, "20"},        {42, "120"}, {43, "1234"},
            {44, "44"}, {45, "45"}, {46, "46"}, {50, "a"},   {51, "b"},         {52, "c"},   {53, "d"},
            {54, "e"},  {55, "f"},  {56, "g"},  {60, "100"}, {61, "123456789"}, {62, "-3.5"}};
}

TEST(ConditionBlock, RoleLayoutsByteForByte) {
    const std::pair<const char*, std::string> cases[] = {
        {"0102030008", Fields("T01G010203012|2 7  5 20120123 44 45 46abcdefg      100123456789     -3.5")},
        {"0401030008", Fields("B01G040103012|2 7  5 20120123abcd      100123456789     -3.5") + Blanks(12)},
        {"0605010008", Fields("P01G060501012|2 7") + Blanks(55)},
        {"0803010008", Fields("R01G080301012|a 100") + Blanks(53)},
    };
    for (const auto& [key, block] : cases) {
        ASSERT_EQ(block.size(), kConditionBlockSize) << key;
        EXPECT_EQ(BuildConditionBlock(MakeCondition('G', key, 12, AllRoles())), block);
    }
}

TEST(ConditionBlock, EmptyAndMissingRolesLeaveBlanks) {
    const Roles empty = {{20, ""}, {30, ""}, {40, ""}, {50, ""}, {60, ""}};
    for (const char* key : {"0102030008", "0401030008", "0605010008", "0803010008", "0701010008"}) {
        for (const Roles& roles : {Roles{}, empty}) {
            const std::string block = BuildConditionBlock(MakeCondition('A', key, 3, roles));
            EXPECT_EQ(block.substr(10), "003" + Blanks(58)) << key;
        }
    }
}

TEST(ConditionBlock, FlagsSelectorAndLetter) {
    CIndexInfo condition = MakeCondition('C', "0605010008", 20, {});
    AddSelector(condition, 3);
    condition.m_bChecked = 0;
    condition.m_bShowValue = 1;
    EXPECT_EQ(BuildConditionBlock(condition), "P10C060501023" + Blanks(58));
}

TEST(ConditionBlock, AnotherFamilyHasFlagsAndLetterOnly) {
    for (const char* key : {"0201010008", "", "x"}) {
        EXPECT_EQ(BuildConditionBlock(MakeCondition('A', key, 12, AllRoles())), " 01A" + Blanks(67)) << key;
    }
}

struct FilterCase {
    int selected;
    Roles roles;
    const char* parameters;  // from byte 13 on, without the blanks behind
};

TEST(ConditionBlock, FilterLayoutFollowsItsOption) {
    const FilterCase cases[] = {
        {0, {{20, "1"}, {50, "1"}, {60, "500"}, {61, "9"}}, "11      500"},
        {0, {{20, "1"}, {50, "2"}, {60, "500"}, {61, "9"}}, "12               500"},
        {1, {{20, "1"}, {50, "1"}, {60, "500"}, {61, "900"}}, "13      500      900"},
        {2, {{60, "500"}, {61, "900"}}, " 4      500"},
        {3, {{60, "500"}, {61, "900"}}, " 5               900"},
        {4, {{20, "7"}, {60, "500"}}, "7"},
        {-1, {{20, "7"}, {60, "500"}}, "7"},
        // A missing role repeats the text of the role looked up before it.
        {0, {{20, "9x"}, {60, "500"}}, "99               500"},
        {0, {{50, "1"}}, " 1        1"},
        {1, {{20, "8"}, {61, "900"}}, "83        8      900"},
        {3, {{20, "8"}}, "85                 8"},
        {0, {{50, ""}, {60, "500"}}, "                 500"},
        {1, {{60, "1234567890"}, {61, "2"}}, " 3123456789        2"},
    };
    for (const FilterCase& c : cases) {
        CIndexInfo condition = MakeCondition('A', "0701010008", 40, c.roles);
        AddSelector(condition, c.selected);
        std::string expected = "F01A070101040" + std::string(c.parameters);
        expected.resize(kConditionBlockSize, ' ');
        EXPECT_EQ(BuildConditionBlock(condition), expected) << c.selected << " " << c.parameters;
    }
}

TEST(ConditionBlock, FilterNumberLosesTheOptionEvenUncounted) {
    CIndexInfo condition = MakeCondition('A', "0701010008", 1, {});
    AddSelector(condition, 3);
    condition.m_bHasSelector = 0;
    EXPECT_EQ(BuildConditionBlock(condition).substr(10, 3), "-02");
}

TEST(ConditionBlock, OtherLengthsAndFamilies) {
    EXPECT_FALSE(DecodeConditionBlock(""));
    EXPECT_FALSE(DecodeConditionBlock(std::string(70, 'B')));
    EXPECT_FALSE(DecodeConditionBlock(std::string(72, 'B')));
    const auto unknown = DecodeConditionBlock(" 01A" + std::string(67, '1'));
    ASSERT_TRUE(unknown);
    EXPECT_TRUE(unknown->roles.empty());
}

}  // namespace
}  // namespace jogeon
