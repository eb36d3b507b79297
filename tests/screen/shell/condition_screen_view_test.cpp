#include "screen/shell/condition_screen_view.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/files/profile_text.h"
#include "screen/panes/menu_tree_pane.h"
#include "screen/settings/settings_block.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::StartsWith;

QString TextOf(TestHost& host, int label) {
    return host.Control<QLabel>(label).text();
}

// The last root of the tree.
QTreeWidgetItem* FirmRoot(TestHost& host) {
    auto& tree = host.Control<QTreeWidget>(21001);
    return tree.topLevelItem(tree.topLevelItemCount() - 1);
}

// Opens the firm's only set by a double click in the tree.
void OpenFirmSet(TestHost& host) {
    auto& tree = host.Control<QTreeWidget>(21001);
    emit tree.itemDoubleClicked(FirmRoot(host)->child(0), 0);
}

void Press(TestHost& host, int button) {
    host.Control<QAbstractButton>(button).click();
}

// A reply with one row of two asked columns; "total" stocks match.
std::string OneRow(char letter, const std::string& total, const std::string& code, const std::string& price) {
    return std::string(1, letter) + "1" + "        " + "05" + total + "0001" + "0001" + "0001" + "9003" +
           code + std::string(12 - code.size(), ' ') + price + std::string(8 - price.size(), ' ');
}

// Each message in the order in which the host sees it: what a start owes the host, and what it asks first.
TEST(ConditionScreenTest, StartUpAndShutDownHaveTheirOrder) {
    TestHost host;
    host.Open();
    Journal start;
    std::copy_if(host.journal.begin(), host.journal.end(), std::back_inserter(start),
                 [](const std::string& entry) {
                     return entry != "tag USER_ID";  // asked again wherever a file name is made
                 });
    EXPECT_THAT(start, ElementsAre("major id taken", "query", "color 0", "color 65", "send pisodbop V"));
    EXPECT_EQ("tag USER_ID", host.journal.front());
    EXPECT_TRUE(host.clock.Runs(258));

    host.journal.clear();
    host.Close();
    EXPECT_THAT(Journal(host.journal.begin(), host.journal.begin() + 3),
                ElementsAre("send pisoscop Z", "send PIBOFIDJ 1", "major id 7 given back"));
    EXPECT_EQ("0", ReadProfileText(host.SettingsFile(), "0150_PortInfo", "RegLink"));
    EXPECT_EQ(0u, host.clock.Running());
}

TEST(ConditionScreenTest, ListRequestCarriesUserAndFileVersion) {
    TestHost host;
    WriteText(host.folder.Path() / "User/trader_SaveIndex.dat", "[Version]\r\nver=012.345\r\n\r\n");
    host.Open();
    EXPECT_EQ("V0trader  00012.345", host.communication.LastPayload());
    EXPECT_EQ('\xa1', host.communication.sent.back().records[0][5]);

    host.clock.Advance(20000ms);
    ASSERT_EQ(1u, host.questions.boxes.size());
    EXPECT_THAT(ToUtf8(host.questions.boxes[0].text), StartsWith("서버에서 저장조건을 불러올 수 없습니다."));
}

TEST(ConditionScreenTest, AFirmsSetWithAnUnknownIndicatorIsNotOffered) {
    TestHost host;
    WriteText(host.folder.Path() / "System/NorvikSaveIndex.dat",
              std::string(kVendorText) +
                  "[01]\r\nName=반쪽\r\nExp=A&B\r\nCount=2\r\n"
                  "00=0601010008;A;1;0;;\r\n01=0999990008;B;1;0;;\r\n");
    host.Open();
    const QTreeWidgetItem* firm = FirmRoot(host);
    ASSERT_EQ(1, firm->childCount());
    EXPECT_EQ("돌파", firm->child(0)->text(0));
}

