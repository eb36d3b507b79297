// The screen under a light and a dark desktop: what it looks like, and that a change leaves nothing behind.
#include <QAbstractButton>
#include <QComboBox>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "screen/fbgrid/fb_grid_widget.h"
#include "tests/screen/support/all_dialogs.h"
#include "tests/screen/support/desktop.h"
#include "tests/screen/support/images.h"

namespace jogeon::test {
namespace {

constexpr int kLetter = 1;  // column of the condition grid

class ThemeTest : public testing::Test {
protected:
    // What the desktop and the host's colour map say from now on.
    static void SetDesktop(TestHost& host, Theme theme, const QPalette& palette) {
        QApplication::setPalette(palette);
        for (const int index : {0, 0x34}) host.colors.byIndex[index] = ColorOf(Color::ScreenBack, theme);
        host.colors.byIndex[0x41] = ColorOf(Color::HostGridLine, theme);
    }

    static void Change(TestHost& host, Theme theme, const QPalette& palette) {
        SetDesktop(host, theme, palette);
        host.Screen().ReadHostColors();
    }

    // A set of the firm with a result, a sequence mark on its first row, and an indicator in the panel.
    static void Compose(TestHost& host) {
        host.Open();
        host.Reply("VE");
        auto& tree = host.Control<QTreeWidget>(21001);
        emit tree.itemDoubleClicked(tree.topLevelItem(tree.topLevelItemCount() - 1)->child(0), 0);
        host.Control<QComboBox>(21098).setCurrentIndex(3);
        host.Control<QAbstractButton>(21039).click();
        host.Reply("T1        0100010001000100019003K000660     181000  ");
        auto* indicator = tree.findItems("주가이평돌파", Qt::MatchExactly | Qt::MatchRecursive).value(0);
        ASSERT_TRUE(indicator);
        emit tree.itemClicked(indicator, 0);
    }

    static QImage Picture(TestHost& host) {
        QApplication::processEvents();
        return host.frame.grab().toImage();
    }

    const DesktopSettings settings_;
    const QPalette light_ = QApplication::palette();
};

TEST_F(ThemeTest, AChangeLeavesNothingOfTheOldTheme) {
    TestHost host;
    SetDesktop(host, Theme::Light, light_);
    Compose(host);
    const QImage before = Picture(host);
    Change(host, Theme::Dark, DarkPalette());
    const QImage dark = Picture(host);
    EXPECT_GT(LightSquares(before), 8000);
    EXPECT_EQ(0, LightSquares(dark));
    EXPECT_EQ(ColorOf(Color::SequenceMark, Theme::Dark),
              host.Control<CFBGrid>(16129).GetCell(1, kLetter).backColour);

    Change(host, Theme::Light, light_);
    EXPECT_TRUE(SamePixels(Picture(host), before, "light_again"));

    TestHost fresh;
    SetDesktop(fresh, Theme::Dark, DarkPalette());
    Compose(fresh);
    EXPECT_TRUE(SamePixels(Picture(fresh), dark, "dark_from_the_start"));
}

TEST_F(ThemeTest, DialogsAndTheListTabAreDarkToo) {
    TestHost host;
    SetDesktop(host, Theme::Dark, DarkPalette());
    host.Open();
    host.Control<QTabBar>(21162).setCurrentIndex(1);
    EXPECT_EQ(0, LightSquares(Picture(host)));
    ForEachDialog(host, [](QDialog& dialog) {
        EXPECT_EQ(0, LightSquares(dialog.grab().toImage())) << dialog.windowTitle().toStdString();
    });
}

// What the user has typed keeps its looks, in the other colours, and can still be taken back step by step.
TEST_F(ThemeTest, TheExpressionKeepsItsLooksAndItsHistory) {
    TestHost host;
    host.Open();
    auto& box = host.Control<ExpressionEdit>(21089);
    box.SetExpressionText("A ");
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_B);
    const auto formats = [&] { return box.document()->firstBlock().layout()->formats(); };
    const int steps = box.document()->availableUndoSteps();
    Change(host, Theme::Dark, DarkPalette());
    const QList<QTextLayout::FormatRange> dark = formats();
    EXPECT_EQ(ToQColor(ColorOf(Color::ExpressionLetter, Theme::Dark)),
              dark.first().format.foreground().color());
    EXPECT_EQ(QFont::Bold, dark.first().format.fontWeight());
    EXPECT_EQ(QFont::Normal, dark.last().format.fontWeight());
    EXPECT_EQ(steps, box.document()->availableUndoSteps());
    box.undo();
    EXPECT_EQ("A ", box.ExpressionText());
}

// The colours of rows are the user's own, whatever the theme; the texts on them can be read.
TEST_F(ThemeTest, TextsOnRowsOfTheUsersColourAreDarkOnLight) {
    TestHost host;
    SetDesktop(host, Theme::Dark, DarkPalette());
    Compose(host);
    auto& grid = host.Control<ResultGrid>(21104);
    grid.ClearSelection();
    grid.SetRowColors(0xffffff, 0xffffff);
    const QImage row = grid.viewport()->grab(QRect(0, 0, 100, grid.rowHeight(0))).toImage();
    int darkest = 255;
    for (int y = 0; y < row.height() - 1; ++y) {
        for (int x = 0; x < row.width() - 1; ++x) darkest = std::min(darkest, qGray(row.pixel(x, y)));
    }
    EXPECT_TRUE(NearlyWhite(row.pixel(1, 1)));
    EXPECT_LT(darkest, 120);
}

}  // namespace
}  // namespace jogeon::test
