// Own screens in the real terminal: opened, told, closed, and the room they get.
#include "terminal/screens/screen_desk.h"

#include <QMenuBar>
#include <QScreen>
#include <QStyle>

#include <gmock/gmock.h>

#include "tests/terminal/support/live_terminal.h"

namespace jogeon::terminal {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What screen 0150 asks for, with its left pane and without: a small desktop has room for docks beside the
// latter only.
constexpr int kWide = 761;
constexpr int kNarrow = 585;

class ScreenDeskTest : public LiveTerminal {
protected:
    void SetUp() override {
        Open();
        ASSERT_EQ(Window().width(), kWide);
        LeftPaneButton().click();
        QApplication::processEvents();
        ASSERT_EQ(Window().width(), kNarrow);
    }

    // Of screen 0150, in the window.
    QRect Place() { return {Window().Frame().mapTo(&Window(), QPoint()), Window().Frame().size()}; }
    QAbstractButton& LeftPaneButton() { return *Window().Frame().findChild<QAbstractButton*>("21041"); }
};

TEST_F(ScreenDeskTest, AScreenOpensOnceAndIsBroughtToTheFrontAfterwards) {
    EXPECT_EQ(Screen("0615"), nullptr);
    Send(host::kOpenScreen, "0615");
    FakeScreen* chart = Screen("0615");
    ASSERT_NE(chart, nullptr);
    EXPECT_TRUE(chart->isVisible());
    EXPECT_EQ(Dock("0615").windowTitle(), "[0615] 가짜");
    Send(host::kOpenScreen, "0156");
    QApplication::processEvents();
    EXPECT_TRUE(chart->visibleRegion().isEmpty()) << "behind the new one";

    Send(host::kOpenScreenLinked, "0615");
    host::SendMessage(Window().Frame().Handle(), host::kResultDoubleClicked, 0, 0);
    QApplication::processEvents();
    EXPECT_EQ(Screen("0615"), chart);
    EXPECT_FALSE(chart->visibleRegion().isEmpty());
    EXPECT_THAT(chart->opened, ElementsAre(false, true, true));
    chart->Choose(" - 삼성전자");
    EXPECT_EQ(Dock("0615").windowTitle(), "[0615] 가짜 - 삼성전자");
}

TEST_F(ScreenDeskTest, AScreenThatNobodyHasIsARemarkAtTheFoot) {
    Send(host::kOpenScreen, "0999");
    EXPECT_EQ(Window().Foot().currentMessage(), "화면 [0999]은 이 터미널에 없습니다.");
}

TEST_F(ScreenDeskTest, TagsReachTheOpenScreensButNotTheirSender) {
    for (const char* number : {"0615", "0156"}) Send(host::kOpenScreen, number);
    FakeScreen& chart = *Screen("0615");
    FakeScreen& watch = *Screen("0156");
    Send(host::kTagChanged, "0\x1fReturnMainKey\x1fJCODE");
    EXPECT_THAT(chart.tags, ElementsAre("ReturnMainKey/JCODE"));
    EXPECT_THAT(watch.tags, ElementsAre("ReturnMainKey/JCODE"));

    watch.answers = true;
    emit chart.TagSet("ReturnMainKey", "J_ECODE");
    EXPECT_THAT(chart.tags, ElementsAre("ReturnMainKey/JCODE")) << "its own, and the answer to it";
    EXPECT_EQ(watch.tags.size(), 2u);
    Send(host::kTagChanged, "no tag");
    EXPECT_EQ(watch.tags.size(), 2u);
    emit watch.ScreenAsked("0130", true);
    EXPECT_THAT(Screen("0130")->opened, ElementsAre(true));
}

TEST_F(ScreenDeskTest, KeysAndMenuOpenScreensAndCloseThem) {
    QTest::keyClick(&Window(), Qt::Key_4, Qt::AltModifier);
    QTest::keyClick(&Window(), Qt::Key_3, Qt::AltModifier);
    ASSERT_NE(Screen("0615"), nullptr);
    ASSERT_NE(Screen("0156"), nullptr);
    EXPECT_TRUE(Screen("0156")->hasFocus());

    auto* menu = dynamic_cast<QMenu*>(Action("0615").parent());
    emit menu->aboutToShow();
    EXPECT_EQ(Action("open0615").text(), "[0615] 가짜");
    EXPECT_TRUE(Action("open0156").isChecked());
    EXPECT_FALSE(Action("open0150").isChecked());
    EXPECT_FALSE(Action("open0615").isChecked());
    EXPECT_EQ(Window().findChild<QAction*>("open0130"), nullptr);
    Action("open0615").trigger();
    EXPECT_TRUE(Screen("0615")->hasFocus());
    QTest::keyClick(&Window(), Qt::Key_1, Qt::AltModifier);
    EXPECT_TRUE(Window().Frame().isAncestorOf(QApplication::focusWidget()));

    Screen("0615")->Choose("!");
    CloseByItsButton("0615");
    EXPECT_EQ(Screen("0615"), nullptr);
    QTest::keyClick(&Window(), Qt::Key_4, Qt::AltModifier);
    EXPECT_EQ(Screen("0615")->choice, "!") << "kept, though closed";
    terminal_->Desk().CloseAll();
    EXPECT_THAT(Window().findChildren<OwnScreen*>(), IsEmpty());
    EXPECT_TRUE(Dock("0156").isHidden());
}

TEST_F(ScreenDeskTest, ARightClickOnTheWindowOffersNoDockWithoutAScreen) {
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(300, 5), Window().mapToGlobal(QPoint(300, 5)));
    QApplication::sendEvent(Window().menuWidget(), &click);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ScreenDeskTest, DocksGetTheRoomAndScreen0150WhatItAskedFor) {
    Send(host::kOpenScreen, "0615");
    QApplication::processEvents();
    const int bar = Window().style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent);
    EXPECT_EQ(Window().width(), kNarrow + bar + 150);
    EXPECT_EQ(Place().width(), kNarrow);
    EXPECT_EQ(Dock("0615").width(), 150);
    Send(host::kOpenScreen, "0156");
    EXPECT_EQ(Window().width(), kNarrow + bar + 150) << "the second lies behind the first";

    Window().resize(1600, 900);
    QApplication::processEvents();
    EXPECT_EQ(Place().size(), QSize(kNarrow, 548)) << "never stretched";
    EXPECT_EQ(Place().left(), 0);
    EXPECT_EQ(Dock("0156").width(), 1600 - kNarrow - bar);

    CloseByItsButton("0615");
    EXPECT_EQ(Window().width(), 1600);
    CloseByItsButton("0156");
    EXPECT_EQ(Window().width(), kNarrow) << "the room goes with the last dock";
}

