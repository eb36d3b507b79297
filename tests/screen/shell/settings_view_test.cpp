// The settings dialog's effects on the screen: what is read again, what becomes of grid, results and
// requests.
#include <QAbstractButton>
#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/files/profile_text.h"
#include "screen/settings/settings_block.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kColumns[] =
    "[Basic_Fid]\r\n9001=종목명;12\r\n9003=현재가;8\r\n9006=거래량;6\r\n"
    "[Extend_Fid]\r\n9501=A값;4\r\n";
constexpr char kLayout[] =
    "[1]\r\nFid=9001\r\nHeader=종목명\r\nWidth=100\r\n[2]\r\nFid=9003\r\nHeader=현재가\r\nWidth=80\r\n"
    "[3]\r\nFid=9006\r\nHeader=거래량\r\nWidth=60\r\nHidden=1\r\n[4]\r\nFid=\r\nWidth=50\r\nHidden=1\r\n";

constexpr char kOwnSet[] =
    "[Version]\r\nver=000.001\r\n\r\n[07]\r\nName=내조건\r\nUpjong=1\r\nGroup=ALL|\r\nExp=A\r\nCount=1\r\n"
    "00=0601010008;A;1;0;;\r\n";

// A dialog that does what the test tells it.
class ScriptedSettings : public host::SettingsDialog {
public:
    int Run(host::WindowHandle view, host::GridColumns& grid, int page) override {
        asked.push_back({view, page});
        return onRun ? onRun(grid) : 0;
    }

    std::vector<std::pair<host::WindowHandle, int>> asked;
    std::function<int(host::GridColumns&)> onRun;
};

class SettingsTest : public testing::Test {
protected:
    SettingsTest() {
        WriteText(host.folder.Path() / "System/XcsFid.dat", kColumns);
        WriteText(host.folder.Path() / "Screen/Dlg/0150TempGrid.dlg", kLayout);
        WriteText(host.folder.Path() / "User/trader_SaveIndex.dat", kOwnSet);
        host::Services services = host::Installed();
        services.settings = &settings;
        host::Install(services);
        host.Open();
        host.Reply("VE");
        auto& tree = host.Control<QTreeWidget>(21001);
        emit tree.itemDoubleClicked(tree.topLevelItem(tree.topLevelItemCount() - 1)->child(0), 0);
    }

    QString OwnSetInTree() { return host.Control<QTreeWidget>(21001).topLevelItem(0)->child(0)->text(0); }
    QImage FirstCell() {
        Grid().ClearSelection();
        return Grid().viewport()->grab({0, 0, 40, 40}).toImage();
    }
    ResultGrid& Grid() { return host.Control<ResultGrid>(21104); }
    void Press(int button) { host.Control<QAbstractButton>(button).click(); }
    std::filesystem::path LayoutFile() { return host.folder.Path() / "User/trader_0150TempGrid01.dlg"; }
    void WriteSetting(const char* section, const char* key, const char* value) {
        WriteProfileText(host.SettingsFile(), section, key, value);
    }

    // A result of one row with price and the value of condition A.
    void ShowResult() {
        host.Reply(
            "T1        05"
            "0001"
            "0001"
            "0001"
            "0002"
            "9003"
            "9501"
            "K000660     181000  1.25");
        ASSERT_EQ(2, Grid().GetRowCount());
    }

    // The FIDs that the next search asks for.
    std::string AskedFids() {
        Press(21039);
        return host.communication.LastPayload().substr(838 + 2 * 71);
    }

    TestHost host;
    ScriptedSettings settings;
};

TEST_F(SettingsTest, ButtonAndHeaderOpenTheDialogAtTheirPage) {
    Press(21051);
    QAction* choose = Grid().horizontalHeader()->actions().value(0);
    ASSERT_NE(nullptr, choose);
    EXPECT_EQ("열 설정...", choose->text());
    choose->trigger();
    const host::WindowHandle screen = host::HandleOf(&host.Screen());
    EXPECT_THAT(settings.asked, ElementsAre(std::pair(screen, 0), std::pair(screen, 1)));
}