TEST(ConditionScreenTest, UsersSetsComeWhenTheServerSaysThatTheyAreTheLatest) {
    TestHost host;
    WriteText(
        host.folder.Path() / "User/trader_SaveIndex.dat",
        "[Version]\r\nver=000.001\r\n\r\n[07]\r\nName=내조건\r\nTypePosition=0\r\nUpjong=1\r\nGroup=ALL|\r\n"
        "Except1=1\r\nMonth=3\r\nExp=A\r\nCount=1\r\n00=0601010008;A;1;0;;\r\n");
    WriteProfileText(host.SettingsFile(), "SaveIndex", "ShowSequence", "1");
    host.Open();
    auto& tree = host.Control<QTreeWidget>(21001);
    EXPECT_EQ(0, tree.topLevelItem(0)->childCount());
    host.Reply("VE");
    ASSERT_EQ(1, tree.topLevelItem(0)->childCount());
    EXPECT_EQ("[07]내조건", tree.topLevelItem(0)->child(0)->text(0));

    emit tree.itemDoubleClicked(tree.topLevelItem(0)->child(0), 0);
    EXPECT_EQ("내조건", TextOf(host, 21019));
    EXPECT_EQ("<업종대상(전체)><관리제외><3월결산>", TextOf(host, 21027));
    EXPECT_TRUE(host.Control<QAbstractButton>(21029).isChecked());
}

// The buttons from the click to the tree, the file and the request that follows.
TEST(ConditionScreenTest, SavedCommandsReachServerFileAndTree) {
    TestHost host;
    host.Open();
    host.Reply("VE");
    OpenFirmSet(host);
    const auto enabled = [&](int id) { return host.Control<QAbstractButton>(id).isEnabled(); };
    EXPECT_TRUE(enabled(21024) && enabled(22017) && enabled(22018));
    EXPECT_FALSE(enabled(21022) || enabled(21023) || enabled(21025));

    std::string name = "내조건";
    host.questions.onRun = [&](const std::string& dialog, void* object) {
        auto* shown = static_cast<QDialog*>(object);
        if (dialog == "ReorderDialog") shown->findChild<QAbstractButton*>("22026")->click();
        if (dialog == "NameDialog") shown->findChild<QLineEdit*>("21066")->setText(name.c_str());
        shown->accept();
        return shown->result() == QDialog::Accepted;
    };
    Press(host, 21024);
    EXPECT_EQ('A', host.communication.LastPayload()[0]);
    host.Reply("A1         00000.002");
    EXPECT_EQ("사용자정의 조건이 조건번호 [00]에 저장되었습니다", ToUtf8(host.questions.boxes.back().text));
    const QTreeWidgetItem* own = host.Control<QTreeWidget>(21001).topLevelItem(0);
    ASSERT_EQ(1, own->childCount());
    EXPECT_EQ("내조건", own->child(0)->text(0));
    EXPECT_TRUE(enabled(21022) && enabled(21023) && enabled(21025));

    name = "둘째";
    Press(host, 21025);
    host.Reply("A1         01000.003");
    Press(host, 22017);
    EXPECT_EQ("C000.003trader  00020100", host.communication.LastPayload());
    host.Reply("C1        000.004");
    EXPECT_EQ("둘째", own->child(0)->text(0));
    EXPECT_EQ("둘째", TextOf(host, 21019));

    host.questions.answers = {host::Answer::Yes, host::Answer::Yes};
    name = "셋째";
    Press(host, 21023);
    EXPECT_EQ("E000.004trader  00", host.communication.LastPayload().substr(0, 18));
    host.Reply("E1         00000.005");
    EXPECT_EQ("셋째", own->child(0)->text(0));
    Press(host, 21022);
    host.Reply("D1           000.006");
    ASSERT_EQ(1, own->childCount());
    EXPECT_EQ("내조건", own->child(0)->text(0));
    EXPECT_FALSE(enabled(21022));
    EXPECT_EQ(1, host.Control<CFBGrid>(16129).GetRowCnt());
}

