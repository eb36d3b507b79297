// Every control of screen 0150 in the real terminal: what its caption promises happens.
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QSplitter>
#include <QTabBar>
#include <QTableView>
#include <QTreeWidget>
#include <map>
#include <set>

#include "screen/shell/control_table.h"
#include "screen/text/cp949.h"
#include "terminal/chart/chart_screen.h"
#include "tests/screen/support/recorders.h"
#include "tests/terminal/support/terminal_fixture.h"

namespace jogeon::terminal {
namespace {

class ControlsTest : public TerminalTest {
public:
    ControlsTest() {
        options_.demonstrate.clear();
        questions_ = &user_;
    }
    ~ControlsTest() override { terminal_.reset(); }  // while the user can still be asked

    template <typename Widget>
    Widget& At(int id) {
        auto* widget = terminal_->Window().Frame().findChild<Widget*>(QString::number(id));
        if (!widget) throw std::runtime_error("no control " + std::to_string(id));
        return *widget;
    }

    void Wait() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return terminal_->Idle(); }, kPatience));
        QApplication::processEvents();
    }

    void Press(int id) {
        ASSERT_TRUE(Button(id).isEnabled()) << id;
        QTest::mouseClick(&Button(id), Qt::LeftButton, {}, {8, Button(id).height() / 2});
        Wait();
    }

    // An empty screen, and a user who has said nothing yet.
    void Fresh() {
        user_.answers = {host::Answer::No};
        user_.onRun = nullptr;
        Press(21021);
        user_.answers.clear();
        user_.boxes.clear();
        user_.dialogs.clear();
        At<QSpinBox>(17042).setValue(0);
        Press(21047);
        Press(21028);
    }

    void Add(const char* indicator) {
        auto& tree = At<QTreeWidget>(21001);
        const auto found =
            tree.findItems(QString::fromUtf8(indicator), Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_FALSE(found.isEmpty()) << indicator;
        for (QTreeWidgetItem* group = found[0]->parent(); group; group = group->parent())
            group->setExpanded(true);
        tree.scrollToItem(found[0]);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(found[0]).center());
        Press(31050);
    }

    // Two conditions, each of which narrows the market.
    void Compose() {
        Add("RSI");
        Add("주가와 이동평균");
        ASSERT_EQ("A and B", Expression());
    }

    // Composes and searches; how many stocks were found.
    int ComposeAndSearch() {
        Compose();
        return Search();
    }

    int Search() {
        Press(21039);
        EXPECT_GT(Rows(), 1);
        return Label(21054).toInt();
    }

    QString Expression() { return At<QPlainTextEdit>(21089).toPlainText(); }
    int Rows() { return At<QTableView>(21104).model()->rowCount(); }
    bool Saved(const char* name) { return screen_->SetNames().contains(QString::fromUtf8(name)); }

    void Select(int from, int to) {
        QTextCursor cursor = At<QPlainTextEdit>(21089).textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        At<QPlainTextEdit>(21089).setTextCursor(cursor);
    }

    // The next dialogs get this in their line and are agreed to.
    void AnswerWith(const char* text) {
        user_.onRun = [text](const std::string&, void* object) {
            auto* dialog = static_cast<QDialog*>(object);
            dialog->findChild<QLineEdit*>()->setText(QString::fromUtf8(text));
            dialog->accept();
            return dialog->result() == QDialog::Accepted;
        };
    }

    void SaveNew(const char* name) {
        Compose();
        AnswerWith(name);
        Press(21024);
        EXPECT_TRUE(Saved(name)) << name;
    }

    void ClickRow(int row) {
        auto& grid = At<QTableView>(21104);
        const QRect cell = grid.visualRect(grid.model()->index(row, 0));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    }
    QString CodeOfRow(int row) { return screen_->Rows(row + 1)[row + 1][1]; }
    QString LinkedCode() {
        return QString::fromStdString(
            terminal_->SharedLinks().NVLink_GetLinkTagData("ReturnMainKey", "JCODE", nullptr));
    }

    // --- the tries

    void Captions() {
        for (const Control& control : ScreenControls()) {
            if (control.kind != ControlKind::Label || !*control.caption) continue;
            EXPECT_EQ(QString::fromUtf8(control.caption), Label(control.id));
        }
        EXPECT_EQ("<업종대상(전체)><제외없음><전체월결산>", Label(21027));
    }

    void NewCondition() {
        Compose();
        user_.answers = {host::Answer::No};
        Press(21021);
        EXPECT_EQ("", Expression());
    }

    void SavingUnderTwoNames() {
        SaveNew("원본");
        EXPECT_EQ("원본", Label(21019));
        AnswerWith("사본");
        Press(21025);
        EXPECT_TRUE(Saved("사본") && Saved("원본"));
        AnswerWith("새이름");
        user_.answers = {host::Answer::Yes};
        Press(21023);
        EXPECT_TRUE(Saved("새이름") && !Saved("사본"));
        user_.answers = {host::Answer::Yes};
        Press(21022);
        EXPECT_FALSE(Saved("새이름"));
    }

    void BuyAndSell() {
        Press(21029);
        SaveNew("매도조건");
        Fresh();
        ASSERT_TRUE(screen_->OpenSet("매도조건"));
        EXPECT_TRUE(At<QRadioButton>(21029).isChecked());
        Press(21028);
        EXPECT_FALSE(At<QRadioButton>(21029).isChecked());
    }

    void DialogsOpen() {
        for (const int button : {22017, 22018, 21026, 21037}) Press(button);
        const std::vector<std::string> expected = {"ReorderDialog", "ImportDialog", "TargetDialog",
                                                   "ExpressionHelpDialog"};
        EXPECT_EQ(expected, user_.dialogs);
    }

    void ListAndPanel() {
        Compose();
        EXPECT_TRUE(At<QWidget>(21002).isVisible());
        auto& cells = At<QAbstractScrollArea>(16129);
        cells.setFocus();
        QTest::keyClick(&cells, Qt::Key_Space);
        EXPECT_EQ("A", Expression()) << "the newest condition has the focus, and is checked no more";
    }

    void BarsAgo() {
        const int today = ComposeAndSearch();
        At<QSpinBox>(17042).setValue(120);
        EXPECT_EQ(99, At<QSpinBox>(17042).value());
        At<QSpinBox>(17042).setValue(3);
        Press(21030);
        const int before = Search();
        EXPECT_NE(today, before);
        Press(21036);
        EXPECT_NE(before, Search());
        Press(21043);
        EXPECT_EQ(before, Search());
    }

    void ExpressionTyped() {
        Compose();
        auto& box = At<QPlainTextEdit>(21089);
        box.selectAll();
        QTest::keyClicks(&box, "B or A");
        EXPECT_EQ("B or A", Expression());
    }

    void ExpressionButtons() {
        Compose();
        Select(0, 1);
        Press(21100);
        EXPECT_EQ("!A and B", Expression());
        Select(0, 8);
        Press(21034);
        EXPECT_EQ("(!A and B)", Expression());
        Select(0, 10);
        Press(21040);
        EXPECT_EQ("!A and B", Expression());
        Select(0, 8);
        Press(21035);
        EXPECT_EQ("A and B", Expression());
    }

    void ExpressionEnlarged() {
        const int before = At<QWidget>(21089).height();
        Press(21033);
        EXPECT_EQ(before + 40, At<QWidget>(21089).height());
        EXPECT_FALSE(Button(21039).isVisible());
        Press(21033);
        EXPECT_EQ(before, At<QWidget>(21089).height());
    }

    void ListAsSheet() {
        Compose();
        user_.savePath = (folder_.path() + "/conditions.xls").toStdString();
        Press(21038);
        EXPECT_TRUE(std::filesystem::exists(*user_.savePath));
    }

    void LeftPane() {
        Press(21041);
        EXPECT_EQ(0, At<QTreeWidget>(21001).window()->findChild<QSplitter*>()->sizes()[0]);
        Press(21041);
        EXPECT_GT(At<QTreeWidget>(21001).window()->findChild<QSplitter*>()->sizes()[0], 100);
    }

    void PagesAndCounts() {
        const int total = ComposeAndSearch();
        EXPECT_EQ(Label(21052).toInt(), Rows());
        EXPECT_TRUE(At<QWidget>(21044).isVisible());
        while (Button(21046).isEnabled()) Press(21046);
        EXPECT_EQ(total, Rows());
        EXPECT_EQ(total, Label(21052).toInt());
        Press(21047);
        EXPECT_EQ(0, Rows());
        EXPECT_EQ("0", Label(21054));
    }

    void ScopesAndTabs() {
        const int both = ComposeAndSearch();
        auto& scope = At<QComboBox>(21098);
        scope.setCurrentIndex(1);
        EXPECT_EQ(both, Search());
        auto& tabs = At<QTabBar>(21105);
        ASSERT_EQ(2, tabs.count());
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
        EXPECT_EQ(0, tabs.currentIndex());
        scope.setCurrentIndex(3);
        const int first = Search();
        EXPECT_EQ(both, Search()) << "the second step has both conditions";
        EXPECT_GT(first, both);
        scope.setCurrentIndex(0);
    }

    void RowsLead() {
        ComposeAndSearch();
        ClickRow(1);
        EXPECT_EQ(CodeOfRow(1), LinkedCode());
        QTest::keyClick(&At<QTableView>(21104), Qt::Key_Down);
        EXPECT_EQ(CodeOfRow(2), LinkedCode());
    }

    OwnScreen* Opened(const char* number) { return terminal_->Desk().Screen(number); }

    void ChartOpens() {
        ComposeAndSearch();
        ClickRow(0);
        Press(21049);
        auto* chart = dynamic_cast<ChartScreen*>(Opened("0615"));
        ASSERT_TRUE(chart);
        ASSERT_TRUE(QTest::qWaitFor([&] { return chart->Settled(); }, kPatience));
        EXPECT_EQ(CodeOfRow(0).toStdString(), chart->Code());
        ClickRow(2);
        ASSERT_TRUE(QTest::qWaitFor([&] { return chart->Settled(); }, kPatience));
        EXPECT_EQ(CodeOfRow(2).toStdString(), chart->Code()) << "it follows the rows";
        EXPECT_FALSE(chart->View().ShownMarks().bars.empty())
            << "today at least the conditions are true of it";
        ChartFollowsTheSearch(*chart);
        terminal_->Desk().CloseAll();
    }

    // With one of the conditions alone more stocks are found, and each is true on more days.
    void ChartFollowsTheSearch(ChartScreen& chart) {
        const auto place = [&] { return chart.findChild<QLabel*>("place")->text(); };
        const std::string code = chart.Code();
        const QString narrow = place();
        const int days = chart.View().ShownMarks().days;
        auto& cells = At<QAbstractScrollArea>(16129);
        cells.setFocus();
        QTest::keyClick(&cells, Qt::Key_Space);
        Search();
        ASSERT_TRUE(QTest::qWaitFor([&] { return chart.Settled(); }, kPatience));
        EXPECT_EQ(code, chart.Code()) << "nothing was clicked";
        EXPECT_NE(narrow, place());
        EXPECT_GT(chart.View().ShownMarks().days, days);
    }

    void WatchOpens() {
        Compose();
        Press(21048);
        OwnScreen* watch = Opened("0156");
        ASSERT_TRUE(watch);
        const auto described = [&] {
            for (const QLabel* label : watch->findChildren<QLabel*>())
                if (label->text().contains(" + ")) return true;
            return false;
        };
        EXPECT_TRUE(QTest::qWaitFor(described, kPatience)) << "it shows what was handed over";
        terminal_->Desk().CloseAll();
    }

    void InterestIsSaved() {
        ComposeAndSearch();
        user_.onRun = [](const std::string&, void* object) {
            auto* dialog = static_cast<QDialog*>(object);
            for (auto* choice : dialog->findChildren<QRadioButton*>())
                if (choice->objectName() == "new") choice->click();
            dialog->findChild<QLineEdit*>("name")->setText("오늘의 결과");
            dialog->findChild<QPushButton*>("save")->click();
            return dialog->result() == QDialog::Accepted;
        };
        Press(21050);
        std::map<std::string, std::vector<std::string>> lists{{"0502", {}}};
        ASSERT_TRUE(host::Installed().codeLists->Fill(lists));
        EXPECT_EQ("504 오늘의 결과", ToUtf8(lists["0502"].back())) << "a universe of the next search";
    }

    void SettingsChangeColumns() {
        ComposeAndSearch();
        EXPECT_TRUE(screen_->Rows(0)[0].contains("PER"));
        user_.onRun = [](const std::string&, void* object) {
            auto* dialog = static_cast<QDialog*>(object);
            auto* columns = dialog->findChild<QTreeWidget*>("columns");
            columns->findItems("PER", Qt::MatchExactly)[0]->setCheckState(0, Qt::Unchecked);
            dialog->accept();
            return true;
        };
        Press(21051);
        EXPECT_EQ(0, Rows()) << "other columns, other results";
        user_.onRun = nullptr;
        Search();
        EXPECT_FALSE(screen_->Rows(0)[0].contains("PER"));
    }

    void Layouts() {
        auto& grid = At<QWidget>(21104);
        const int normal = grid.height();
        Press(21133);
        EXPECT_EQ("▼", Button(21133).text());
        EXPECT_GT(grid.height(), normal + 200);
        EXPECT_FALSE(At<QWidget>(21089).isVisible());
        Press(21133);
        EXPECT_EQ(normal - 98, grid.height());
        Press(21133);
        EXPECT_EQ(normal, grid.height());
        EXPECT_TRUE(At<QWidget>(21089).isVisible());
    }

    void CodeListLeads() {
        ComposeAndSearch();
        EXPECT_EQ("조건검색", Button(21164).text());
        Press(21164);
        auto* popup = Button(21164).findChild<QListWidget*>("CodePopup");
        ASSERT_TRUE(popup);
        QTest::mouseClick(popup->viewport(), Qt::LeftButton, {},
                          popup->visualItemRect(popup->item(3)).center());
        EXPECT_EQ(CodeOfRow(3), LinkedCode());
    }

    test::ScriptedQuestions user_;
};

