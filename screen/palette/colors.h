// The screen's own colours, all in one table.
//
// Whoever paints asks for a colour by what it is for, so that another table can take the light one's place.
// What the desktop decides (window, highlight) comes from the widget's palette instead.
#pragma once

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
};

ColorNumber ColorOf(Color color);

}  // namespace jogeon