TEST_F(SettingsTest, AStartTakesWhatTheFileSaysAndTheEndLeavesItThere) {
    host.Close();
    for (const char* key : {"bChangeSize", "lineBorder"}) WriteSetting("0150_GridInfo", key, "1");
    WriteSetting("0150_GridInfo", "bKeyArrow", "0");
    WriteSetting("0150_GridInfo", "oddColor", "255");
    WriteSetting("0150_PortInfo", "RegLink", "5");
    WriteSetting("0150_PortInfo", "ConfirmOverwrite", "1");
    host.Open();
    EXPECT_EQ(QHeaderView::Interactive, Grid().horizontalHeader()->sectionResizeMode(0));
    ShowResult();
    EXPECT_EQ(QColor(255, 0, 0), FirstCell().pixelColor(1, 1));
    host.journal.clear();
    Grid().SelectRange(2, 2);
    QTest::keyClick(&Grid(), Qt::Key_Up);
    EXPECT_THAT(host.journal, IsEmpty());
    host.Close();
    EXPECT_EQ("5", ReadProfileText(host.SettingsFile(), "0150_PortInfo", "RegLink"));
    EXPECT_EQ("1", ReadProfileText(host.SettingsFile(), "0150_PortInfo", "ConfirmOverwrite"));
}

TEST_F(SettingsTest, WithoutAChangeNothingIsReadAgain) {
    ShowResult();
    settings.onRun = [this](host::GridColumns&) {
        WriteSetting("0150_GridInfo", "bChangeSize", "1");
        return 0;
    };
    Press(21051);
    EXPECT_EQ(QHeaderView::Fixed, Grid().horizontalHeader()->sectionResizeMode(0));
}

TEST_F(SettingsTest, SettingsWorkAtOnceAndResultsStay) {
    ShowResult();
    settings.onRun = [this](host::GridColumns&) {
        for (const char* key : {"bChangeSize", "lineBorder"}) WriteSetting("0150_GridInfo", key, "1");
        WriteSetting("0150_GridInfo", "evenColor", "65280");
        WriteSetting("0150_GridInfo", "oddColor", "255");
        WriteSetting("SaveIndex", "Confirm", "0");
        WriteSetting("SaveIndex", "ShowSequence", "1");
        WriteSetting("SaveIndex", "Expand", "2");
        return 1;
    };
    EXPECT_EQ("내조건", OwnSetInTree());
    Press(21051);
    EXPECT_EQ("[07]내조건", OwnSetInTree());
    EXPECT_EQ(2, Grid().GetRowCount());
    EXPECT_EQ(QHeaderView::Interactive, Grid().horizontalHeader()->sectionResizeMode(0));
    const QImage cell = FirstCell();
    EXPECT_EQ(QColor(255, 0, 0), cell.pixelColor(1, 1));
    EXPECT_EQ(QColor(255, 0, 0), cell.pixelColor(1, Grid().rowHeight(0) - 1)) << "no line";
    EXPECT_TRUE(host.Control<QAbstractButton>(21021).isVisible()) << "the layout isn't the dialog's";

    host::SendMessage(host::HandleOf(&host.Screen()), host::kExpressionChanged, 0, 0);
    Press(21021);
    EXPECT_TRUE(host.questions.boxes.empty()) << "no question any more";
}

TEST_F(SettingsTest, OptionsHandedBackByMessageOutliveTheReadingOfTheFile) {
    settings.onRun = [this](host::GridColumns&) {
        std::vector<std::byte> block(settings_block::kSize);
        block[0x12c] = std::byte{1};
        host::SendMessage(settings.asked[0].first, host::kSettingsTaken, 0x0300,
                          reinterpret_cast<std::intptr_t>(block.data()));
        return 1;
    };
    Press(21051);
    host.Close();
    EXPECT_EQ("1", ReadProfileText(host.SettingsFile(), "0150_PortInfo", "RegLink"));
}

