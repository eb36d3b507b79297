#include "screen/condition/index_info.h"

#include <climits>

#include <gtest/gtest.h>

#include "screen/condition/condition_labels.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

CIndexField* AddField(CIndexInfo& info, int id, int type, int role, const std::string& value,
                      int stored = 1) {
    auto field = std::make_unique<CIndexField>();
    field->m_nId = id;
    field->m_nType = type;
    field->m_nRole = role;
    field->m_strValue = value;
    field->m_bStored = stored;
    return info.m_pFields->emplace_back(std::move(field)).get();
}

CIndexInfo WithHead(const char* formats, const char* argLists) {
    CIndexInfo info;
    info.m_nIndexNo = 20;
    info.m_pFields = std::make_unique<FieldArray>();
    info.m_pFields->push_back(std::make_unique<CIndexField>());
    info.SetTemplates(formats, argLists);
    return info;
}

// Variant 0 has the fields 2 and 4, variant 1 the fields 3 and 4.
CIndexInfo WithSelector(int selected) {
    CIndexInfo info = WithHead("%s shares|%s times", "2|3");
    CIndexField* selector = AddField(info, 1, kFieldRadios, kRoleSelector, "0", 0);
    selector->m_nSelected = selected;
    selector->m_strVariantFields = "2^4|3^4";
    AddField(info, 2, kFieldEdit, 60, "1000");
    AddField(info, 3, kFieldEdit, 61, "2");
    AddField(info, 4, kFieldEdit, kRoleBarsAgo, "1");
    info.m_bHasSelector = 1;
    return info;
}

TEST(IndexInfoTest, FormatsOnlyWhatItKnows) {
    const std::pair<const char*, const char*> cases[] = {{"[%s] over %s", "[A] over B"},
                                                         {"%s%s%s%s", "AB"},
                                                         {"100%% of %s", "100% of A"},
                                                         {"%d %n %*s %s%", "%d %n %*s A%"},
                                                         {"", ""},
                                                         {"%", "%"},
                                                         {"%%s %s", "%s A"}};
    for (const auto& [format, text] : cases) EXPECT_EQ(FormatDescription(format, {"A", "B"}), text) << format;
}

TEST(IndexInfoTest, DescribesTheSelectedVariant) {
    for (const auto& [selected, text] :
         std::map<int, std::string>{{0, "1000 shares"}, {1, "2 times"}, {-1, ""}, {2, ""}}) {
        CIndexInfo info = WithSelector(selected);
        EXPECT_TRUE(info.BuildDescription());
        EXPECT_EQ(info.GetDescription(), text) << selected;
        EXPECT_EQ(info.GetEffectiveIndexNo(), 20 + selected);
    }
    CIndexInfo bare;
    EXPECT_FALSE(bare.BuildDescription());
    EXPECT_EQ(bare.GetEffectiveIndexNo(), -1);
}

TEST(IndexInfoTest, SaysInWordsThatAFieldIsUnused) {
    CIndexInfo info = WithHead("%s/%s/%s", "1^2^9");
    AddField(info, 1, kFieldFreeCombo, 40, " -1")->m_strItems = "사용안함|5|10"_cp949;
    AddField(info, 2, kFieldFreeCombo, 41, "-1")->m_strItems = "5|10";
    info.BuildDescription();
    EXPECT_EQ(info.m_strDescription, "사용안함/-1/"_cp949);
    EXPECT_EQ(info.GetValueText(), "40^-1|41^-1");
}

TEST(IndexInfoTest, KeepsTheDescriptionWithMoreThan18Arguments) {
    std::string ids = "1";
    for (int i = 2; i <= 19; ++i) ids += "^1";
    CIndexInfo info = WithHead("new %s", ids.c_str());
    AddField(info, 1, kFieldEdit, 60, "x");
    info.m_strDescription = "old";
    EXPECT_TRUE(info.BuildDescription());
    EXPECT_EQ(info.m_strDescription, "old");
    info.SetTemplates("new %s", ids.substr(2));
    info.BuildDescription();
    EXPECT_EQ(info.m_strDescription, "new x");
}

TEST(IndexInfoTest, StoresTheValuesOfTheSelectedVariant) {
    EXPECT_EQ(WithSelector(0).GetValueText(), "10^0|60^1000|30^1");
    EXPECT_EQ(WithSelector(1).GetValueText(), "10^1|61^2|30^1");
    EXPECT_EQ(WithSelector(5).GetValueText(), "10^5");

    CIndexInfo plain = WithHead("", "");
    EXPECT_EQ(plain.GetValueText(), "");
    AddField(plain, 1, kFieldEdit, 40, " 5");
    AddField(plain, 2, kFieldEdit, 41, "6", 0);
    AddField(plain, 3, kFieldEdit, 0, "7");
    AddField(plain, 4, kFieldEdit, 60, "");
    EXPECT_EQ(plain.GetValueText(), "40^5|60^");
    plain.m_bHasSelector = 1;  // left over from another indicator
    EXPECT_EQ(plain.GetValueText(), "");
    EXPECT_EQ(CIndexInfo().GetValueText(), "");
}

