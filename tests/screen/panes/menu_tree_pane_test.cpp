// The tree pane, worked by clicks and keys.
#include "screen/panes/menu_tree_pane.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/files/atomic_file.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kTreeTab = 0;
constexpr int kListTab = 1;

class RecordingPicks final : public TreePicks {
public:
    void OnPickIndex(const CIndexInfo& info, const FieldArray* fields) override {
        picks.push_back(info.m_strKey + " " + (fields ? std::to_string(fields->size()) : "no") + " fields");
    }
    void OnPickSaved(std::shared_ptr<CSavedIndexInfo> saved) override {
        picks.push_back("set " + ToUtf8(saved->Name));
        if (onPickSaved) onPickSaved();
    }

    std::vector<std::string> picks;
    std::function<void()> onPickSaved;
};

std::shared_ptr<CSavedIndexInfo> NamedSet(const std::string& number, std::string_view utf8) {
    auto set = std::make_shared<CSavedIndexInfo>();
    set->m_strKey = number;
    set->Name = ToCp949(utf8);
    return set;
}

class MenuTreePaneTest : public testing::Test {
protected:
    void Open() {
        pane = std::make_unique<CMenuTreeView>(nullptr);
        pane->LinkScreen(screen);
        pane->resize(176, 548);
        pane->show();
        pane->activateWindow();
        host::SendMessage(host::HandleOf(pane.get()), host::kInitialUpdate, 0, 0);
        pane->ShowSavedConditions();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pane.get()));
    }
    void WriteSets(std::initializer_list<std::pair<const char*, const char*>> sets) {
        std::string text = "[Version]\r\nver=000.007\r\n\r\n";
        for (const auto& [number, name] : sets) {
            text += "[" + std::string(number) + "]\r\nName=" + name + "\r\nExp=A\r\nCount=1\r\n" +
                    "00=0601010008;A;1;0;;\r\n";
        }
        WriteText(host.folder.Path() / "User/trader_SaveIndex.dat", text);
    }

    template <typename Widget>
    Widget& Control(int id) {
        return *pane->findChild<Widget*>(QString::number(id));
    }
    QTreeWidget& Tree() { return Control<QTreeWidget>(21001); }
    QTreeWidget& List() { return Control<QTreeWidget>(21127); }
    std::string Counter() { return Control<QLabel>(21009).text().toStdString(); }
    void SelectTab(int tab) {
        auto& tabs = Control<QTabBar>(21162);
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
    }
    void Press(int button) { QTest::mouseClick(&Control<QAbstractButton>(button), Qt::LeftButton); }

    // The place of the item with this text, scrolled to.
    static QPoint PlaceOf(QTreeWidget& view, const char* text) {
        const auto found = view.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        if (found.isEmpty()) return {-1, -1};
        view.scrollToItem(found.front());
        return view.visualItemRect(found.front()).center();
    }
    // What a click or a double click there has the screen told.
    std::vector<std::string> Click(QTreeWidget& view, const char* text) {
        screen.picks.clear();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, PlaceOf(view, text));
        return screen.picks;
    }
    std::vector<std::string> DoubleClick(QTreeWidget& view, const char* text) {
        const QPoint place = PlaceOf(view, text);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
        screen.picks.clear();
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
        return screen.picks;
    }
    std::string Current(QTreeWidget& view) {
        return view.currentItem() && view.currentItem()->isSelected()
                   ? view.currentItem()->text(0).toStdString()
                   : "";
    }
    void Find(const QString& text) {
        host.clock.Advance(1s);
        auto& edit = Control<QLineEdit>(21008);
        edit.setText(text);
        QTest::keyClick(&edit, Qt::Key_Return);
    }
    std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (int row = 0; row < List().topLevelItemCount(); ++row) {
            const QTreeWidgetItem& item = *List().topLevelItem(row);
            rows.push_back((item.text(0) + " | " + item.text(1)).toStdString());
        }
        return rows;
    }
    std::vector<std::string> UserSets() {
        std::vector<std::string> sets;
        const QTreeWidgetItem& root = *Tree().topLevelItem(0);
        for (int i = 0; i < root.childCount(); ++i) sets.push_back(root.child(i)->text(0).toStdString());
        return sets;
    }

    TestHost host;
    RecordingPicks screen;
    std::unique_ptr<CMenuTreeView> pane;
};

