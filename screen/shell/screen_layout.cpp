#include "screen/shell/screen_layout.h"

namespace jogeon {
namespace {

// How a control follows a change of layout.
enum class Follows { ButtonRow, ResultGrid, ExpressionRow, ConditionGrid };

struct Moved {
    int id;
    Follows how;
};

using enum Follows;

// In the order of the saved rectangles.
constexpr Moved kMoved[] = {
    {control::kScope, ButtonRow},
    {control::kSearch, ButtonRow},
    {control::kNextPage, ButtonRow},
    {control::kClearResults, ButtonRow},
    {control::kRealTime, ButtonRow},
    {control::kChart, ButtonRow},
    {control::kInterestSave, ButtonRow},
    {control::kSettings, ButtonRow},
    {control::kExpandMode, ButtonRow},
    {control::kResultGrid, ResultGrid},
    {control::kCodeList, ButtonRow},
    {control::kExpressionLabel, ExpressionRow},
    {control::kExpression, ExpressionRow},
    {control::kEnlargeExpression, ExpressionRow},
    {control::kExpressionNot, ExpressionRow},
    {control::kParenthesize, ExpressionRow},
    {control::kRemoveParenthesis, ExpressionRow},
    {control::kRemoveAll, ExpressionRow},
    {control::kExpressionHelp, ExpressionRow},
    {control::kConditionGridArea, ConditionGrid},
    {control::kSaveConditionsAsSheet, ExpressionRow},
};

// Everything above the button row. The spin buttons are part of the bars-ago edit.
constexpr int kConditionControls[] = {control::kNameLabel,
                                      control::kReorderSaved,
                                      control::kNewCondition,
                                      control::kDeleteSaved,
                                      control::kRenameSaved,
                                      control::kSave,
                                      control::kSaveAs,
                                      control::kImportSaved,
                                      control::kLeftPaneToggle,
                                      control::kChangeTarget,
                                      control::kTargetLabel,
                                      control::kBuy,
                                      control::kSell,
                                      control::kPanelArea,
                                      control::kConditionGridArea,
                                      control::kExpressionLabel,
                                      control::kExpression,
                                      control::kEnlargeExpression,
                                      control::kExpressionNot,
                                      control::kParenthesize,
                                      control::kRemoveParenthesis,
                                      control::kRemoveAll,
                                      control::kExpressionHelp,
                                      control::kSaveConditionsAsSheet,
                                      control::kBarsAgoSet,
                                      control::kBarsAgoAdd,
                                      control::kBarsAgoSubtract,
                                      control::kBarsAgoEdit};

// `rise` is how far the button row goes up when it stands alone.
ControlPlace ResultsOnlyPlace(Follows how, ControlPlace place, int rise) {
    if (how == ButtonRow || how == ResultGrid) place.top -= rise;
    if (how == ResultGrid) place.height += rise;
    return place;
}

ControlPlace LargeConditionsPlace(Follows how, ControlPlace place) {
    if (how != ConditionGrid) place.top += ScreenLayout::kShift;
    if (how == ResultGrid) place.height -= ScreenLayout::kShift;
    if (how == ConditionGrid) place.height += ScreenLayout::kShift;
    return place;
}

}  // namespace

void ScreenLayout::Start(int mode) {
    if (mode == kResultsOnly || mode == kLargeConditions) {
        SaveRects();
        Apply(mode);
    }
}

void ScreenLayout::Next() {
    if (expressionEnlarged_) ToggleExpression();
    switch (mode_) {
        case kNormalLayout:
            SaveRects();
            return Apply(kResultsOnly);
        case kResultsOnly:
            return Apply(kLargeConditions);
        default:
            return Apply(kNormalLayout);
    }
}

void ScreenLayout::ToggleExpression() {
    expressionEnlarged_ = !expressionEnlarged_;
    windows_.SetCaption(control::kEnlargeExpression, expressionEnlarged_ ? "▲" : "▼");
    ControlPlace place = windows_.Place(control::kExpression);
    place.height += expressionEnlarged_ ? kGrowth : -kGrowth;
    windows_.Move(control::kExpression, place);
    for (const Moved& moved : kMoved) {
        if (moved.how == ButtonRow) windows_.Show(moved.id, !expressionEnlarged_);
    }
}

void ScreenLayout::SaveRects() {
    static_assert(std::size(kMoved) == kMovedControls);
    for (std::size_t i = 0; i < kMovedControls; ++i) savedRects_[i] = windows_.Place(kMoved[i].id);
}

void ScreenLayout::Apply(int mode) {
    mode_ = mode;
    windows_.SetCaption(control::kExpandMode, mode == kResultsOnly ? "▼" : "▲");
    const int rise = savedRects_.front().top - windows_.Place(control::kNameLabel).top;
    for (std::size_t i = 0; i < kMovedControls; ++i) {
        ControlPlace place = savedRects_[i];
        if (mode == kResultsOnly) place = ResultsOnlyPlace(kMoved[i].how, place, rise);
        if (mode == kLargeConditions) place = LargeConditionsPlace(kMoved[i].how, place);
        windows_.Move(kMoved[i].id, place);
    }
    for (const int id : kConditionControls) {
        const bool empty = id == control::kPanelArea && !windows_.PanelHolds();
        windows_.Show(id, mode != kResultsOnly && !empty);
    }
}

}  // namespace jogeon
