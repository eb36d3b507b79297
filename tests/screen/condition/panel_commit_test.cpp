#include "screen/condition/panel_commit.h"

#include <gtest/gtest.h>

#include "screen/condition/panel_checks.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/fake_control.h"

namespace jogeon {
namespace {

using test::FakeControl;

// Everything that a control of any type can hold.
struct Controls {
    Controls() {
        entry.text = " 7 ";
        combo.text = "typed";
        combo.item = "second";
        second.check = 1;
    }

    void Attach(CIndexField& field) {
        switch (field.m_nType) {
            case kFieldList:
            case kFieldSectorList:
            case kFieldFreeCombo:
                field.m_pCombo = &combo;
                break;
            case kFieldRadios:
            case kFieldRadioRows:
                field.m_pRadios = {nullptr, &first, &second};
                break;
            default:
                field.m_pStatic = field.m_pEdit = field.m_pButton = field.m_pCheck = &entry;
        }
    }

    FakeControl entry, combo, first, second;
};

CIndexField Field(int type, int role = 60, const std::string& value = "old") {
    CIndexField field;
    field.m_nType = type;
    field.m_nId = field.m_nRole = role;
    field.m_strValue = value;
    field.m_nSelected = 0;
    field.m_strItems = "first|second|third";
    field.m_strCodes = "f|s|t";
    field.m_bStored = 1;
    return field;
}

CIndexField Bounded(double min, double max, const std::string& value, int role = 60) {
    CIndexField field = Field(kFieldEdit, role, value);
    field.m_bRange = 1;
    field.m_dMin = min;
    field.m_dMax = max;
    return field;
}

TEST(PanelCommitTest, ReadsControlsByType) {
    const std::tuple<int, int, int, const char*> cases[] = {
        {10, 1, 0, "old"},    {20, 1, 0, " 7 "},    {30, 1, 0, "7"},       {31, 1, 0, " 7 "},
        {40, 1, 1, "second"}, {41, 1, 1, "second"}, {41, -1, -1, "typed"}, {42, 1, 1, "second"},
        {50, 1, 0, " 7 "},    {51, 1, 0, "old"},    {60, 1, 2, "2"},       {61, 1, 2, "2"},
        {70, 1, 0, "old"}};
    for (const auto& [type, comboIndex, selected, value] : cases) {
        Controls controls;
        controls.combo.selected = comboIndex;
        CIndexField field = Field(type);
        controls.Attach(field);
        CommitValue(field);
        EXPECT_EQ(selected, field.m_nSelected) << type;
        EXPECT_EQ(value, field.m_strValue) << type;
        CIndexField without = Field(type);
        CommitValue(without);
        EXPECT_EQ(0, without.m_nSelected) << type;
        EXPECT_EQ("old", without.m_strValue) << type;
    }
}

TEST(PanelCommitTest, StartsWithAnOption) {
    const std::tuple<int, int, const char*, int> cases[] = {
        {40, -1, "1", 1}, {40, 2, "1", 2},   {60, -1, "", 0}, {60, 9, "1", 0},
        {60, -7, "1", 0}, {41, -1, "1", -1}, {41, 9, "1", 0}, {30, -1, "1", -1}};
    for (const auto& [type, selected, value, first] : cases) {
        CIndexField field = Field(type, 40, value);
        field.m_nSelected = selected;
        ChooseInitialOption(field);
        EXPECT_EQ(first, field.m_nSelected) << type << " " << selected;
    }
}

// With the text of the box; an empty one: it passes.
TEST(PanelCommitTest, ChecksBounds) {
    const std::tuple<double, double, const char*, const char*> cases[] = {
        {1, 999, "1", ""},
        {1, 999, "999", ""},
        {1, 999, "0.999", "값의 범위는 [1]부터 [999]까지입니다."},
        {1, 999, "abc", "값의 범위는 [1]부터 [999]까지입니다."},
        {1, 999, "nan", "값의 범위는 [1]부터 [999]까지입니다."},
        {1, 999, "inf", "값의 범위는 [1]부터 [999]까지입니다."},
        {0.5, 10, "11", "값의 범위는 [0.500]부터 [10.000]까지입니다."},
        {0, 0.5, "1", "값의 범위는 [0]부터 [1]까지입니다."},
        {-2.5, 1.5, "2", "값의 범위는 [-3]부터 [2]까지입니다."},
        {-0.4, 1, "2", "값의 범위는 [0]부터 [1]까지입니다."},
        {1, 99999999, "0", "값의 범위는 [1]부터 [99999999]까지입니다."}};
    for (const auto& [min, max, value, text] : cases) {
        const auto box = CheckRange(Bounded(min, max, value));
        EXPECT_EQ(text, box ? ToUtf8(box->text) : "") << value;
        if (!box) continue;
        EXPECT_EQ("값 범위", ToUtf8(box->caption));
        EXPECT_EQ(host::Icon::Information, box->icon);
    }
    EXPECT_FALSE(CheckRange(Field(kFieldEdit, 60, "-5")));
}

// What the packet would cut, or the service would read as something else.
TEST(PanelCommitTest, RefusesWhatCantTravel) {
    const std::tuple<int, const char*, const char*> cases[] = {
        {60, "-1.5", ""},
        {60, "123456789", ""},
        {60, "1234567890", "값은 9자까지 입력할 수 있습니다."},
        {60, "1|2", "값에는 | ^ ; 문자를 쓸 수 없습니다."},
        {60, "1;", "값에는 | ^ ; 문자를 쓸 수 없습니다."},
        {60, "12abc", "값을 숫자로 입력하십시오."},
        {60, "", "값을 숫자로 입력하십시오."},
        {60, ".", "값을 숫자로 입력하십시오."},
        {60, "1.2.3", "값을 숫자로 입력하십시오."},
        {40, "2.5", "값을 정수로 입력하십시오."},
        {30, "007", "값은 2자까지 입력할 수 있습니다."}};
    for (const auto& [role, value, text] : cases) {
        const auto box = CheckEntry(Bounded(-1e9, 1e9, value, role), "0101010008");
        EXPECT_EQ(text, box ? ToUtf8(box->text) : "") << value;
    }
    EXPECT_TRUE(CheckEntry(Bounded(0, 9999, "00100"), "0801010008"));
    EXPECT_FALSE(CheckEntry(Bounded(0, 9999, "00100"), "0401010008"));
    EXPECT_FALSE(CheckEntry(Field(kFieldList, 40, "1|2"), "0101010008"));
    CIndexField unstored = Bounded(0, 9, "a|b");
    unstored.m_bStored = 0;
    EXPECT_FALSE(CheckEntry(unstored, "0101010008"));
}

// An indicator with two variants: fields 60 and 62 in the first, 61 in the second; 62 isn't stored.
class PanelCommitFieldsTest : public testing::Test {
protected:
    PanelCommitFieldsTest() {
        head_.SetTemplates("over %s|under %s", "60|61");
        Add(CIndexField());
        Add(Field(kFieldRadios, kRoleSelector)).m_strVariantFields = "60^62|61";
        Add(Bounded(0, 10, "5", 60));
        Add(Bounded(0, 10, "50", 61));
        Add(Bounded(0, 10, "7", 62)).m_bStored = 0;
    }

