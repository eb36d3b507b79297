#include "screen/target/target_dialog.h"

#include <QApplication>
#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "tests/screen/support/recorders.h"
#include "tests/screen/support/target_lists.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

class TargetDialogTest : public testing::Test {
protected:
    void Open(const TargetFields& target) {
        links_.accounts = {"12345678901", "55556666777"};
        host::Services services;
        services.codeLists = &lists_;
        services.links = &links_;
        services.questions = &questions_;
        dialog_ = std::make_unique<TargetDialog>(services, target);
        dialog_->show();
        QApplication::setActiveWindow(dialog_.get());
        QTest::qWait(1);
    }

    template <typename Widget>
    Widget& At(int id) {
        return *dialog_->findChild<Widget*>(QString::number(id));
    }

    void Click(int id) {
        auto& button = At<QAbstractButton>(id);
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    }

    // Clicks the check box of a node, or its text.
    enum class Spot { Check, Text };
    void ClickNode(int tree, int branch, int leaf, Spot spot = Spot::Check) {
        auto& shown = At<QTreeWidget>(tree);
        QTreeWidgetItem* item = shown.topLevelItem(branch);
        if (leaf >= 0) {
            item->setExpanded(true);
            item = item->child(leaf);
        }
        shown.scrollToItem(item);
        const QRect row = shown.visualItemRect(item);
        const int x = row.left() + (spot == Spot::Check ? 10 : 40);
        QTest::mouseClick(shown.viewport(), Qt::LeftButton, {}, QPoint(x, row.center().y()));
    }

    bool IsChecked(int tree, int branch, int leaf) {
        return At<QTreeWidget>(tree).topLevelItem(branch)->child(leaf)->checkState(0) == Qt::Checked;
    }

    std::string Label() { return ToUtf8(dialog_->Target().m_strTargetLabel); }

    TargetLists lists_;
    RecordingLinkStore links_;
    ScriptedQuestions questions_;
    std::unique_ptr<TargetDialog> dialog_;
};

TEST_F(TargetDialogTest, OpensOnWhatTheTargetSays) {
    TargetFields target;
    target.Portfolio = 3;
    target.Group = {"502"};
    target.Acc = "55556666777";
    target.Except1 = target.Except3 = target.Except10 = 1;
    target.Month = 4;
    Open(target);
    EXPECT_TRUE(At<QTreeWidget>(21123).isVisible());
    EXPECT_FALSE(At<QTreeWidget>(21070).isVisible());
    EXPECT_TRUE(At<QWidget>(21126).isVisible());
    EXPECT_FALSE(At<QWidget>(21112).isVisible());
    EXPECT_TRUE(At<QTreeWidget>(21123).hasFocus());
    EXPECT_TRUE(IsChecked(21123, 0, 1));
    EXPECT_TRUE(IsChecked(21123, 1, 1));
    EXPECT_EQ("1/2", At<QTreeWidget>(21123).topLevelItem(0)->text(1));
    EXPECT_TRUE(At<QRadioButton>(21120).isChecked());
    EXPECT_EQ("4월", At<QComboBox>(21121).currentText());

    QTest::keyClick(dialog_.get(), Qt::Key_Return);
    EXPECT_EQ(QDialog::Accepted, dialog_->result());
    EXPECT_TRUE(static_cast<const TargetFields&>(dialog_->Target()) == target);
}

TEST_F(TargetDialogTest, MonthsWithoutAButtonAreInTheList) {
    const struct {
        int month;
        int radio;
        const char* listed;
        int agreed;
    } cases[] = {{0, 21115, "1월", 0},    {12, 21119, "1월", 12},  {1, 21120, "1월", 1},
                 {11, 21120, "11월", 11}, {13, 21120, "12월", 12}, {-1, 21120, "1월", 1}};
    for (const auto& c : cases) {
        SearchTarget target = SearchTarget::ForNewScreen();
        target.Month = c.month;
        Open(target);
        EXPECT_TRUE(At<QRadioButton>(c.radio).isChecked()) << c.month;
        EXPECT_EQ(c.listed, At<QComboBox>(21121).currentText());
        EXPECT_EQ(c.radio == 21120, At<QWidget>(21121).isEnabled()) << c.month;
        Click(1);
        EXPECT_EQ(c.agreed, dialog_->Target().Month);
    }
}

