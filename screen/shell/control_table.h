// The controls of the condition screen: number, kind, place, caption and tooltip, in one table.
//
// Places are pixels of the form, which is 579 wide beside the left pane and its bar and 548 high. Texts are
// UTF-8; an empty caption is set by the screen while it runs, or is none.
#pragma once

#include <span>

namespace jogeon {

inline constexpr int kFormWidth = 579;
inline constexpr int kFormHeight = 548;

enum class ControlKind {
    Button,
    Toggle,  // a button whose picture shows a state
    Label,
    Value,  // a label for a number
    Radio,
    Combo,
    NumberEdit,  // an edit box with its spin buttons
    Expression,
    CodeList,  // the button with the published stocks
    Tabs,
    Grid,  // the result grid
    Progress,
    Area  // a placeholder that another window covers
};

struct ControlPlace {
    int left, top, width, height;
};

struct Control {
    int id;
    ControlKind kind;
    ControlPlace place;
    const char* caption;
    const char* tooltip;
};

// Numbers of the controls that the code names; the others are known by the table alone.
namespace control {
inline constexpr int kPanelArea = 21002;
inline constexpr int kNameLabel = 21019;
inline constexpr int kNewCondition = 21021;
inline constexpr int kDeleteSaved = 21022;
inline constexpr int kRenameSaved = 21023;
inline constexpr int kSave = 21024;
inline constexpr int kSaveAs = 21025;
inline constexpr int kChangeTarget = 21026;
inline constexpr int kTargetLabel = 21027;
inline constexpr int kBuy = 21028;
inline constexpr int kSell = 21029;
inline constexpr int kBarsAgoSet = 21030;
inline constexpr int kExpressionLabel = 21031;
inline constexpr int kEnlargeExpression = 21033;
inline constexpr int kParenthesize = 21034;
inline constexpr int kRemoveAll = 21035;
inline constexpr int kBarsAgoAdd = 21036;
inline constexpr int kExpressionHelp = 21037;
inline constexpr int kSaveConditionsAsSheet = 21038;
inline constexpr int kSearch = 21039;
inline constexpr int kRemoveParenthesis = 21040;
inline constexpr int kLeftPaneToggle = 21041;
inline constexpr int kProgressLabel = 21042;
inline constexpr int kBarsAgoSubtract = 21043;
inline constexpr int kProgress = 21044;
inline constexpr int kNextPage = 21046;
inline constexpr int kClearResults = 21047;
inline constexpr int kRealTime = 21048;
inline constexpr int kChart = 21049;
inline constexpr int kInterestSave = 21050;
inline constexpr int kSettings = 21051;
inline constexpr int kReceivedCount = 21052;
inline constexpr int kReceivedLabel = 21053;
inline constexpr int kTotalCount = 21054;
inline constexpr int kTotalLabel = 21055;
inline constexpr int kConditionGridArea = 21058;
inline constexpr int kExpression = 21089;
inline constexpr int kScope = 21098;
inline constexpr int kExpressionNot = 21100;
inline constexpr int kResultGrid = 21104;
inline constexpr int kResultTabs = 21105;
inline constexpr int kExpandMode = 21133;
inline constexpr int kCodeList = 21164;
inline constexpr int kReorderSaved = 22017;
inline constexpr int kImportSaved = 22018;
inline constexpr int kBarsAgoEdit = 17042;
inline constexpr int kConditionGrid = 16129;
}  // namespace control

std::span<const Control> ScreenControls();

}  // namespace jogeon
