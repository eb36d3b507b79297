#include "screen/condition/index_field.h"

#include <gtest/gtest.h>

#include "tests/screen/support/fake_control.h"

namespace jogeon {
namespace {

using test::FakeControl;

CIndexField Options(int type, int role, int selected) {
    CIndexField field;
    field.m_nType = type;
    field.m_nRole = role;
    field.m_nSelected = selected;
    field.m_strValue = "typed";
    field.m_strItems = "first|second|";
    field.m_strCodes = "f|s|";
    return field;
}

TEST(IndexFieldTest, NamesTheRolesThatAreStored) {
    std::set<int> roles;
    for (int role = -1; role < 100; ++role) {
        if (IsValueRole(role)) roles.insert(role);
    }
    const std::set<int> stored = {10, 20, 30, 40, 41, 42, 43, 44, 45, 46,
                                  50, 51, 52, 53, 54, 55, 56, 60, 61, 62};
    EXPECT_EQ(roles, stored);
}

TEST(IndexFieldTest, GivesValueAndTextByTypeWithoutControls) {
    const std::tuple<int, int, int, const char*, const char*> cases[] = {{10, 20, -1, "", ""},
                                                                         {20, 20, -1, "typed", "typed"},
                                                                         {30, 60, -1, "typed", "typed"},
                                                                         {31, 60, 0, "typed", "typed"},
                                                                         {40, 40, 1, "s", "second"},
                                                                         {40, 40, -1, "", ""},
                                                                         {41, 40, 1, "typed", "typed"},
                                                                         {42, 40, 0, "f", "first"},
                                                                         {42, 40, 2, "", ""},
                                                                         {50, 20, -1, "typed", "typed"},
                                                                         {51, 50, -1, "0", "0"},
                                                                         {60, 50, 1, "s", "second"},
                                                                         {60, 10, -1, "0", ""},
                                                                         {61, 10, 1, "1", ""},
                                                                         {61, 50, 7, "", ""},
                                                                         {70, 20, -1, "typed", "typed"},
                                                                         {99, 20, 0, "", ""}};
    for (const auto& [type, role, selected, code, text] : cases) {
        const CIndexField field = Options(type, role, selected);
        EXPECT_EQ(field.GetValueCode(), code) << "type " << type << " option " << selected;
        EXPECT_EQ(field.GetDisplayText(), text) << "type " << type << " option " << selected;
    }
}

TEST(IndexFieldTest, PrefersItsLiveControls) {
    FakeControl control;
    control.text = "second";
    control.item = "shown";
    control.check = 1;

    const struct {
        int type;
        FieldControl* FieldControls::*place;
        const char* code;
        const char* text;
    } cases[] = {{kFieldSpin, &FieldControls::m_pEdit, "second", "second"},
                 {kFieldFreeCombo, &FieldControls::m_pCombo, "s", "second"},
                 {kFieldList, &FieldControls::m_pCombo, "f", "shown"}};
    for (const auto& c : cases) {
        CIndexField field = Options(c.type, 40, 0);
        field.*c.place = &control;
        EXPECT_EQ(field.GetValueCode(), c.code) << c.type;
        EXPECT_EQ(field.GetDisplayText(), c.text) << c.type;
    }

    CIndexField check = Options(kFieldCheck, 50, 0);
    check.m_pCheck = &control;
    EXPECT_EQ(check.GetValueCode(), "1");
    check.SetValue("0");
    EXPECT_EQ(control.check, 0);

    CIndexField radios = Options(kFieldRadios, 50, 1);
    radios.m_pRadios = {nullptr, &control};
    EXPECT_EQ(radios.GetDisplayText(), "<second>");
    EXPECT_EQ(CIndexField(radios).GetDisplayText(), "second");
    radios.m_nSelected = 0;
    EXPECT_EQ(radios.GetDisplayText(), "first");
}

TEST(IndexFieldTest, TakesStoredCodes) {
    const std::tuple<int, int, const char*, int, const char*> cases[] = {
        {30, 60, "s", 1, "s"},     {40, 40, "f", 0, "typed"}, {40, 40, "F", 0, "typed"},
        {41, 40, "f", 0, "f"},     {41, 40, "new", 1, "new"}, {60, 50, "none", 0, "typed"},
        {60, 10, "f", 1, "typed"}, {10, 20, "f", 1, "typed"}, {70, 20, "a.bmp", 1, "a.bmp"}};
    for (const auto& [type, role, code, selected, value] : cases) {
        CIndexField field = Options(type, role, 1);
        field.SetValue(code);
        EXPECT_EQ(field.m_nSelected, selected) << type << " " << code;
        EXPECT_EQ(field.m_strValue, value) << type << " " << code;
    }
}

TEST(IndexFieldTest, CopiesEverythingButControls) {
    FakeControl control;
    CIndexField source = Options(kFieldEdit, 60, 3);
    source.m_pEdit = &control;
    source.m_pRadios = {&control};
    source.m_bCreated = 1;
    source.m_dMax = 9.5;

    CIndexField target = Options(kFieldEdit, 60, 0);
    target.m_pEdit = &control;
    target.m_bCreated = 1;
    target = source;
    EXPECT_EQ(target.m_pEdit, nullptr);
    EXPECT_TRUE(target.m_pRadios.empty());
    EXPECT_EQ(target.m_bCreated, 0);
    EXPECT_EQ(target.m_nSelected, 3);
    EXPECT_EQ(target.m_dMax, 9.5);
}

}  // namespace
}  // namespace jogeon
