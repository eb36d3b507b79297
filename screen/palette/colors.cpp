#include "screen/palette/colors.h"

#include <cstddef>
#include <iterator>

namespace jogeon {
namespace {

struct Entry {
    Color color;
    ColorNumber light;
    ColorNumber dark;
};

// In the order of Color.
constexpr Entry kTable[] = {
    {Color::NoticeBack, 0xf9f1e9, 0x40332b},
    {Color::NoticeText, 0x4a3c2e, 0xeee6df},
    {Color::NoticeEdge, 0xc8a98b, 0x78604d},
    {Color::GridText, 0x202020, 0xdedbd8},
    {Color::GridRise, 0x1e1ec8, 0x7c7cf4},
    {Color::GridFall, 0xc8541a, 0xf5ae74},
    {Color::GridOddRow, 0xffffff, 0x2d2824},
    {Color::GridEvenRow, 0xfaf6f3, 0x332d29},
    {Color::GridSelectedRow, 0xf9e8d5, 0x4e3823},
    {Color::GridLine, 0xe8e2dc, 0x3f3934},
    {Color::GridHeaderBack, 0xf2ece6, 0x3a342f},
    {Color::GridHeaderText, 0x4b3d32, 0xd4cdc6},
    {Color::GridHeaderLine, 0xd0c6bc, 0x4f4740},
    {Color::TabBack, 0xeee8e2, 0x27231f},
    {Color::TabText, 0x6e6056, 0xada39a},
    {Color::TabSelectedBack, 0xffffff, 0x2d2824},
    {Color::TabSelectedText, 0x8f4a14, 0xf0b87d},
    {Color::TabEdge, 0xc8beb4, 0x544c45},
    {Color::ControlFace, 0xffffff, 0x2d2824},
    {Color::ControlEdge, 0xc8beb4, 0x635a52},
    {Color::ControlText, 0x33291f, 0xe8e5e2},
    {Color::ControlFaintText, 0x8e847a, 0x8c837b},
    {Color::Accent, 0x8f4a14, 0xdb9e5c},
    {Color::AccentText, 0xffffff, 0x22180e},
    {Color::ExpressionBack, 0xe6f0f0, 0x232b2b},
    {Color::FBFocusedRow, 0xe7d7c6, 0x4e3823},
    {Color::FBMovingRow, 0xd6fff1, 0x1e4a3a},
    {Color::FBText, 0x000000, 0xe8e5e2},
    {Color::FBCheckFrame, 0x000000, 0xada39a},
    {Color::FBCheckBack, 0xffffff, 0x201c1a},
    {Color::FBCheckTick, 0x000000, 0xe8e5e2},
    {Color::FBCheckDisabledBack, 0xc0c0c0, 0x453f3a},
    {Color::FBCheckDisabledLight, 0xffffff, 0x645c55},
    {Color::FBCheckDisabledShade, 0x808080, 0x8c837b},
    {Color::FBDisabledArrow, 0xc0c0c0, 0x68605a},
    {Color::ExpressionOperator, 0x2d2dd0, 0x7b7bff},
    {Color::ExpressionLetter, 0x000000, 0xe8e5e2},
    {Color::ExpressionBracket, 0xd02d2d, 0xffa08a},
    {Color::TreeFolder, 0x6cc4ec, 0x4894b8},
    {Color::TreeFolderFront, 0x9ddcf7, 0x6cb0d0},
    {Color::TreeFolderEdge, 0x2f86b4, 0x2c6480},
    {Color::ScreenBack, 0xf4f1ef, 0x221e1b},
    {Color::SequenceMark, 0xc0c0c0, 0x68605a},
    {Color::SequenceMarkText, 0x180096, 0x78d8ff},
    {Color::FBHeaderBack, 0xd2d2d2, 0x3a342f},
    {Color::FBLine, 0x828282, 0x5a524a},
    {Color::HostGridLine, 0xd8d2cd, 0x453e38},
    {Color::WatchNew, 0xc4f3ff, 0x1f4450},
    {Color::ChartBack, 0xffffff, 0x1c1916},
    {Color::ChartGrid, 0xeeeae6, 0x352f2a},
    {Color::ChartText, 0x5e544b, 0xbdb3aa},
    {Color::ChartRise, 0x1e1ec8, 0x7c7cf4},
    {Color::ChartFall, 0xc8541a, 0xf5ae74},
    {Color::ChartVolume, 0xc8b39f, 0x78644f},
    {Color::ChartCrosshair, 0x83786e, 0xada39a},
    {Color::ChartMark, 0x007ed0, 0x4db8ff},
    {Color::ChartLine1, 0x9b56e0, 0xc48fff},
    {Color::ChartLine2, 0xd07f2f, 0xffb76a},
    {Color::ChartLine3, 0x1483c4, 0x66c7ff},
    {Color::ChartLine4, 0x5d9d3a, 0x94d36f},
    {Color::ChartLine5, 0xc65b7d, 0xff9cb7},
    {Color::ChartBand, 0xa08f7f, 0xaa9a8a},
};

constexpr bool InOrder() {
    for (std::size_t i = 0; i < std::size(kTable); ++i) {
        if (static_cast<std::size_t>(kTable[i].color) != i) return false;
    }
    return std::size(kTable) == kColors;
}
static_assert(InOrder());

Theme theme = Theme::Light;

}  // namespace

void SetTheme(Theme chosen) {
    theme = chosen;
}

Theme CurrentTheme() {
    return theme;
}

ColorNumber ColorOf(Color color, Theme of) {
    const Entry& entry = kTable[static_cast<std::size_t>(color)];
    return of == Theme::Dark ? entry.dark : entry.light;
}

ColorNumber ColorOf(Color color) {
    return ColorOf(color, theme);
}

}  // namespace jogeon