TEST_F(MenuTreePaneTest, AClickPicksAnIndicatorAndADoubleClickOpensASet) {
    WriteSets({{"01", "내조건"}});
    Open();
    EXPECT_THAT(Click(Tree(), "사용자저장조건"), IsEmpty());
    EXPECT_THAT(Click(Tree(), "거래량"), ElementsAre("0401020008 5 fields"));
    EXPECT_THAT(Click(Tree(), "순위"), ElementsAre("0801010008 no fields"));
    EXPECT_THAT(Click(Tree(), "이동평균"), IsEmpty());
    EXPECT_THAT(Click(Tree(), "돌파"), IsEmpty());
    EXPECT_THAT(DoubleClick(Tree(), "돌파"), ElementsAre("set 돌파"));
    EXPECT_THAT(DoubleClick(Tree(), "내조건"), ElementsAre("set 내조건"));

    QTreeWidgetItem& group = *Tree().findItems("이동평균", Qt::MatchRecursive).front();
    ASSERT_FALSE(group.isExpanded());
    EXPECT_THAT(DoubleClick(Tree(), "이동평균"), IsEmpty());
    EXPECT_TRUE(group.isExpanded());

    SelectTab(kListTab);
    EXPECT_THAT(Click(List(), "주가이평돌파"), ElementsAre("0101010008 5 fields"));
    EXPECT_THAT(Click(List(), "내조건"), IsEmpty());
    EXPECT_THAT(DoubleClick(List(), "내조건"), ElementsAre("set 내조건"));
    EXPECT_THAT(DoubleClick(Tree(), "돌파"), ElementsAre("set 돌파")) << "a program may, though it is hidden";

    pane->resize(600, pane->height());
    QApplication::processEvents();
    const QPoint beside(List().viewport()->width() - 5, PlaceOf(List(), "내조건").y());
    ASSERT_FALSE(List().indexAt(beside).isValid());
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, beside);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, beside);
    EXPECT_THAT(screen.picks, ElementsAre("set 돌파")) << "nothing is beside the columns";
}

TEST_F(MenuTreePaneTest, ASetThatIsOpenedMayBringInANewList) {
    WriteSets({{"01", "내조건"}});
    Open();
    screen.onPickSaved = [this] { pane->ShowSavedConditions(); };
    for (QTreeWidget* view : {&Tree(), &List()}) {
        SelectTab(view == &List() ? kListTab : kTreeTab);
        EXPECT_THAT(DoubleClick(*view, "내조건"), ElementsAre("set 내조건"));
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Return);
    }
}

