// What leads out of the screen, by real clicks and keys: sequential steps, links, lists, sheets.
#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/fbgrid/fb_grid_geometry.h"
#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/palette/colors_qt.h"
#include "screen/text/bytes.h"
#include "tests/screen/support/images.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A firm's set of three conditions with A and C checked first; and a set of one.
constexpr std::string_view kThreeConditions =
    "[00]\r\nName=세조건\r\nExp=A&!B|C\r\nCount=3\r\n"
    "00=0101010008;A;1;0;40^1|60^20|30^0;\r\n01=0601010008;B;1;0;;\r\n02=0601010008;C;1;0;;\r\n"
    "[01]\r\nName=한조건\r\nExp=A\r\nCount=1\r\n00=0601010008;A;1;0;;\r\n";

class LinksTest : public testing::Test {
protected:
    LinksTest() {
        WriteText(host.folder.Path() / "System/NorvikSaveIndex.dat", kThreeConditions);
        host.Open();
        host.Reply("VE");
        OpenFirmSet(0);
        host.journal.clear();
    }

    void OpenFirmSet(int number) {
        auto& tree = host.Control<QTreeWidget>(21001);
        emit tree.itemDoubleClicked(tree.topLevelItem(tree.topLevelItemCount() - 1)->child(number), 0);
    }
    void Press(int button) { QTest::mouseClick(&host.Control<QAbstractButton>(button), Qt::LeftButton); }
    QComboBox& Scopes() { return host.Control<QComboBox>(21098); }
    CFBGrid& Conditions() { return host.Control<CFBGrid>(16129); }
    ResultGrid& Results() { return host.Control<ResultGrid>(21104); }

    void ClickCell(int row, int col) {
        const auto rect = Conditions().Geometry().GetCellRect(row, col);
        QTest::mouseClick(Conditions().viewport(), Qt::LeftButton, {},
                          {rect->left + rect->width / 2, rect->top + rect->height / 2});
    }

    // Rows whose letter is painted on the mark's colour. No row has the focus, which covers it.
    std::string PaintedMarks() {
        Conditions().SetFocusedCellID({-1, -1});
        Conditions().viewport()->repaint();
        const QImage image = Conditions().viewport()->grab().toImage();
        std::string rows;
        for (int row = 1; row < Conditions().GetRowCnt(); ++row) {
            const auto rect = Conditions().Geometry().GetCellRect(row, kColumnLetter);
            const bool marked = image.pixelColor(rect->left + 2, rect->top + 2) == QColor(0xc0, 0xc0, 0xc0);
            if (marked) rows += std::to_string(row);
        }
        return rows;
    }

    // Takes a step of a sequential search, answered by one stock; gives what the step asked for.
    std::string Step() {
        Press(21039);
        const std::string payload = host.communication.LastPayload();
        if (payload.front() != 'T') return "nothing";
        host.Reply("T1        0500010001000100019003K000660     181000  ");
        return std::string(TrimRight(payload.substr(10 + 726, 100))) + " " + payload.substr(10 + 826, 2);
    }
    void ChooseSequential() { QTest::keyClick(&Scopes(), Qt::Key_End); }

    // Two stocks found by a search of everything.
    void Search() {
        Press(21039);
        host.Reply("T1        0500030002000200019003K000660     181000  Q035720     43000   ");
        host.journal.clear();
    }
    void ClickRow(int row, bool twice = false) {
        const QPoint at(Results().columnViewportPosition(1) + 5, Results().rowViewportPosition(row - 2) + 5);
        QTest::mouseClick(Results().viewport(), Qt::LeftButton, {}, at);
        if (twice) QTest::mouseDClick(Results().viewport(), Qt::LeftButton, {}, at);
    }
    std::string Code() { return host.links.tags[{"ReturnMainKey", "JCODE"}]; }

    TestHost host;
};

const Journal kLink{"set ReturnMainKey/JCODE", "set ReturnMainKey/J_ECODE", "notify 0 0|ReturnMainKey|JCODE"};