TEST(ConditionScreenTest, SearchGoesOutOnceAndItsRowsFillTheGrid) {
    TestHost host;
    host.Open();
    host.Reply("VE");
    OpenFirmSet(host);
    EXPECT_EQ("돌파", TextOf(host, 21019));
    EXPECT_EQ("A and !B", QString::fromStdString(host.Control<ExpressionEdit>(21089).ExpressionText()));
    EXPECT_EQ(1 + 2, host.Control<CFBGrid>(16129).GetRowCnt());

    const std::size_t before = host.communication.sent.size();
    for (int click = 0; click < 100; ++click) Press(host, 21039);
    ASSERT_EQ(before + 2, host.communication.sent.size()) << "one release, one search";
    const std::string payload = host.communication.LastPayload();
    EXPECT_EQ(838u + 2 * 71 + 4 + 4, payload.size());
    EXPECT_EQ("A&!B", std::string(TrimRight(payload.substr(10 + 726, 100))));
    EXPECT_EQ("00019003", payload.substr(838 + 2 * 71));
    EXPECT_EQ(Qt::WaitCursor, host.Screen().cursor().shape());

    host.Reply(OneRow('T', "0002", "K000660", "181000"));
    EXPECT_NE(Qt::WaitCursor, host.Screen().cursor().shape());
    auto& grid = host.Control<ResultGrid>(21104);
    EXPECT_EQ(2, grid.GetRowCount());
    EXPECT_EQ("181000", grid.GetValue(2, 2));
    EXPECT_EQ("2", TextOf(host, 21054));
    EXPECT_EQ("1", TextOf(host, 21052));

    Press(host, 21046);
    EXPECT_EQ("trader  050001", host.communication.LastPayload().substr(9));
    host.Reply("N1        0500020002000100019003Q035720     43000   ");
    EXPECT_EQ(3, grid.GetRowCount());
    EXPECT_FALSE(host.Control<QAbstractButton>(21046).isEnabled());
    EXPECT_THAT(host.links.published.back().codes, ElementsAre("000660", "035720"));

    Press(host, 21047);
    EXPECT_EQ(1, grid.GetRowCount());
    EXPECT_EQ("0", TextOf(host, 21054));
}

TEST(ConditionScreenTest, UnansweredSearchEndsInItsBoxAndALateAnswerStillCounts) {
    TestHost host;
    host.Open();
    host.Reply("VE");
    OpenFirmSet(host);
    Press(host, 21039);
    host.clock.Advance(15000ms);
    ASSERT_EQ(1u, host.questions.boxes.size());
    EXPECT_THAT(ToUtf8(host.questions.boxes[0].text),
                StartsWith("서버의 응답이 없어서 요청하신 작업을 완료할 수 없습니다."));
    EXPECT_NE(Qt::WaitCursor, host.Screen().cursor().shape());

    host.Reply(OneRow('T', "0001", "K000660", "1"));
    EXPECT_EQ(2, host.Control<ResultGrid>(21104).GetRowCount());
    const std::size_t before = host.communication.sent.size();
    Press(host, 21039);
    EXPECT_EQ(before + 2, host.communication.sent.size());
}

TEST(ConditionScreenTest, WrongExpressionShowsWhereAndSendsOnlyTheRelease) {
    TestHost host;
    host.Open();
    OpenFirmSet(host);
    QString shown;
    host.questions.onRun = [&](const std::string& dialog, void* object) {
        EXPECT_EQ("ExpressionErrorDialog", dialog);
        shown = static_cast<QDialog*>(object)->findChild<QPlainTextEdit*>("21095")->toPlainText();
        return true;
    };
    host.Control<ExpressionEdit>(21089).SetExpressionText("A and and B");
    Press(host, 21039);
    EXPECT_TRUE(shown.endsWith("A  ☞ and and B")) << shown.toStdString();
    EXPECT_EQ('Z', host.communication.LastPayload()[0]);
}