TEST(IndexInfoTest, TakesAValueText) {
    CIndexInfo info = WithSelector(0);
    info.m_RoleValues[60] = "old";
    info.SetValueText("10^1|61^3|30^4|62^9|61^8");
    EXPECT_EQ(info.GetValueText(), "10^1|61^3|30^4");
    EXPECT_EQ(info.m_RoleValues, (std::map<int, std::string>{{30, "4"}, {61, "3"}}));
    info.BuildDescription();
    EXPECT_EQ(info.m_strDescription, "3 times");

    info.SetValueText("61^7");  // no option is chosen, so no field belongs to it
    EXPECT_TRUE(info.m_RoleValues.empty());

    CIndexInfo plain = WithHead("", "");
    AddField(plain, 1, kFieldEdit, 40, "5");
    AddField(plain, 2, kFieldEdit, 60, "6");
    plain.m_RoleValues[99] = "kept";
    plain.SetValueText("40^12");
    EXPECT_EQ(plain.m_RoleValues, (std::map<int, std::string>{{40, "12"}, {60, ""}, {99, "kept"}}));

    for (const char* damaged : {"", "|||", "^^|^", "10^99999999999999|60", "10^-5"}) {
        CIndexInfo victim = WithSelector(0);
        victim.SetValueText(damaged);
        victim.BuildDescription();
        EXPECT_EQ(victim.m_strDescription, "") << damaged;
    }
    info.m_nIndexNo = INT_MAX;
    info.SetValueText("10^99999999999999");
    EXPECT_EQ(info.GetEffectiveIndexNo(), INT_MAX);
}

TEST(IndexInfoTest, ChangesBarsAgoWithinItsRange) {
    const std::tuple<int, int, const char*, bool> cases[] = {
        {5, 1, "15", true},   {10, 2, "0", true},   {99, 0, "99", true},       {90, 1, "10", false},
        {11, 2, "10", false}, {-1, 7, "10", false}, {INT_MAX, 1, "10", false}, {INT_MIN, 2, "10", false}};
    for (const auto& [amount, mode, bars, taken] : cases) {
        CIndexInfo info = WithHead("%s ago", "1");
        AddField(info, 1, kFieldEdit, kRoleBarsAgo, "10");
        info.m_strDescription = "old";
        test::ScriptedQuestions questions;
        EXPECT_EQ(info.ApplyBarsAgo(amount, mode, questions), taken) << amount;
        EXPECT_EQ(info.GetValueText(), std::string("30^") + bars);
        EXPECT_EQ(info.m_strDescription, taken ? std::string(bars) + " ago" : "old");
        EXPECT_EQ(info.m_RoleValues.contains(30), taken);
        ASSERT_EQ(questions.boxes.size(), taken ? 0u : 1u);
        if (taken) continue;
        EXPECT_EQ(questions.boxes[0].text, "봉전기준 값의 범위는 0부터 99까지입니다."_cp949);
        EXPECT_EQ(questions.boxes[0].caption, "봉전기준 범위"_cp949);
    }

    CIndexInfo without = WithHead("described", "");
    test::ScriptedQuestions questions;
    EXPECT_TRUE(without.ApplyBarsAgo(500, 0, questions));
    EXPECT_EQ(without.m_strDescription, "described");
}

TEST(IndexInfoTest, CopiesOwnTheirFields) {
    CIndexInfo source = WithSelector(1);
    source.m_chLetter = 'C';
    source.m_RoleValues[61] = "2";
    CIndexInfo copy(source);
    source.SetValueText("10^0|60^5");
    EXPECT_EQ(copy.GetValueText(), "10^1|61^2|30^1");
    EXPECT_EQ(copy.m_chLetter, 'C');
    EXPECT_EQ(copy.m_RoleValues.at(61), "2");

    copy.CopyFields(copy.m_pFields.get());
    EXPECT_EQ(copy.GetValueText(), "10^1|61^2|30^1");
    copy = CIndexInfo();
    EXPECT_EQ(copy.m_pFields, nullptr);
    EXPECT_EQ(copy.m_bHasSelector, 1);
}

TEST(ConditionLabelTest, EveryGroupStandsAtItsIndex) {
    for (const auto& [index, text] : {std::pair(0u, "기준값 돌파"),
                                      {10, "이내"},
                                      {16, "일봉"},
                                      {27, "변수값2"},
                                      {39, "상승"},
                                      {49, "코스닥 종목"},
                                      {59, "내림차순"}})
        EXPECT_EQ(ToUtf8(ConditionLabelTable()[index]), text) << index;
}

}  // namespace
}  // namespace jogeon