TEST_F(LinksTest, StepsOfASequentialSearchAreMarkedInTheList) {
    ChooseSequential();
    ASSERT_EQ(3, Scopes().currentIndex());
    for (const auto& [asked, marks] : std::vector<std::pair<std::string, std::string>>{
             {"A 01", "1"}, {"A&!B 02", "12"}, {"A&!B|C 03", "123"}, {"A 01", "1"}}) {
        EXPECT_EQ(asked, Step());
        EXPECT_EQ(marks, PaintedMarks());
        EXPECT_EQ(2, Results().GetRowCount()) << "each step replaces the one before";
    }
    auto& tabs = host.Control<QTabBar>(21105);
    EXPECT_EQ(1, tabs.count());
    EXPECT_EQ("[1]전체검색", tabs.tabText(0));
}

TEST_F(LinksTest, NeitherTheSameScopeAgainNorAFailureBeginsTheSequenceAnew) {
    ChooseSequential();
    Step();
    Scopes().showPopup();
    QTest::keyClick(Scopes().view(), Qt::Key_Return);
    EXPECT_EQ("1", PaintedMarks());
    Press(21039);
    host.Reply("T0");
    EXPECT_EQ("12", PaintedMarks());
    EXPECT_EQ("A&!B|C 03", Step());
}

// The focused row's own background covers that of the mark.
TEST_F(LinksTest, AMarkShowsOnTheFocusedRowToo) {
    const auto hasMarkText = [&](int row) {
        const auto rect = Conditions().Geometry().GetCellRect(row, kColumnLetter);
        const QImage cell =
            Conditions().viewport()->grab({rect->left, rect->top, rect->width, rect->height}).toImage();
        return HasNear(cell, cell.width() / 2, cell.height() / 2, ToQColor(Color::SequenceMarkText).rgb(),
                       cell.width());
    };
    ASSERT_EQ(1, Conditions().GetFocusedCellID().row);
    ChooseSequential();
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        SetTheme(theme);
        host.Screen().ReadHostColors();
        EXPECT_FALSE(hasMarkText(1));
        Step();
        EXPECT_TRUE(hasMarkText(1));
        EXPECT_FALSE(hasMarkText(2));
        QTest::keyClick(&Scopes(), Qt::Key_Home);
        ChooseSequential();
    }
    SetTheme(Theme::Light);
}

TEST_F(LinksTest, WhateverChangesTheSearchBeginsTheSequenceAnew) {
    const std::vector<std::pair<const char*, std::function<void()>>> resets = {
        {"another scope", [&] { QTest::keyClick(&Scopes(), Qt::Key_Home); }},
        {"cleared results", [&] { Press(21047); }},
        {"a new set, and another", [&] { Press(21021), OpenFirmSet(0); }},
        {"a checked condition", [&] { ClickCell(2, 0), ClickCell(2, 0); }},
        {"a shown value", [&] { ClickCell(2, 3); }},
        {"a moved condition", [&] { ClickCell(2, 6), ClickCell(2, 6); }},
        {"a typed letter", [&] { QTest::keyClick(&host.Control<ExpressionEdit>(21089), Qt::Key_Space); }},
        {"a button of the expression",
         [&] {
             host.Control<ExpressionEdit>(21089).Select({0, 1});
             Press(21100), Press(21100);
         }},
        {"another target", [&] { Press(21026); }},
        {"other columns", [&] { host.settings.changed = host::SettingsDialog::kReloadGrid, Press(21051); }},
        {"the expression's message",
         [&] { host::SendMessage(host::HandleOf(&host.Screen()), host::kExpressionChanged, 0, 0); }},
        {"the same set again", [&] { OpenFirmSet(0); }},
        {"another set", [&] { OpenFirmSet(1); }},
    };
    host.questions.answers = std::deque<host::Answer>(20, host::Answer::No);
    host.questions.onRun = [](const std::string&, void* dialog) {
        static_cast<QDialog*>(dialog)->accept();
        return true;
    };
    for (const auto& [what, reset] : resets) {
        SCOPED_TRACE(what);
        host.Control<ExpressionEdit>(21089).SetExpressionText("A and !B or C");
        QTest::keyClick(&Scopes(), Qt::Key_Home);
        ChooseSequential();
        Step();
        Step();
        ASSERT_EQ("12", PaintedMarks());
        reset();
        EXPECT_EQ("", PaintedMarks());
        ChooseSequential();
        EXPECT_EQ("A 01", Step());
    }
}