TEST(ConditionScreenTest, NewConditionEmptiesTheScreenAndAsksForUnsavedChanges) {
    TestHost host;
    host.Open();
    OpenFirmSet(host);
    host::SendMessage(host::HandleOf(&host.Screen()), host::kExpressionChanged, 0, 0);
    host.questions.answers = {host::Answer::Cancel};
    Press(host, 21021);
    ASSERT_EQ(1u, host.questions.boxes.size());
    EXPECT_EQ("새 조건이 아직 저장되지 않았습니다. \n저장하시겠습니까?",
              ToUtf8(host.questions.boxes[0].text));
    EXPECT_EQ(host::Buttons::YesNoCancel, host.questions.boxes[0].buttons);
    EXPECT_EQ("돌파", TextOf(host, 21019));

    host.questions.answers = {host::Answer::No};
    Press(host, 21021);
    EXPECT_EQ("", TextOf(host, 21019));
    EXPECT_EQ(1, host.Control<CFBGrid>(16129).GetRowCnt());
    EXPECT_EQ("", host.Control<ExpressionEdit>(21089).ExpressionText());
    Press(host, 21021);
    EXPECT_EQ(2u, host.questions.boxes.size()) << "nothing unsaved, nothing asked";
}

TEST(ConditionScreenTest, LeftPaneKeepsItsWidthWhileHiddenAndAcrossSessions) {
    TestHost host;
    host.Open();
    auto& splitter = *host.frame.findChild<ScreenSplitter*>();
    splitter.setSizes({240, 515});
    splitter.ReportSize(false);
    ASSERT_GE(host.frame.received.size(), 3u);
    const auto sizes = std::vector(host.frame.received.end() - 3, host.frame.received.end());
    EXPECT_EQ((std::vector<std::uintptr_t>{1, 2, 0}),
              (std::vector{sizes[0].wParam, sizes[1].wParam, sizes[2].wParam}));
    EXPECT_EQ(((240 + 585) << 16) | 548, sizes[2].lParam);

    Press(host, 21041);
    EXPECT_TRUE(splitter.LeftPaneHidden());
    EXPECT_EQ((764 << 16) | 548, (host.frame.received.end() - 2)->lParam) << "the second message has a floor";
    Press(host, 21041);
    EXPECT_EQ(240, splitter.sizes()[0]);

    host.Screen().SaveLeftPaneWidth("0150_LeftPane");
    EXPECT_EQ("240", ReadProfileText(host.SettingsFile(), "0150_SCREEN", "0150_LeftPane"));
    splitter.ResetLeftPane();
    EXPECT_EQ(176, splitter.sizes()[0]);
    host.Screen().RestoreLeftPaneWidth("0150_LeftPane");
    EXPECT_EQ(240, splitter.sizes()[0]);
    splitter.ResetLeftPane();
    host.Screen().RestoreLeftPaneWidth("0150_LeftPane");
    EXPECT_EQ(176, splitter.sizes()[0]) << "restoring works once";
}

TEST(ConditionScreenTest, OnlyAWidthThatAPaneCanHaveIsRestored) {
    const std::pair<const char*, int> widths[] = {{"0", 176},    {"12", 176}, {"29", 176},  {"30", 30},
                                                  {"wide", 176}, {"", 176},   {"-50", 176}, {"2400", 240}};
    for (const auto& [text, width] : widths) {
        SCOPED_TRACE(text);
        TestHost host;
        WriteProfileText(host.SettingsFile(), "0150_SCREEN", "k", text);
        host.Open();
        host.Screen().RestoreLeftPaneWidth("k");
        auto& splitter = *host.frame.findChild<ScreenSplitter*>();
        EXPECT_EQ(width, splitter.sizes()[0]);
        EXPECT_EQ(width, splitter.LeftPaneWidth());
    }
}

TEST(ConditionScreenTest, HostThatRestoresNothingDisablesRestoring) {
    TestHost host;
    host.frame.queryAnswer = 0;
    host.Open();
    WriteProfileText(host.SettingsFile(), "0150_SCREEN", "k", "200");
    host.Screen().RestoreLeftPaneWidth("k");
    EXPECT_EQ(176, host.frame.findChild<ScreenSplitter*>()->LeftPaneWidth());
}

TEST(ConditionScreenTest, AfterAChangeOfHostNoSizesAreReported) {
    TestHost host;
    host.Open();
    host::SendMessage(host::HandleOf(&host.Screen()), host::kHostChanged, 0, host.frame.handle);
    host.frame.received.clear();
    host.frame.findChild<ScreenSplitter*>()->ReportSize(true);
    EXPECT_TRUE(host.frame.received.empty());
}

