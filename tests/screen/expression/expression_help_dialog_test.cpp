#include "screen/expression/expression_help_dialog.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <set>

#include <gtest/gtest.h>

#include "screen/expression/expression_error_dialog.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

TEST(ExpressionHelpDialogTest, EachTopicHasItsText) {
    test::ScriptedQuestions questions;
    questions.onRun = [&](const std::string&, void* object) {
        auto& dialog = *static_cast<QDialog*>(object);
        dialog.open();
        auto& list = *dialog.findChild<QListWidget*>("31515");
        const auto& text = *dialog.findChild<QPlainTextEdit*>("31514");
        EXPECT_TRUE(text.isReadOnly());
        EXPECT_EQ(9, list.count());
        std::set<QString> texts;
        for (int row = 0; row < list.count(); ++row) {
            EXPECT_EQ(row, list.currentRow());
            EXPECT_TRUE(texts.insert(text.toPlainText()).second);
            EXPECT_EQ(0, text.horizontalScrollBar()->maximum()) << "cut off in row " << row;
            if (row == 3) {
                EXPECT_EQ("[연산자] OR", list.currentItem()->text().toStdString());
                EXPECT_EQ("[OR 연산자] ", text.toPlainText().section('\n', 1, 1).toStdString());
            }
            QTest::keyClick(&list, Qt::Key_Down);
        }
        EXPECT_EQ(0, list.horizontalScrollBar()->maximum());
        QTest::mouseClick(dialog.findChild<QPushButton*>("1"), Qt::LeftButton);
        EXPECT_FALSE(dialog.isVisible());
        return dialog.result() == QDialog::Accepted;
    };
    OnExpressionHelp(questions);
    EXPECT_EQ(std::vector<std::string>{"ExpressionHelpDialog"}, questions.dialogs);
}

TEST(ExpressionErrorDialogTest, ALongExpressionIsShownWholeAndAtItsHand) {
    std::string expression;
    for (int i = 0; i < 60; ++i) expression += "A and ";
    ExpressionErrorDialog dialog(expression + " ☞ "_cp949 + "B");
    dialog.open();
    const auto& text = *dialog.findChild<QPlainTextEdit*>("21095");
    EXPECT_TRUE(
        text.toPlainText().startsWith(" 선택영역을 확인하십시요. \n" + QString(51, '=') + "\n\nA and "));
    EXPECT_EQ(0, text.horizontalScrollBar()->maximum());
    EXPECT_EQ(1, text.document()->findBlockByNumber(1).layout()->lineCount()) << "the rule takes one line";
    EXPECT_TRUE(text.viewport()->rect().intersects(text.cursorRect()));
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_EQ(QDialog::Accepted, dialog.result());
}

}  // namespace
}  // namespace jogeon