TEST_F(LinksTest, TheThemeRepaintsTheMarks) {
    ChooseSequential();
    Step();
    SetTheme(Theme::Dark);
    host.Screen().ReadHostColors();
    EXPECT_EQ(ColorOf(Color::SequenceMark), Conditions().GetCell(1, kColumnLetter).backColour);
    EXPECT_EQ(ColorOf(Color::SequenceMarkText), Conditions().GetCell(1, kColumnLetter).textColour);
    SetTheme(Theme::Light);
}

TEST_F(LinksTest, ARefusedExpressionGetsTheFocus) {
    const std::string tooLong = "A" + ReplaceAll(std::string(50, '.'), ".", " and !A");
    struct Case {
        const char* text;
        int button;
        bool steps;
    };
    const Case cases[] = {{"A and", 21039, false},         {"A and", 21039, true},
                          {"(A or C)", 21039, true},       {"A and", 21048, false},
                          {"A and", 21024, false},         {"A and", 21100, false},
                          {tooLong.c_str(), 21039, false}, {tooLong.c_str(), 21024, false}};
    host.questions.onRun = [](const std::string&, void* dialog) {
        auto* line = static_cast<QDialog*>(dialog)->findChild<QLineEdit*>();
        if (line) line->setText("이름");
        static_cast<QDialog*>(dialog)->accept();
        return true;
    };
    auto& box = host.Control<ExpressionEdit>(21089);
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.text) + " by " + std::to_string(c.button));
        QTest::keyClick(&Scopes(), c.steps ? Qt::Key_End : Qt::Key_Home);
        box.SetExpressionText(c.text);
        Scopes().setFocus();
        Press(c.button);
        EXPECT_NE('T', host.communication.LastPayload().front());
        EXPECT_EQ(&box, host.frame.focusWidget());
    }
}

// Published with each result: what found it, then the codes.
TEST_F(LinksTest, AResultIsPublishedWithItsConditionSet) {
    Press(21039);
    const std::string sent = host.communication.LastPayload().substr(10, 828 + 3 * 71);
    OpenFirmSet(1);  // what the screen shows by now doesn't matter
    host.journal.clear();
    host.Reply("T1        0500010001000100019003K000660     181000  ");
    EXPECT_THAT(host.journal, ElementsAre("set CS_RESULT/CONDSET", "publish 조건검색 000660"));
    EXPECT_EQ(sent, (host.links.tags[{"CS_RESULT", "CONDSET"}]));
    host.Reply("T0");
    EXPECT_EQ("", (host.links.tags[{"CS_RESULT", "CONDSET"}]));
}

TEST_F(LinksTest, RealTimeIsHandedOverWhileASearchIsOut) {
    Press(21039);
    host.journal.clear();
    Press(21048);
    EXPECT_THAT(host.journal, ElementsAre("set CS_REAL/REALINFO", "set CS_REAL/CONDMSG", "open 4 0156",
                                          "notify 0 0|CS_REAL|CONDMSG", "notify 0 0|CS_REAL|REALINFO"));
    EXPECT_EQ(828u + 3 * 71, (host.links.tags[{"CS_REAL", "REALINFO"}]).size());
}

TEST_F(LinksTest, ClicksAndKeysInTheGridMoveTheOtherScreens) {
    Search();
    ClickRow(3);
    EXPECT_EQ(kLink, host.journal);
    EXPECT_EQ("035720", Code());
    host.journal.clear();
    QTest::keyClick(&Results(), Qt::Key_Up);
    EXPECT_EQ(kLink, host.journal);
    EXPECT_EQ("000660", Code()) << "the row that the key has reached";
    QTest::keyClick(&Results(), Qt::Key_Delete);
    EXPECT_EQ(3, Results().GetRowCount());

    host.journal.clear();
    ClickRow(3, true);
    EXPECT_EQ("double click", host.journal.back());
    EXPECT_EQ(host::HandleOf(&Results()), host.frame.received.back().wParam);
    EXPECT_EQ(2u * 3 + 1, host.journal.size());
}

