// Our own colours, light and dark, all in one table.
//
// Whoever paints asks for a colour by what it is for, at the time he paints. What the desktop decides
// (window, highlight) comes from the widget's palette instead.
#pragma once

#include <cstddef>
#include <cstdint>

namespace jogeon {

// A colour as one number, red in the low byte: 0x00bbggrr.
using ColorNumber = std::uint32_t;

enum class Color {
    NoticeBack,
    NoticeText,
    NoticeEdge,
    GridText,
    GridRise,
    GridFall,
    GridOddRow,
    GridEvenRow,
    GridSelectedRow,
    GridLine,
    GridHeaderBack,
    GridHeaderText,
    GridHeaderLine,
    TabBack,
    TabText,
    TabSelectedBack,
    TabSelectedText,
    TabEdge,
    ControlFace,
    ControlEdge,
    ControlText,
    ControlFaintText,
    Accent,
    AccentText,
    ExpressionBack,
    FBFocusedRow,
    FBMovingRow,
    FBText,  // on a background that the desktop's own text can't be read on
    FBCheckFrame,
    FBCheckBack,
    FBCheckTick,
    FBCheckDisabledBack,
    FBCheckDisabledLight,
    FBCheckDisabledShade,
    FBDisabledArrow,
    ExpressionOperator,
    ExpressionLetter,
    ExpressionBracket,
    TreeFolder,
    TreeFolderFront,
    TreeFolderEdge,
    ScreenBack,        // behind the controls of a screen
    SequenceMark,      // behind the letter of a condition that the sequential search has reached
    SequenceMarkText,  // that letter, which the focused row leaves as it is
    FBHeaderBack,      // of a grid whose owner has chosen none, as the lines below
    FBLine,
    HostGridLine,  // what the terminal's colour map gives for the lines of grids
    WatchNew,      // a stock that has come to match a watched set just now
    ChartBack,
    ChartGrid,
    ChartText,
    ChartRise,
    ChartFall,
    ChartVolume,
    ChartCrosshair,
    ChartMark,  // bars on which a condition set was true
    ChartLine1,
    ChartLine2,
    ChartLine3,
    ChartLine4,
    ChartLine5,
    ChartBand,
};
inline constexpr std::size_t kColors = static_cast<std::size_t>(Color::ChartBand) + 1;

enum class Theme { Light, Dark };

// The theme that ColorOf answers for, light at first. Of the program or module that calls it: each has its
// own.
void SetTheme(Theme theme);
Theme CurrentTheme();

ColorNumber ColorOf(Color color);
ColorNumber ColorOf(Color color, Theme of);

}  // namespace jogeon