TEST_F(SettingsTest, ChosenColumnsAreKeptAndAskedFor) {
    EXPECT_EQ("00019003", AskedFids());
    ShowResult();
    settings.onRun = [](host::GridColumns& grid) {
        EXPECT_THAT(grid.Choices(),
                    ElementsAre(host::GridColumnChoice{"9001", ToCp949("종목명"), 100, true},
                                host::GridColumnChoice{"9003", ToCp949("현재가"), 80, true},
                                host::GridColumnChoice{"9006", ToCp949("거래량"), 60, false}));
        grid.Choose({{"9006", "", 77, true}, {"9001", "", 100, false}, {"9003", "", 80, false}});
        return host::SettingsDialog::kReloadGrid;
    };
    Press(21051);
    EXPECT_EQ(1, Grid().GetRowCount()) << "results are dropped";
    EXPECT_EQ("0", host.Control<QLabel>(21054).text());
    EXPECT_FALSE(host.Control<QAbstractButton>(21046).isEnabled());
    EXPECT_EQ("9006", Grid().ColumnTag(1));
    EXPECT_EQ(77, Grid().columnWidth(0));
    EXPECT_FALSE(Grid().IsColHidden(2)) << "the stock's name stays";
    EXPECT_TRUE(Grid().IsColHidden(3));
    EXPECT_EQ("00019006", AskedFids());

    host.Reply(
        "T1        05"
        "0001"
        "0001"
        "0001"
        "0001"
        "9006"
        "K000660     4321  ");
    EXPECT_EQ("4321", Grid().GetValue(2, 1));
    EXPECT_EQ("K000660", Grid().GetValue(2, 2));
    host.Close();
    host.Open();
    EXPECT_EQ("9006", Grid().ColumnTag(1)) << "kept";
    EXPECT_FALSE(Grid().IsColHidden(1));
}

TEST_F(SettingsTest, AFileThatCannotBeWrittenKeepsTheChoiceForTheSession) {
    std::filesystem::create_directories(LayoutFile() / "in the way");
    settings.onRun = [](host::GridColumns& grid) {
        grid.Choose({{"9006", "", 77, true}});
        return host::SettingsDialog::kReloadGrid;
    };
    Press(21051);
    EXPECT_EQ("9006", Grid().ColumnTag(1));
    EXPECT_EQ("000290039006", AskedFids());
}

// Widths are the user's; the value columns of the last result and what it hid are not.
TEST_F(SettingsTest, ADraggedWidthIsSavedWithoutTracesOfTheLastResult) {
    settings.onRun = [this](host::GridColumns&) {
        WriteSetting("0150_GridInfo", "bChangeSize", "1");
        return 1;
    };
    Press(21051);
    ShowResult();
    ASSERT_EQ("9501", Grid().ColumnTag(4));
    ASSERT_FALSE(Grid().IsColHidden(4));

    QWidget* header = Grid().horizontalHeader()->viewport();
    const QPoint edge(99, 8);
    QTest::mousePress(header, Qt::LeftButton, {}, edge);
    QTest::mouseMove(header, edge + QPoint(40, 0));
    QTest::mouseRelease(header, Qt::LeftButton, {}, edge + QPoint(40, 0));
    const int width = Grid().columnWidth(0);
    ASSERT_GT(width, 120);
    EXPECT_FALSE(std::filesystem::exists(LayoutFile())) << "not before the end";
    host.Close();
    const auto value = [this](const char* section, const char* key) {
        return ReadProfileText(LayoutFile(), section, key);
    };
    EXPECT_EQ(std::to_string(width), value("Column01", "Width"));
    EXPECT_EQ("", value("Column04", "Fid"));
    EXPECT_EQ("", value("Column04", "Header"));
    EXPECT_EQ("1", value("Column04", "Hidden"));

    std::filesystem::remove(LayoutFile());
    host.Open();
    ShowResult();
    host.Close();
    EXPECT_FALSE(std::filesystem::exists(LayoutFile())) << "a result alone changes no layout";
}

}  // namespace
}  // namespace jogeon::test