TEST_F(LinksTest, ChartAndInterestButtonsTakeTheirStocks) {
    Press(21049);
    EXPECT_THAT(host.journal, ElementsAre("open 4 0615"));
    Search();
    Press(21049);
    EXPECT_EQ("open 0|ReturnMainKey|JCODE 0615", host.journal.back());
    EXPECT_EQ("000660", Code());
    Press(21050);
    ASSERT_EQ(1u, host.interests.saved.size());
    EXPECT_THAT(host.interests.saved[0].codes, ElementsAre("000660", "035720"));
    EXPECT_EQ(host::HandleOf(&host.Screen()), host.interests.saved[0].window);
    EXPECT_EQ(host.frame.handle, host.interests.saved[0].mainWindow);

    host::SendMessage(host::HandleOf(&host.Screen()), host::kHostChanged, 0, 0);
    host.journal.clear();
    for (const int button : {21049, 21050}) Press(button);
    ClickRow(3);
    EXPECT_THAT(host.journal, IsEmpty()) << "no main window, no links";
}

TEST_F(LinksTest, TheCodeListOffersWhatWasPublished) {
    const auto popup = [&] { return host.Control<QWidget>(21164).findChild<QListWidget*>("CodePopup"); };
    Press(21164);
    ASSERT_EQ(1, popup()->count());
    EXPECT_FALSE(popup()->item(0)->flags() & Qt::ItemIsEnabled);
    QTest::keyClick(popup(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    Search();
    EXPECT_EQ("조건검색", host.Control<QAbstractButton>(21164).text());
    Press(21164);
    QListWidget* list = popup();
    ASSERT_EQ(2, list->count());
    EXPECT_LT(list->fontMetrics().horizontalAdvance(list->item(0)->text()), list->viewport()->width());
    const QPoint second = list->visualItemRect(list->item(1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(kLink, host.journal);
    EXPECT_EQ("035720", Code());
    EXPECT_EQ(std::vector<int>{3}, Results().GetSelectedRows());
}

TEST_F(LinksTest, TheSheetHoldsWhatTheGridShowsAndWhatWasSearched) {
    const auto menu = [&](const char* entry) {
        emit Results().customContextMenuRequested({20, 20});
        QMenu* shown = Results().findChildren<QMenu*>().back();
        for (QAction* action : shown->actions()) {
            if (action->text().startsWith(entry) && action->isEnabled()) action->trigger();
        }
        shown->close();
    };
    menu("엑셀");
    EXPECT_THAT(host.sheets.saved, IsEmpty()) << "nothing to save";
    Search();
    OpenFirmSet(1);
    EXPECT_EQ(1, Results().GetRowCount()) << "a load clears";
    OpenFirmSet(0);
    Search();
    host.Control<ExpressionEdit>(21089).SetExpressionText("C");
    menu("엑셀");
    ASSERT_EQ(1u, host.sheets.saved.size());
    const auto& [sheet, notes] = host.sheets.saved[0];
    ASSERT_EQ(2u, sheet.columns.size());
    EXPECT_EQ("현재가", ToUtf8(sheet.columns[1].title));
    EXPECT_EQ(host::SheetFormat::Text, sheet.columns[0].format);
    EXPECT_EQ(host::SheetFormat::Integer, sheet.columns[1].format);
    EXPECT_THAT(sheet.rows, ElementsAre(ElementsAre("000660", "181000"), ElementsAre("035720", "43000")));
    std::vector<std::string> lines;
    for (const host::SheetNote& note : notes) lines.push_back(ToUtf8(note.label + "=" + note.text));
    EXPECT_THAT(lines, ElementsAre("조건명=세조건", "조건식=A and !B or C", "조건=A  [단순] 20일 이평 0",
                                   "조건=B  적삼병", "조건=C  적삼병",
                                   "검색대상=<업종대상(전체)><제외없음><전체월결산>", "검색방법=[1]전체검색",
                                   "조건만족 종목=3", "검색결과=2"));

    for (QShortcut* key : host.frame.findChildren<QShortcut*>()) {
        if (key->key() == QKeySequence("Ctrl+E")) emit key->activated();
    }
    EXPECT_EQ(2u, host.sheets.saved.size());

    Results().SelectRange(2, 3);
    menu("선택");
    EXPECT_EQ("publish 조건검색 000660,035720", host.journal.back());
    menu("관심");
    EXPECT_EQ(2u, host.interests.saved.back().codes.size());
}

}  // namespace
}  // namespace jogeon::test