    CIndexField& Add(const CIndexField& field) {
        fields_->push_back(std::make_unique<CIndexField>(field));
        return *fields_->back();
    }

    CIndexInfo head_;
    std::unique_ptr<FieldArray> fields_ = std::make_unique<FieldArray>();
    std::string preview_ = "before";
};

TEST_F(PanelCommitFieldsTest, ChecksTheChosenVariantOnly) {
    EXPECT_FALSE(CommitFields(head_, fields_, preview_));
    EXPECT_EQ("over 5", preview_);
    EXPECT_EQ(1, head_.m_bHasSelector);
    EXPECT_FALSE(head_.m_pFields);
    ASSERT_TRUE(fields_);

    (*fields_)[4]->m_strValue = "11";  // not stored, but checked
    auto fault = CommitFields(head_, fields_, preview_);
    ASSERT_TRUE(fault);
    EXPECT_EQ((*fields_)[4].get(), fault->field);

    (*fields_)[1]->m_nSelected = 1;
    fault = CommitFields(head_, fields_, preview_);
    ASSERT_TRUE(fault);
    EXPECT_EQ((*fields_)[3].get(), fault->field);
    EXPECT_EQ("over 5", preview_);

    (*fields_)[1]->m_nRole = 50;  // no selector: every field counts, in their order
    (*fields_)[2]->m_strValue = "-1";
    fault = CommitFields(head_, fields_, preview_);
    ASSERT_TRUE(fault);
    EXPECT_EQ((*fields_)[2].get(), fault->field);

    fields_.reset();
    EXPECT_FALSE(CommitFields(head_, fields_, preview_));
    EXPECT_EQ("[]", preview_);
}

}  // namespace
}  // namespace jogeon
