// Every text that the screen writes can be read on what it stands on, in both themes.
#include "screen/palette/contrast.h"

#include <string>

#include <gtest/gtest.h>

namespace jogeon {
namespace {

struct Pair {
    Color ink, back;
    double least;
};

using enum Color;

constexpr double kText = kTextContrast;
constexpr double kFaint = kFaintContrast;  // disabled texts, and the lines of a chart

constexpr Pair kPairs[] = {
    {ControlText, ControlFace, kText},
    {ControlText, ScreenBack, kText},
    {ControlText, TabBack, kText},
    {ControlText, ControlEdge, kText},  // a button held down
    {ControlText, GridSelectedRow, kText},
    {ControlText, GridHeaderBack, kText},
    {ControlText, ExpressionBack, kText},
    {ControlFaintText, ControlFace, kFaint},
    {ControlFaintText, ScreenBack, kFaint},
    {ControlFaintText, TabBack, kFaint},
    {Accent, ControlFace, kText},
    {AccentText, Accent, kText},
    {AccentText, ControlText, kText},
    {TabText, TabBack, kText},
    {TabSelectedText, TabSelectedBack, kText},
    {NoticeText, NoticeBack, kText},
    {GridText, GridOddRow, kText},
    {GridText, GridEvenRow, kText},
    {GridText, GridSelectedRow, kText},
    {GridRise, GridOddRow, kText},
    {GridRise, GridEvenRow, kText},
    {GridRise, GridSelectedRow, kText},
    {GridFall, GridOddRow, kText},
    {GridFall, GridEvenRow, kText},
    {GridFall, GridSelectedRow, kText},
    {GridHeaderText, GridHeaderBack, kText},
    {FBText, FBFocusedRow, kText},
    {FBText, FBMovingRow, kText},
    {FBText, FBHeaderBack, kText},
    {FBText, SequenceMark, kText},
    {SequenceMarkText, SequenceMark, kText},
    {SequenceMarkText, FBFocusedRow, kText},
    {FBCheckTick, FBCheckBack, kText},
    {FBCheckFrame, ControlFace, kFaint},
    {ExpressionLetter, ExpressionBack, kText},
    {ExpressionBracket, ExpressionBack, kText},
    {ExpressionOperator, ControlFace, kText},
    {ChartText, ChartBack, kText},
    {ChartRise, ChartBack, kFaint},
    {ChartFall, ChartBack, kFaint},
    {ChartCrosshair, ChartBack, kFaint},
    {ChartMark, ChartBack, kFaint},
    {ChartLine1, ChartBack, kFaint},
    {ChartLine2, ChartBack, kFaint},
    {ChartLine3, ChartBack, kFaint},
    {ChartLine4, ChartBack, kFaint},
    {ChartLine5, ChartBack, kFaint},
    {ChartBand, ChartBack, kFaint},
};

TEST(ContrastTest, TextsCanBeReadInBothThemes) {
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        for (const Pair& pair : kPairs) {
            EXPECT_GE(Contrast(ColorOf(pair.ink, theme), ColorOf(pair.back, theme)), pair.least)
                << "pair " << &pair - kPairs << (theme == Theme::Dark ? ", dark" : ", light");
        }
    }
    // In light both are given, and lie a trace below.
    EXPECT_GE(Contrast(ColorOf(ExpressionOperator, Theme::Dark), ColorOf(ExpressionBack, Theme::Dark)),
              kText);
}

// #777777 on white is the standard's own example of a grey that just misses 4.5.
TEST(ContrastTest, IsTheStandardsRatio) {
    EXPECT_NEAR(21, Contrast(0x000000, 0xffffff), 1e-9);
    EXPECT_NEAR(1, Contrast(0x123456, 0x123456), 1e-9);
    EXPECT_NEAR(4.48, Contrast(0xffffff, 0x777777), 0.005);
    EXPECT_NEAR(8.59, Contrast(0xff0000, 0xffffff), 0.005);  // blue: red is in the low byte
}

TEST(ContrastTest, AChosenBackgroundGetsTheInkThatReadsOnIt) {
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        SetTheme(theme);
        EXPECT_EQ(ColorOf(GridRise, Theme::Light), ReadableOn(0xc0ffff, GridRise));
        EXPECT_EQ(ColorOf(GridText, Theme::Dark), ReadableOn(0x401010, GridText));
    }
    SetTheme(Theme::Light);
}

}  // namespace
}  // namespace jogeon