TEST_F(MenuTreePaneTest, AFindShowsItsHitsOneAfterTheOther) {
    Open();
    Find("돌파");
    EXPECT_EQ("1/2", Counter());
    EXPECT_EQ("주가이평돌파", Current(Tree()));
    EXPECT_TRUE(Tree().hasFocus());
    EXPECT_TRUE(Tree().viewport()->rect().contains(Tree().visualItemRect(Tree().currentItem()).center()));
    QTest::keyClick(&Tree(), Qt::Key_F3);
    EXPECT_EQ("2/2 돌파", Counter() + " " + Current(Tree()));
    Press(21152);
    EXPECT_EQ("1/2 주가이평돌파", Counter() + " " + Current(Tree()));
    QTest::keyClick(&Tree(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ("2/2 돌파", Counter() + " " + Current(Tree()));
    Press(21151);
    EXPECT_EQ("1/2 주가이평돌파", Counter() + " " + Current(Tree()));

    Find("이동평균");
    EXPECT_EQ("1/1 이동평균", Counter() + " " + Current(Tree())) << "a group counts";
    for (const char* nowhere : {"없는지표", "日本語かな漢字€", "?"}) {
        Find(nowhere);
        EXPECT_EQ("0/0", Counter()) << nowhere;
        Press(21152);
    }
    Find("");
    EXPECT_EQ("", Counter());
    EXPECT_THAT(screen.picks, IsEmpty());
}

TEST_F(MenuTreePaneTest, AFindWithinASecondOfTheLastIsNotDone) {
    Open();
    Find("돌파");
    auto& edit = Control<QLineEdit>(21008);
    edit.setText("거래량");
    host.clock.Advance(999ms);
    Press(21007);
    EXPECT_EQ("1/2", Counter());
    host.clock.Advance(999ms);
    Press(21007);
    EXPECT_EQ("1/2", Counter()) << "the press before counts too";
    host.clock.Advance(1000ms);
    Press(21007);
    EXPECT_EQ("1/1", Counter());
}

TEST_F(MenuTreePaneTest, TabsShowTheirOwnAndForgetTheFind) {
    Open();
    auto& save = Control<QAbstractButton>(21038);
    EXPECT_FALSE(save.isVisible());
    EXPECT_EQ("엑셀 파일로 저장", save.toolTip());
    Find("돌파");
    SelectTab(kListTab);
    EXPECT_EQ("", Counter());
    EXPECT_TRUE(save.isVisible() && List().isVisible() && !Tree().isVisible());
    EXPECT_EQ(100, List().columnWidth(0));
    EXPECT_EQ(150, List().columnWidth(1));
    Press(21152);
    Find("돌파");
    EXPECT_EQ("1/2 돌파", Counter() + " " + Current(List()));
    EXPECT_TRUE(List().hasFocus());
    Press(21151);
    EXPECT_EQ("2/2 주가이평돌파", Counter() + " " + Current(List()));
    SelectTab(kTreeTab);
    EXPECT_EQ("", Counter());
    EXPECT_TRUE(!save.isVisible() && !List().isVisible() && Tree().isVisible());
}

TEST_F(MenuTreePaneTest, KeysReachEverything) {
    Open();
    Find("돌파");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QApplication::sendEvent(&Tree(), &held);
    EXPECT_THAT(screen.picks, IsEmpty()) << "the key that started the find is still down";
    QTest::keyClick(&Tree(), Qt::Key_Return);
    EXPECT_THAT(screen.picks, ElementsAre("0101010008 5 fields"));

    QTest::keyClick(&Tree(), Qt::Key_F, Qt::ControlModifier);
    auto& edit = Control<QLineEdit>(21008);
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_EQ("돌파", edit.selectedText());
    QTest::keyClick(&edit, Qt::Key_Down);
    EXPECT_TRUE(Tree().hasFocus());
    Find("기술적지표");
    QTest::keyClick(&Tree(), Qt::Key_Return);
    EXPECT_FALSE(Tree().currentItem()->isExpanded());
}

TEST_F(MenuTreePaneTest, TheListFollowsTheUsersSets) {
    WriteSets({{"05", "마감"}, {"09", "하락"}});
    Open();
    EXPECT_EQ("000.007", pane->Version());
    SelectTab(kListTab);
    EXPECT_THAT(Rows(), ElementsAre("거래량 | 기술적지표", "돌파 | 노빅조건", "마감 | 사용자저장조건",
                                    "순위 | 시세", "적삼병 | 기술적지표",
                                    "주가이평돌파 | 기술적지표:이동평균", "하락 | 사용자저장조건"));
    Find("하락");
    pane->AddSaved(NamedSet("07", "돌파"));
    EXPECT_EQ("", Counter()) << "rows have moved";
    EXPECT_THAT(UserSets(), ElementsAre("마감", "돌파", "하락"));
    EXPECT_EQ("돌파 | 사용자저장조건", Rows()[1]) << "before the first row that isn't less";
    EXPECT_EQ("돌파 | 노빅조건", Rows()[2]);

    pane->AddSaved(NamedSet("01", "첫째"));
    pane->ReplaceSaved(NamedSet("09", "가격"));
    pane->ReplaceSaved(NamedSet("10", "열째"));
    EXPECT_THAT(UserSets(), ElementsAre("첫째", "마감", "돌파", "가격", "열째"));
    EXPECT_EQ("가격 | 사용자저장조건", Rows().front());
    EXPECT_EQ("가격", Current(List())) << "a renamed set stays selected";
    EXPECT_THAT(DoubleClick(List(), "가격"), ElementsAre("set 가격"));

    pane->ShowNumbers(true);
    EXPECT_THAT(UserSets(), ElementsAre("[01]첫째", "[05]마감", "[07]돌파", "[09]가격", "[10]열째"));
    EXPECT_EQ("[01]첫째 | 사용자저장조건", Rows().front());
    pane->DeleteSaved("05");
    pane->DeleteSaved("55");
    EXPECT_THAT(UserSets(), ElementsAre("[01]첫째", "[07]돌파", "[09]가격", "[10]열째"));
    EXPECT_EQ(9u, Rows().size());

    WriteSets({{"02", "새조건"}});
    pane->ShowSavedConditions();
    EXPECT_THAT(UserSets(), ElementsAre("[02]새조건"));
    EXPECT_EQ(6u, Rows().size());
    EXPECT_EQ("[02]새조건 | 사용자저장조건", Rows().front());
}

TEST_F(MenuTreePaneTest, TheListIsSavedAsASheet) {
    WriteCatalogue(host.folder.Path() / "System", "[지표]\r\n0101010008=RSI;11;C\r\n");
    WriteText(host.folder.Path() / "System/NorvikSaveIndex.dat", "[00]\r\nName=가\r\nExp=\r\nCount=0\r\n");
    Open();
    SelectTab(kListTab);
    Press(21038);
    ASSERT_EQ(1u, host.questions.files.size());
    EXPECT_EQ("Excel Worksheet Files (*.xls)", host.questions.files[0].filterName);
    EXPECT_EQ("xls", host.questions.files[0].extension);
    EXPECT_THAT(host.questions.boxes, IsEmpty());

    const std::filesystem::path file = host.folder.Path() / "list.xls";
    host.questions.savePath = file;
    Press(21038);
    using namespace std::string_literals;
    EXPECT_EQ(
        "\x09\x08\x06\0\0\x02\x10\0\0\0"s
        "\0\x02\x0a\0\0\0\xff\xff\0\0\0\x01\0\0"s
        "\x04\0\x0b\0\0\0\0\0\0\0\0\x03RSI"s
        "\x04\0\x0c\0\0\0\x01\0\0\0\0\x04\xc1\xf6\xc7\xa5"s
        "\x04\0\x0a\0\x01\0\0\0\0\0\0\x02\xb0\xa1"s
        "\x04\0\x10\0\x01\0\x01\0\0\0\0\x08\xb3\xeb\xba\xf2\xc1\xb6\xb0\xc7"s
        "\x0a\0\0\0"s,
        ReadBytes(file));

    host.questions.savePath = host.folder.Path() / "no such folder/list.xls";
    Press(21038);
    const FileFault full(FileStep::Write, 20);
    host.questions.savePath = file;
    Press(21038);
    ASSERT_EQ(2u, host.questions.boxes.size());
    EXPECT_EQ("파일을 열 수 없습니다."_cp949, host.questions.boxes[0].text);
    EXPECT_EQ("파일을 저장할 수 없습니다."_cp949, host.questions.boxes[1].text);
}

TEST_F(MenuTreePaneTest, BrokenCataloguesLeaveAPartOfTheTree) {
    const std::filesystem::path system = host.folder.Path() / "System";
    std::filesystem::remove_all(system);
    Open();
    EXPECT_EQ(2, Tree().topLevelItemCount());

    const std::string whole = ToCp949(kTreeText);
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        std::string garbled = whole.substr(0, length) + std::string("\xff\0\x81;", 4) + whole.substr(length);
        WriteBytes(system / "S4TreeList.dat", length % 2 ? garbled : whole.substr(0, length));
        Open();
        SelectTab(kListTab);
        Find("a");
    }

    std::string deep = "[R]\n";
    for (int i = 0; i < 10'000; ++i) deep += std::to_string(100000000 + i) + "1=name;1;C\n";
    WriteBytes(system / "S4TreeList.dat", deep);
    Open();
    Find("name");
    EXPECT_EQ("1/10000", Counter());
    Press(21151);
    EXPECT_EQ("10000/10000", Counter());
    SelectTab(kListTab);
}

}  // namespace
}  // namespace jogeon::test
