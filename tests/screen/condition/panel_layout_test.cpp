#include "screen/condition/panel_layout.h"

#include <gtest/gtest.h>

namespace jogeon {

// For messages of failed expectations.
static void PrintTo(const PanelRect& rect, std::ostream* out) {
    *out << rect.left << "," << rect.top << " to " << rect.right << "," << rect.bottom;
}

namespace {

using Rects = std::vector<PanelRect>;

CIndexField At(int type, const PanelRect& rect) {
    CIndexField field;
    field.m_nType = type;
    field.m_rcCur = rect;
    return field;
}

TEST(PanelLayoutTest, PlacesControls) {
    const PanelRect rect{10, 20, 60, 40};
    EXPECT_EQ(rect, ControlRect(At(kFieldLabel, rect)));
    EXPECT_EQ((PanelRect{10, 18, 60, 42}), ControlRect(At(kFieldEdit, rect)));
    EXPECT_EQ((PanelRect{10, 19, 60, 41}), ControlRect(At(kFieldSpin, rect)));
    EXPECT_EQ((PanelRect{10, 19, 60, 39}), ControlRect(At(kFieldList, rect)));
    EXPECT_EQ((PanelRect{0, 0, 482, 96}), ControlRect(At(kFieldLabel, {-9, -9, 32767, 32767})));
    EXPECT_TRUE(IsEmpty(ControlRect(At(kFieldLabel, {500, 0, 600, 20}))));
    EXPECT_TRUE(IsEmpty(ControlRect(At(kFieldLabel, {60, 20, 10, 40}))));
}

TEST(PanelLayoutTest, PlacesOptions) {
    const std::vector<std::string> three{"a", "b", "c"}, gap{"a", "", "c"};
    const std::tuple<int, PanelRect, std::vector<std::string>, Rects> cases[] = {
        {60, {8, 4, 50, 55}, three, {{8, 5, 50, 20}, {8, 22, 50, 37}, {8, 39, 50, 54}}},
        {60, {8, 4, 50, 34}, three, {{8, 4, 50, 14}, {8, 14, 50, 24}, {8, 24, 50, 34}}},
        {61, {0, 10, 90, 40}, three, {{0, 10, 30, 40}, {30, 10, 60, 40}, {60, 10, 90, 40}}},
        {61, {0, 10, 90, 41}, three, {{0, 10, 45, 30}, {45, 10, 90, 30}, {0, 30, 45, 50}}},
        {61, {0, 10, 90, 30}, gap, {{0, 10, 30, 30}, {30, 10, 45, 30}, {45, 10, 75, 30}}},
    };
    for (const auto& [type, rect, texts, places] : cases)
        EXPECT_EQ(places, OptionRects(At(type, rect), texts));
    EXPECT_TRUE(OptionRects(At(60, {0, 0, 9, 9}), {}).empty());
    for (const int type : {60, 61}) {
        for (const PanelRect& rect : {PanelRect{0, 0, 90, 90}, PanelRect{-32767, -32767, 32767, 32767},
                                      PanelRect{32767, 32767, -32767, -32767}}) {
            for (const PanelRect& place : OptionRects(At(type, rect), std::vector<std::string>(5000))) {
                EXPECT_TRUE(IsEmpty(place) ||
                            (place.left >= 0 && place.right <= 482 && place.top >= 0 && place.bottom <= 96));
            }
        }
    }
}

// A selector with two variants, a field for each with a label before it, a picture for the second.
TEST(PanelLayoutTest, TellsWhichFieldsCount) {
    FieldArray fields;
    const auto add = [&](int type, int id, bool stored, const PanelRect& rect) {
        fields.push_back(std::make_unique<CIndexField>(At(type, rect)));
        fields.back()->m_nId = id;
        fields.back()->m_bStored = stored;
    };
    add(0, 0, false, {});
    add(kFieldRadios, 10, true, {0, 0, 50, 40});
    add(kFieldLabel, 201, false, {60, 2, 90, 17});
    add(kFieldSpin, 60, true, {100, 0, 150, 20});
    add(kFieldLabel, 202, false, {60, 22, 90, 37});
    add(kFieldSpin, 61, true, {100, 20, 150, 40});
    add(kFieldPicture, 70, false, {60, 50, 150, 90});
    add(kFieldPicture, 71, false, {160, 50, 250, 90});
    EXPECT_EQ(std::vector<bool>(8, true), FieldsInUse(fields, 0));
    fields[1]->m_nRole = kRoleSelector;
    fields[1]->m_strVariantFields = "60|61^70|";
    EXPECT_EQ((std::vector<bool>{1, 1, 1, 1, 0, 0, 0, 1}), FieldsInUse(fields, 0));
    EXPECT_EQ((std::vector<bool>{1, 1, 0, 0, 1, 1, 1, 1}), FieldsInUse(fields, 1));
    EXPECT_EQ(std::vector<bool>(8, true), FieldsInUse(fields, 2));
    EXPECT_EQ(std::vector<bool>(8, true), FieldsInUse(fields, -1));
}

}  // namespace
}  // namespace jogeon