TEST_F(TargetDialogTest, ClicksOnBoxesCheckAndClicksOnTextsDont) {
    Open(SearchTarget::ForNewScreen());
    ClickNode(21070, 0, -1);  // lets go of everything
    ClickNode(21070, 1, 1, Spot::Text);
    EXPECT_FALSE(IsChecked(21070, 1, 1));
    QTest::keyClick(&At<QTreeWidget>(21070), Qt::Key_Space);
    EXPECT_TRUE(IsChecked(21070, 1, 1));
    ClickNode(21070, 2, -1);
    EXPECT_TRUE(IsChecked(21070, 2, 0));
    Click(21110);
    Click(21118);
    EXPECT_FALSE(At<QWidget>(21121).isEnabled());
    Click(21120);
    EXPECT_TRUE(At<QWidget>(21121).isEnabled());
    Click(1);
    EXPECT_EQ("<업종대상(거래소,코스닥)><관리제외><1월결산>", Label());
    EXPECT_EQ((std::vector<std::string>{"002", "101"}), dialog_->Target().Group);
}

TEST_F(TargetDialogTest, SecondAccountClearsTheFirst) {
    Open(SearchTarget::ForNewScreen());
    Click(21087);
    EXPECT_TRUE(At<QTreeWidget>(21123).hasFocus()) << "the keys go to the tree";
    ClickNode(21123, 1, 0);
    ClickNode(21123, 1, 1);
    EXPECT_FALSE(IsChecked(21123, 1, 0));
    Click(21126);
    Click(1);
    EXPECT_EQ("<포트폴리오(보유:5555-6666)제외><제외없음><전체월결산>", Label());
    EXPECT_EQ("55556666777", dialog_->Target().Acc);
}

TEST_F(TargetDialogTest, NothingCheckedOnTheShownTabIsRefused) {
    Open(SearchTarget::ForNewScreen());
    Click(21088);
    EXPECT_FALSE(At<QWidget>(21126).isVisible());
    QTest::keyClick(&At<QTreeWidget>(21124), Qt::Key_Enter);
    EXPECT_TRUE(dialog_->isVisible());
    ASSERT_EQ(1u, questions_.boxes.size());
    EXPECT_EQ("대상 그룹이 선택되지 않았습니다.\n하나 이상의 대상 그룹이 선택되어야 합니다."_cp949,
              questions_.boxes[0].text);
    EXPECT_EQ("검색대상 선택"_cp949, questions_.boxes[0].caption);
    EXPECT_EQ(host::Icon::Information, questions_.boxes[0].icon);
    QTest::keyClick(&At<QTreeWidget>(21124), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(QDialog::Rejected, dialog_->result());
}

// From tab to tab by arrows, then on with Tab through everything.
TEST_F(TargetDialogTest, CanBeWorkedByKeysAlone) {
    Open(SearchTarget::ForNewScreen());
    At<QWidget>(21086).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&At<QWidget>(21086), Qt::Key_Right);
    ASSERT_TRUE(At<QRadioButton>(21087).hasFocus());
    for (const int next : {21123, 21126, 21110, 21111, 21113, 21122, 21165, 21125, 21115, 1, 2, 21087}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QString::number(next), QApplication::focusWidget()->objectName());
    }
}

TEST(TargetCommandTest, ButtonOpensTheDialogOnTheScreensTarget) {
    TestHost host;
    host.Open();
    host.questions.onRun = [](const std::string& name, void* object) {
        EXPECT_EQ("TargetDialog", name);
        auto* dialog = static_cast<QDialog*>(object);
        dialog->findChild<QAbstractButton*>("21117")->click();
        dialog->findChild<QAbstractButton*>("1")->click();
        return dialog->result() == QDialog::Accepted;
    };
    host.Control<QAbstractButton>(21026).click();
    auto& label = host.Control<QLabel>(21027);
    EXPECT_EQ("<업종대상(전체)><제외없음><6월결산>", label.text());
    EXPECT_EQ("<p>&lt;업종대상(전체)&gt;&lt;제외없음&gt;&lt;6월결산&gt;</p>", label.toolTip());
    host.questions.onRun = nullptr;  // the user cancels
    host.Control<QAbstractButton>(21026).click();
    EXPECT_EQ("<업종대상(전체)><제외없음><6월결산>", label.text());
}

}  // namespace
}  // namespace jogeon::test
