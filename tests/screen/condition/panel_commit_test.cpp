#include "screen/condition/panel_commit.h"

#include <gtest/gtest.h>

#include "screen/condition/panel_checks.h"
#include "screen/text/cp949.h"
#include "screen/transactions/condition_block.h"
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
    const struct {
        int type, comboIndex, selected;
        const char* value;
    } cases[] = {{10, 1, 0, "old"},    {20, 1, 0, " 7 "},    {30, 1, 0, "7"},       {31, 1, 0, " 7 "},
                 {40, 1, 1, "second"}, {41, 1, 1, "second"}, {41, -1, -1, "typed"}, {42, 1, 1, "second"},
                 {50, 1, 0, " 7 "},    {51, 1, 0, "old"},    {60, 1, 2, "2"},       {61, 1, 2, "2"},
                 {70, 1, 0, "old"}};
    for (const auto& c : cases) {
        Controls controls;
        controls.combo.selected = c.comboIndex;
        CIndexField field = Field(c.type);
        controls.Attach(field);
        CommitValue(field);
        EXPECT_EQ(c.selected, field.m_nSelected) << c.type;
        EXPECT_EQ(c.value, field.m_strValue) << c.type;
        CIndexField without = Field(c.type);
        CommitValue(without);
        EXPECT_EQ(0, without.m_nSelected) << c.type;
        EXPECT_EQ("old", without.m_strValue) << c.type;
    }
}

TEST(PanelCommitTest, StartsWithAnOption) {
    const struct {
        int type, selected;
        const char* value;
        int first;
    } cases[] = {{40, -1, "1", 1}, {40, 2, "1", 2},   {60, -1, "", 0}, {60, 9, "1", 0},
                 {60, -7, "1", 0}, {41, -1, "1", -1}, {41, 9, "1", 0}, {30, -1, "1", -1}};
    for (const auto& c : cases) {
        CIndexField field = Field(c.type, 40, c.value);
        field.m_nSelected = c.selected;
        ChooseInitialOption(field);
        EXPECT_EQ(c.first, field.m_nSelected) << c.type << " " << c.selected;
    }
}

TEST(PanelCommitTest, ChecksBounds) {
    const struct {
        double min, max;
        const char* value;
        const char* text;  // empty: it passes
    } cases[] = {{1, 999, "1", ""},
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
    for (const auto& c : cases) {
        const auto box = CheckRange(Bounded(c.min, c.max, c.value));
        EXPECT_EQ(c.text, box ? ToUtf8(box->text) : "") << c.value;
        if (!box) continue;
        EXPECT_EQ("값 범위", ToUtf8(box->caption));
        EXPECT_EQ(host::Icon::Information, box->icon);
    }
    EXPECT_FALSE(CheckRange(Field(kFieldEdit, 60, "-5")));
}

// What the packet would cut, or the service would read as something else.
TEST(PanelCommitTest, RefusesWhatCantTravel) {
    const struct {
        int role;
        const char* value;
        const char* text;  // empty: it passes
    } cases[] = {{60, "-1.5", ""},
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
    for (const auto& c : cases) {
        const auto box = CheckEntry(Bounded(-1e9, 1e9, c.value, c.role), "0101010008");
        EXPECT_EQ(c.text, box ? ToUtf8(box->text) : "") << c.value;
    }
    EXPECT_TRUE(CheckEntry(Bounded(0, 9999, "00100"), "0801010008"));
    EXPECT_FALSE(CheckEntry(Bounded(0, 9999, "00100"), "0401010008"));
    EXPECT_FALSE(CheckEntry(Field(kFieldList, 40, "1|2"), "0101010008"));
    CIndexField unstored = Bounded(0, 9, "a|b");
    unstored.m_bStored = 0;
    EXPECT_FALSE(CheckEntry(unstored, "0101010008"));
}

TEST(PanelCommitTest, KnowsTheSlotsOfThePacket) {
    for (const char* key : {"0101010008", "0401010008", "0601010008", "0801010008"}) {
        for (const auto& slot : condition_block::LayoutOf(condition_block::FamilyLetter(key))) {
            EXPECT_EQ(slot.field.width, SlotWidth(key, slot.role)) << key << " role " << slot.role;
        }
    }
    EXPECT_EQ(condition_block::kFilterFirst.width, SlotWidth("0701010008", 60));
    EXPECT_EQ(condition_block::kFilterSecond.width, SlotWidth("0701010008", 61));
    EXPECT_EQ(0u, SlotWidth("0101010008", kRoleSelector));
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

TEST_F(PanelCommitFieldsTest, BringsRoleValuesToTheFields) {
    using Values = std::map<int, std::string>;
    CIndexInfo info;
    info.m_RoleValues = {{20, "D"}};
    UpdateValues(*fields_, info);
    EXPECT_EQ((Values{{60, "5"}}), info.m_RoleValues);
    ASSERT_TRUE(info.m_pFields);
    EXPECT_EQ("10^0|60^5", info.GetValueText());

    (*fields_)[1]->m_nRole = 50;
    CIndexInfo plain;
    plain.m_RoleValues = {{20, "D"}};
    UpdateValues(*fields_, plain);
    EXPECT_EQ((Values{{20, "D"}, {50, "f"}, {60, "5"}, {61, "50"}}), plain.m_RoleValues);
}

}  // namespace
}  // namespace jogeon