TEST_F(ScreenDeskTest, TheWindowFollowsTheLeftPaneBesideADock) {
    Send(host::kOpenScreen, "0615");
    QApplication::processEvents();
    LeftPaneButton().click();
    QApplication::processEvents();
    EXPECT_EQ(Place().width(), kWide);
    LeftPaneButton().click();
    QApplication::processEvents();
    EXPECT_EQ(Place().width(), kNarrow) << "though the screen would bear more";
    Window().showFullScreen();
    QApplication::processEvents();
    const QSize full = Window().size();
    LeftPaneButton().click();
    QApplication::processEvents();
    EXPECT_EQ(Window().size(), full);
    EXPECT_EQ(Place().width(), kWide);
}

TEST_F(ScreenDeskTest, AScreenThatFitsBesideNothingFloatsAndResettingBringsDocksBack) {
    Send(host::kOpenScreen, "0156");
    CloseByItsButton("0156");
    Send(host::kOpenScreen, "0615");
    Dock("0615").setFloating(true);
    terminal_->Desk().ResetPlaces();
    QApplication::processEvents();
    EXPECT_FALSE(Dock("0615").isFloating());
    EXPECT_TRUE(Dock("0156").isHidden());
    EXPECT_EQ(Place().width(), kNarrow);
    CloseByItsButton("0615");

    LeftPaneButton().click();
    Send(host::kOpenScreen, "0130");
    EXPECT_TRUE(Dock("0130").isFloating());
    QApplication::processEvents();
    EXPECT_EQ(Window().width(), kWide);
    EXPECT_TRUE(Window().screen()->availableGeometry().contains(Dock("0130").geometry()));
}

}  // namespace
}  // namespace jogeon::terminal