TEST_F(ControlsTest, EachDoesWhatItsCaptionPromises) {
    struct Try {
        std::set<int> controls;
        void (ControlsTest::*run)();
    };
    const Try tries[] = {
        {{21019, 21022, 21023, 21024, 21025}, &ControlsTest::SavingUnderTwoNames},
        {{21027, 21031, 21042, 21053, 21055}, &ControlsTest::Captions},
        {{21021}, &ControlsTest::NewCondition},
        {{21028, 21029}, &ControlsTest::BuyAndSell},
        {{22017, 22018, 21026, 21037}, &ControlsTest::DialogsOpen},
        {{21002, 21058}, &ControlsTest::ListAndPanel},
        {{17042, 21030, 21036, 21043}, &ControlsTest::BarsAgo},
        {{21089}, &ControlsTest::ExpressionTyped},
        {{21100, 21034, 21040, 21035}, &ControlsTest::ExpressionButtons},
        {{21033}, &ControlsTest::ExpressionEnlarged},
        {{21038}, &ControlsTest::ListAsSheet},
        {{21041}, &ControlsTest::LeftPane},
        {{21039, 21046, 21047, 21052, 21054, 21044}, &ControlsTest::PagesAndCounts},
        {{21098, 21105}, &ControlsTest::ScopesAndTabs},
        {{21104}, &ControlsTest::RowsLead},
        {{21049}, &ControlsTest::ChartOpens},
        {{21048}, &ControlsTest::WatchOpens},
        {{21050}, &ControlsTest::InterestIsSaved},
        {{21051}, &ControlsTest::SettingsChangeColumns},
        {{21133}, &ControlsTest::Layouts},
        {{21164}, &ControlsTest::CodeListLeads},
    };
    Open();
    std::set<int> tried;
    for (const auto& [controls, run] : tries) {
        SCOPED_TRACE(*controls.begin());
        Fresh();
        (this->*run)();
        tried.insert(controls.begin(), controls.end());
    }
    for (const Control& control : ScreenControls()) {
        EXPECT_TRUE(tried.contains(control.id)) << "nothing tries control " << control.id;
    }
}

}  // namespace
}  // namespace jogeon::terminal
