#include "screen/expression/expression_help_dialog.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include "screen/expression/expression_error_dialog.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

TEST(ExpressionHelpDialogTest, EachTopicHasItsText) {
    const std::pair<const char*, const char*> topics[] = {
        {"[일반사항]", "[수식작성시 참고 사항] "},
        {"[지표식] A..Z", "[지표식 이름] "},
        {"[연산자] AND", "[AND 연산자] "},
        {"[연산자] OR", "[OR 연산자] "},
        {"[연산자] !", "[NOT 연산자] "},
        {"[괄호] ()", "[소괄호] "},
        {"[NOT, 괄호]",
         "[1] Not으로 설정하려는 영역을 마우스나 키보드로 선택한 후 '!' 버튼을 누르시면 NOT이 지정됩니다. "},
        {"[순서 변경/삭제]", "[순서변경과 삭제] "},
        {"[선택과 지표값 보기]", "[선택과 지표값 보기] "},
    };
    test::ScriptedQuestions questions;
    questions.onRun = [&](const std::string&, void* object) {
        auto& dialog = *static_cast<QDialog*>(object);
        dialog.open();
        auto& list = *dialog.findChild<QListWidget*>("31515");
        const auto& text = *dialog.findChild<QPlainTextEdit*>("31514");
        EXPECT_TRUE(text.isReadOnly());
        EXPECT_EQ(static_cast<int>(std::size(topics)), list.count());
        for (int row = 0; row < list.count(); ++row) {
            EXPECT_EQ(row, list.currentRow());
            EXPECT_EQ(topics[row].first, list.currentItem()->text().toStdString());
            EXPECT_EQ("", text.toPlainText().section('\n', 0, 0));
            EXPECT_EQ(topics[row].second, text.toPlainText().section('\n', 1, 1).toStdString());
            EXPECT_EQ(0, text.horizontalScrollBar()->maximum()) << "cut off in row " << row;
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