TEST(ConditionScreenTest, SettingsBlockIsTakenOnlyWhenAgreed) {
    TestHost host;
    host.Open();
    std::vector<std::byte> block(settings_block::kSize);
    block[0x12c] = std::byte{5};
    block[0x130] = std::byte{1};
    const host::WindowHandle screen = host::HandleOf(&host.Screen());
    const auto address = reinterpret_cast<std::intptr_t>(block.data());
    host::SendMessage(screen, host::kSettingsTaken, 0x0200, address);
    std::vector<std::byte> filled(settings_block::kSize);
    EXPECT_EQ(
        1, host::SendMessage(screen, host::kSettingsFill, 0, reinterpret_cast<std::intptr_t>(filled.data())));
    EXPECT_EQ(std::byte{0}, filled[0x12c]);
    EXPECT_EQ(std::byte{1}, filled[0x78]);

    host::SendMessage(screen, host::kSettingsTaken, 0x0300, address);
    host.links.tags.clear();  // logged off; the settings are still the trader's
    host.Close();
    EXPECT_EQ("5", ReadProfileText(host.SettingsFile(), "0150_PortInfo", "RegLink"));
    EXPECT_EQ("1", ReadProfileText(host.SettingsFile(), "0150_PortInfo", "ConfirmOverwrite"));
}

TEST(ConditionScreenTest, ChangedColorsReachTheRadioButtons) {
    TestHost host;
    host.Open();
    host.colors.byIndex[0x34] = 0x0000ff;
    host.Screen().ReadHostColors();
    const QImage drawn = host.Control<QAbstractButton>(21028).grab().toImage();
    EXPECT_EQ(QColor(255, 0, 0), drawn.pixelColor(drawn.width() - 1, 0));
}

TEST(ConditionScreenTest, ResultGridEndsAtTheViewsLastPixel) {
    TestHost host;
    host.Open();
    auto& grid = host.Control<ResultGrid>(21104);
    const QRect first = grid.geometry();
    host.Screen().resize(400, 548);
    EXPECT_EQ(QRect(first.topLeft(), QPoint(399, first.bottom())), grid.geometry());
    host.Screen().resize(1000, 548);
    EXPECT_EQ(first, grid.geometry());
}

TEST(ConditionScreenTest, HomeThatCannotBeLookedIntoOpensAnEmptyScreen) {
    TestHost host;
    WriteBytes(host.folder.Path() / "Norvik.ini", "[Path]\r\nHTSPATH=/" + std::string(5000, 'x') + "\r\n");
    host.Open();
    host.Reply("VE");
    EXPECT_EQ(0, host.Control<QTreeWidget>(21001).topLevelItem(0)->childCount());
}

TEST(ConditionScreenTest, EnlargedExpressionCoversTheButtonRow) {
    TestHost host;
    host.Open();
    auto& edit = host.Control<ExpressionEdit>(21089);
    const int height = edit.height();
    Press(host, 21033);
    EXPECT_EQ(height + 40, edit.height());
    EXPECT_FALSE(host.Control<QAbstractButton>(21039).isVisible());
    Press(host, 21033);
    EXPECT_EQ(height, edit.height());
    EXPECT_TRUE(host.Control<QAbstractButton>(21039).isVisible());
}

TEST(ConditionScreenTest, RepliesOfAnyShapeLeaveAWorkingScreen) {
    TestHost host;
    host.Open();
    OpenFirmSet(host);
    const std::string whole = OneRow('T', "0002", "K000660", "181000");
    for (std::size_t length = 0; length <= whole.size(); ++length) host.Reply(whole.substr(0, length));
    for (const char* odd : {"", "V", "VD", "VZ", "A1", "Q", "T0", "N1        9999999999999999"})
        host.Reply(odd);
    host::SendMessage(host::HandleOf(&host.Screen()), host::kServerReply, 1, 0);
    host.Reply(whole);
    EXPECT_EQ(2, host.Control<ResultGrid>(21104).GetRowCount());
}

}  // namespace
}  // namespace jogeon::test
