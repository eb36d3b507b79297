#include "screen/palette/colors.h"

namespace jogeon {

// A switch rather than an array: the compiler then names a colour that has been forgotten.
ColorNumber ColorOf(Color color) {
    switch (color) {
        case Color::NoticeBack:
            return 0xf9f1e9;
        case Color::NoticeText:
            return 0x4a3c2e;
        case Color::NoticeEdge:
            return 0xc8a98b;
        case Color::GridText:
            return 0x202020;
        case Color::GridRise:
            return 0x2424d0;
        case Color::GridFall:
            return 0xc8541a;
        case Color::GridOddRow:
            return 0xffffff;
        case Color::GridEvenRow:
            return 0xfaf6f3;
        case Color::GridSelectedRow:
            return 0xf7e3cc;
        case Color::GridLine:
            return 0xe8e2dc;
        case Color::GridHeaderBack:
            return 0xf2ece6;
        case Color::GridHeaderText:
            return 0x4b3d32;
        case Color::GridHeaderLine:
            return 0xd0c6bc;
        case Color::TabBack:
            return 0xeee8e2;
        case Color::TabText:
            return 0x6e6056;
        case Color::TabSelectedBack:
            return 0xffffff;
        case Color::TabSelectedText:
            return 0x8f4a14;
        case Color::TabEdge:
            return 0xc8beb4;
        case Color::ControlFace:
            return 0xffffff;
        case Color::ControlEdge:
            return 0xc8beb4;
        case Color::ControlText:
            return 0x33291f;
        case Color::ControlFaintText:
            return 0xa89e94;
        case Color::Accent:
            return 0x8f4a14;
        case Color::AccentText:
            return 0xffffff;
        case Color::ExpressionBack:
            return 0xe6f0f0;
        case Color::FBFocusedRow:
            return 0xe7d7c6;
        case Color::FBMovingRow:
            return 0xd6fff1;
        case Color::FBText:
            return 0x000000;
        case Color::FBCheckFrame:
            return 0x000000;
        case Color::FBCheckBack:
            return 0xffffff;
        case Color::FBCheckTick:
            return 0x000000;
        case Color::FBCheckDisabledBack:
            return 0xc0c0c0;
        case Color::FBCheckDisabledLight:
            return 0xffffff;
        case Color::FBCheckDisabledShade:
            return 0x808080;
        case Color::FBDisabledArrow:
            return 0xc0c0c0;
        case Color::ExpressionOperator:
            return 0x2d2dd0;
        case Color::ExpressionLetter:
            return 0x000000;
        case Color::ExpressionBracket:
            return 0xd02d2d;
        case Color::TreeFolder:
            return 0x6cc4ec;
        case Color::TreeFolderFront:
            return 0x9ddcf7;
        case Color::TreeFolderEdge:
            return 0x2f86b4;
    }
    return 0;
}

}  // namespace jogeon
