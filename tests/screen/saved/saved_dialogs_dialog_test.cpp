#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "screen/saved/import_dialog.h"
#include "screen/saved/name_dialog.h"
#include "screen/saved/reorder_dialog.h"
#include "screen/text/bytes.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::test {
namespace {

template <typename Widget>
Widget& At(QDialog& dialog, int id) {
    return *dialog.findChild<Widget*>(QString::number(id));
}

void Click(QDialog& dialog, int button) {
    QTest::mouseClick(&At<QPushButton>(dialog, button), Qt::LeftButton);
}

TEST(NameDialogTest, StaysUntilTheNameIsGood) {
    ScriptedQuestions questions;
    NameDialog dialog({"used"}, "used", questions);
    dialog.show();
    auto& edit = At<QLineEdit>(dialog, 21066);
    EXPECT_EQ("used", edit.selectedText());
    Click(dialog, 21064);
    ASSERT_EQ(1u, questions.boxes.size());
    EXPECT_EQ("사용자정의 조건저장", ToUtf8(questions.boxes[0].caption));
    EXPECT_EQ(host::Icon::Warning, questions.boxes[0].icon);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.focusWidget() == &edit);

    // "각" in pieces, as some systems paste it.
    edit.setText(QString::fromUtf8("\u1100\u1161\u11a8 "));
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(QDialog::Accepted, dialog.result());
    EXPECT_EQ("각", ToUtf8(dialog.Name()));
}

TEST(ImportDialogTest, GivesTheSelectedSetOfTheSelectedId) {
    TempFolder folder;
    WriteText(folder.Path() / "me_SaveIndex.dat", "[Version]\nver=1\n[00]\nName=mine\n");
    WriteText(folder.Path() / "kim_SaveIndex.dat", "[Version]\nver=1\n[00]\nName=돌파\n[07]\nName=둘\n");
    WriteText(folder.Path() / "lee_SaveIndex.dat", "[Version]\nver=1\n");
    ScriptedQuestions questions;
    ImportDialog dialog(folder.Path(), "me", questions);
    dialog.show();
    auto& ids = At<QTreeWidget>(dialog, 17126);
    auto& sets = At<QTreeWidget>(dialog, 22018);
    ASSERT_EQ(2, ids.topLevelItemCount());
    EXPECT_EQ("kim", ids.topLevelItem(0)->text(0));
    Click(dialog, 1);
    EXPECT_EQ("선택된 조건이 없습니다. 다시 선택하여 주시기 바랍니다.", ToUtf8(questions.boxes.at(0).text));
    EXPECT_TRUE(dialog.isVisible());

    const auto click = [](QTreeWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.topLevelItem(row)).center());
    };
    click(ids, 0);
    ASSERT_EQ(2, sets.topLevelItemCount());
    EXPECT_EQ("[07]둘", sets.topLevelItem(1)->text(0));
    click(sets, 1);
    QTest::keyClick(&ids, Qt::Key_Down);  // the other id has no sets, and nothing stays selected
    EXPECT_EQ(0, sets.topLevelItemCount());
    Click(dialog, 1);
    EXPECT_EQ(2u, questions.boxes.size());
    click(ids, 0);
    click(sets, 1);
    Click(dialog, 1);
    EXPECT_EQ(QDialog::Accepted, dialog.result());
    EXPECT_EQ(folder.Path() / "kim_SaveIndex.dat", dialog.Choice().file);
    EXPECT_EQ("07", dialog.Choice().section);
}

class ReorderDialogTest : public testing::Test {
protected:
    ReorderDialogTest() {
        for (int i = 0; i < 40; ++i) sets_.push_back({ZeroPadded(i, 2), "s" + std::to_string(i)});
        dialog_ = std::make_unique<ReorderDialog>(sets_);
        dialog_->show();
        list_ = &At<QTreeWidget>(*dialog_, 22018);
    }

    // The first rows as they are shown.
    std::string First(int rows) const {
        std::string text;
        for (int i = 0; i < rows; ++i) text += list_->topLevelItem(i)->text(0).toStdString() + " ";
        return text;
    }
    QPoint Row(int row) const { return list_->visualItemRect(list_->topLevelItem(row)).center(); }

    // Drags with the left button, over each of the places.
    void Drag(const std::vector<QPoint>& places) {
        QWidget* port = list_->viewport();
        QTest::mousePress(port, Qt::LeftButton, {}, places.front());
        for (const QPoint& place : places) {
            QMouseEvent move(QEvent::MouseMove, place, port->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                             {});
            QApplication::sendEvent(port, &move);
        }
        QTest::mouseRelease(port, Qt::LeftButton, {}, places.back());
    }

    std::vector<SavedSetName> sets_;
    std::unique_ptr<ReorderDialog> dialog_;
    QTreeWidget* list_ = nullptr;
};

TEST_F(ReorderDialogTest, ButtonsAndKeysMoveTheSelectedRowAndKeepItInSight) {
    Click(*dialog_, 22025);
    EXPECT_FALSE(dialog_->Changed());
    Click(*dialog_, 22026);
    EXPECT_EQ("[01]s1 [00]s0 [02]s2 ", First(3));
    Click(*dialog_, 22028);
    EXPECT_EQ(39, list_->currentIndex().row());
    EXPECT_TRUE(list_->viewport()->rect().contains(Row(39)));
    dialog_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    list_->setFocus();
    QTest::keyClick(dialog_->windowHandle(), Qt::Key_Up);
    QTest::keyClick(dialog_->windowHandle(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ("[39]s39 [01]s1 [02]s2 ", First(3));
    EXPECT_EQ(39u, dialog_->Order().front());
    EXPECT_EQ(0u, dialog_->Order().back());
    EXPECT_TRUE(list_->topLevelItem(0)->isSelected());
}

TEST_F(ReorderDialogTest, ADroppedRowGoesBeforeTheOneUnderThePointer) {
    Drag({Row(0), Row(2), Row(3)});
    EXPECT_EQ("[01]s1 [02]s2 [00]s0 [03]s3 ", First(4));
    EXPECT_TRUE(list_->topLevelItem(2)->isSelected());
    Drag({Row(3), Row(0)});
    EXPECT_EQ("[03]s3 [01]s1 [02]s2 [00]s0 ", First(4));
    const auto order = dialog_->Order();
    Drag({Row(0), Row(2), QPoint(-20, 40)});  // outside
    Drag({Row(0), Row(0) + QPoint(1, 0)});    // hardly moved
    EXPECT_EQ(order, dialog_->Order());
}

TEST_F(ReorderDialogTest, ADragShowsWhereTheRowWouldGoAndEscEndsIt) {
    const QImage before = list_->grab().toImage();
    QWidget* port = list_->viewport();
    QTest::mousePress(port, Qt::LeftButton, {}, Row(1));
    const QImage pressed = list_->grab().toImage();
    QMouseEvent move(QEvent::MouseMove, Row(3), port->mapToGlobal(Row(3)), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(port, &move);
    EXPECT_NE(pressed, list_->grab().toImage());
    EXPECT_EQ(Qt::ClosedHandCursor, port->cursor().shape());
    QTest::keyClick(list_, Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible());
    QTest::mouseRelease(port, Qt::LeftButton, {}, Row(3));
    EXPECT_FALSE(dialog_->Changed());
}

}  // namespace
}  // namespace jogeon::test
