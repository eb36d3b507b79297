#include "screen/expression/expression_edit.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <memory>

#include <gtest/gtest.h>

#include "screen/host/window_messages_qt.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/marked_text.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

class Listening : public QWidget {
public:
    int changes = 0;

protected:
    bool event(QEvent* event) override {
        const host::MessageEvent* message = host::AsMessage(event);
        if (message && message->number == host::kExpressionChanged) ++changes;
        return message || QWidget::event(event);
    }
};

class ExpressionEditTest : public testing::Test {
protected:
    ExpressionEditTest() {
        host::RegisterWindow(screen);
        screen.resize(400, 120);
        form.resize(400, 120);
        edit.setGeometry(5, 5, 380, 22);
        other.setGeometry(5, 60, 80, 22);
        screen.show();
        QApplication::setActiveWindow(&screen);
        edit.setFocus();
        QObject::connect(&edit, &ExpressionEdit::Edited, [this] { ++edits; });
    }

    void Set(const char* text) { edit.SetExpressionText(text); }
    void Paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    }
    std::string Marked() const { return test::WithMarks(edit.ExpressionText(), edit.Selection()); }

    // One sign a character: o operator, l letter, b bracket, - another; a capital where it is bold.
    std::string Looks() const {
        std::string looks(edit.ExpressionText().size(), '?');
        for (const auto& range : edit.document()->firstBlock().layout()->formats()) {
            const QColor ink = range.format.foreground().color();
            char sign = '-';
            if (range.format.hasProperty(QTextFormat::ForegroundBrush)) {
                sign = ink == QColor(0xd0, 0x2d, 0x2d)   ? 'o'
                       : ink == QColor(0x2d, 0x2d, 0xd0) ? 'b'
                       : ink == QColor(0, 0, 0)          ? 'l'
                                                         : '?';
            }
            if (range.format.fontWeight() == QFont::Bold) sign = static_cast<char>(std::toupper(sign));
            std::fill_n(looks.begin() + range.start, range.length, sign);
        }
        return looks;
    }

    QPoint PlaceOf(int character) const {
        QTextCursor cursor(edit.document());
        cursor.setPosition(character);
        const QPoint left = edit.cursorRect(cursor).center();
        cursor.setPosition(character + 1);
        return (left + edit.cursorRect(cursor).center()) / 2;
    }
    void MoveTo(const QPoint& place) {
        QMouseEvent move(QEvent::MouseMove, place, edit.viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(edit.viewport(), &move);
    }
    void HoverAt(int character) { MoveTo(PlaceOf(character)); }
    void DoubleClickAt(int character) {
        QTest::mouseDClick(edit.viewport(), Qt::LeftButton, {}, PlaceOf(character));
        QCoreApplication::sendPostedEvents();
    }
    bool ShowsOperator() const { return edit.viewport()->cursor().shape() == Qt::BitmapCursor; }

    test::ScriptedQuestions questions;
    Listening screen;
    QWidget form{&screen};  // between box and screen, and no window of its own
    QPushButton other{&form};
    ExpressionEdit edit{questions, &form};
    int edits = 0;
};

TEST_F(ExpressionEditTest, OnlyCharactersOfAnExpressionComeIn) {
    QTest::keyClicks(&edit, "A1 an?d._%*+,<>\"(b|[c}&!Z)");
    EXPECT_EQ("A and(b|[c}&!Z)", edit.ExpressionText());
    for (const char32_t odd : {U'가', U'Ａ', U'é', U'\x1F600'}) {
        const QString text = QString::fromUcs4(&odd, 1);
        QKeyEvent key(QEvent::KeyPress, 0, {}, text);
        QCoreApplication::sendEvent(&edit, &key);
    }
    QInputMethodEvent composed;
    composed.setCommitString("가A");
    QCoreApplication::sendEvent(&edit, &composed);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ("A and(b|[c}&!Z)", edit.ExpressionText());
    EXPECT_FALSE(edit.testAttribute(Qt::WA_InputMethodEnabled));

    const int before = edits;
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(" and(b|[c}&!Z", edit.ExpressionText());
    EXPECT_EQ(before + 2, edits);
    QTest::keyClick(&edit, Qt::Key_Tab);
    EXPECT_FALSE(edit.hasFocus());
}

TEST_F(ExpressionEditTest, APastePassesTheFilterAndIsOneStepToUndo) {
    QTest::keyClicks(&edit, "A");
    Paste(QString::fromUtf8(" and 가12(B\r\nor\tC)\u00a0"));
    EXPECT_EQ("A and (B or C) ", edit.ExpressionText());
    EXPECT_EQ(2, edits);
    QTest::keyClicks(&edit, "!");
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("A and (B or C) ", edit.ExpressionText());
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("A", edit.ExpressionText());
    QTest::keyClick(&edit, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ("A and (B or C) ", edit.ExpressionText());
    EXPECT_EQ(6, edits);
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    Paste(QString::fromUtf8("가나다"));
    EXPECT_EQ("[A and (B or C) ]", Marked()) << "nothing of it can come in, so nothing goes";
    QTest::keyClick(&edit, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ("", edit.ExpressionText());
    EXPECT_EQ("A and (B or C) ", QApplication::clipboard()->text().toStdString());
}

TEST_F(ExpressionEditTest, UndoStopsWhereTheProgramHasWrittenTheText) {
    QTest::keyClicks(&edit, "A or");
    Set("A and B");
    EXPECT_EQ(4, edits) << "the program's change is none of the user's";
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("A and B", edit.ExpressionText());
    QTest::keyClicks(&edit, "!");
    edit.Select({0, 2});
    edit.ReplaceSelection("!(A)");
    EXPECT_EQ("!(A) and B", edit.ExpressionText());
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("!(A) and B", edit.ExpressionText());
    EXPECT_EQ(5, edits);
}

TEST_F(ExpressionEditTest, TextTooLongIsRefusedAndNeverCut) {
    Paste(QString(101, '!'));
    ASSERT_EQ(1u, questions.boxes.size());
    EXPECT_EQ("", edit.ExpressionText());
    Paste(QString(100, '!'));
    QTest::keyClicks(&edit, "A");
    EXPECT_EQ(std::string(100, '!'), edit.ExpressionText());
    EXPECT_EQ(2u, questions.boxes.size());
    QTest::keyClicks(&edit, "  ");
    EXPECT_EQ(2u, questions.boxes.size()) << "blanks take no room in what is sent";

    const std::string stored = std::string(250, ' ') + "A and B and C";
    edit.SetExpressionText(stored);
    EXPECT_EQ(stored, edit.ExpressionText());
    QTest::keyClicks(&edit, " ");
    EXPECT_EQ(3u, questions.boxes.size());
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(stored.size() - 1, edit.ExpressionText().size());
    EXPECT_EQ(3u, questions.boxes.size());
}

TEST_F(ExpressionEditTest, EachKindOfCharacterHasItsInk) {
    Set("A and (b|C]");
    EXPECT_EQ("LOOOOOBOOLO", Looks());
    QTest::keyClicks(&edit, "b(!]");
    EXPECT_EQ("lbobLOOOOOBOOLO", Looks()) << "what is being typed isn't bold";
    QTest::keyPress(&edit, Qt::Key_Space);
    EXPECT_EQ("lbob-LOOOOOBOOLO", Looks());
    QTest::keyRelease(&edit, Qt::Key_Space);
    EXPECT_EQ("OBOOOLOOOOOBOOLO", Looks());
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ("OBOLOOOOOBOOLO", Looks());

    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    edit.Recolour();
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("A and (b|C]", edit.ExpressionText()) << "colours are no step to undo";
    EXPECT_FALSE(edit.document()->isUndoAvailable());
}

TEST_F(ExpressionEditTest, ShiftAndArrowsSelectWords) {
    Set("A and B");
    QTest::keyClick(&edit, Qt::Key_End);
    QTest::keyPress(&edit, Qt::Key_Shift);
    for (const auto& [key, expected] : {std::pair(Qt::Key_Left, "A and [B]"),
                                        {Qt::Key_Left, "A and[ B]"},
                                        {Qt::Key_Right, "A and [B]"},
                                        {Qt::Key_Left, "A and[ B]"}}) {
        QTest::sendKeyEvent(QTest::Click, &edit, key, QString(), Qt::NoModifier);
        EXPECT_EQ(expected, Marked());
    }
    EXPECT_EQ(5, edit.textCursor().position());
    QTest::keyRelease(&edit, Qt::Key_Shift);
    QTest::keyClick(&edit, Qt::Key_Left);
    EXPECT_EQ("A and[] B", Marked());
    // Shift went down elsewhere: only the arrow tells of it.
    QKeyEvent arrow(QEvent::KeyPress, Qt::Key_Left, Qt::ShiftModifier);
    QCoreApplication::sendEvent(&edit, &arrow);
    EXPECT_EQ("A [and] B", Marked());
    edit.clearFocus();
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClick(&edit, Qt::Key_Right);
    EXPECT_EQ("A[] and B", Marked()) << "a Shift let go elsewhere is let go";
}

TEST_F(ExpressionEditTest, SelectionsCountBytesAroundTextThatIsNotLatin) {
    edit.SetExpressionText("가 A and B"_cp949);
    edit.Select({3, 4});
    EXPECT_EQ(2, edit.textCursor().selectionStart());
    edit.ReplaceSelection("(A)");
    edit.Select({3, 6});
    EXPECT_EQ("가 [(A)] and B"_cp949, Marked());
}

TEST_F(ExpressionEditTest, TheHoverTellsWhereADoubleClickToggles) {
    Set("A and B");
    HoverAt(3);
    EXPECT_TRUE(ShowsOperator());
    DoubleClickAt(3);
    EXPECT_EQ("A [or] B", Marked());
    EXPECT_EQ("LOOOOL", Looks());
    EXPECT_EQ(1, screen.changes);
    EXPECT_EQ(1, edits);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("A and B", edit.ExpressionText());

    for (const int elsewhere : {0, 1, 6}) {
        HoverAt(elsewhere);
        EXPECT_FALSE(ShowsOperator());
        DoubleClickAt(elsewhere);
        EXPECT_FALSE(edit.textCursor().hasSelection()) << "not even the word";
    }
    HoverAt(3);
    MoveTo({300, 10});
    EXPECT_FALSE(ShowsOperator());
    QTest::mouseDClick(edit.viewport(), Qt::LeftButton, {}, {300, 10});
    HoverAt(3);
    Set("(A) or B");  // under the pointer
    DoubleClickAt(3);
    EXPECT_EQ("(A) or B", edit.ExpressionText());
    EXPECT_EQ(1, screen.changes);
    Set("A and B");
    HoverAt(3);
    for (const char* toggled : {"A [or] B", "A [and] B", "A [or] B", "A [and] B"}) {
        DoubleClickAt(2);
        EXPECT_EQ(toggled, Marked());
    }
    EXPECT_EQ(5, screen.changes);
}

TEST_F(ExpressionEditTest, ThePostedChangeOutlivesNoWindow) {
    auto gone = std::make_unique<Listening>();
    host::RegisterWindow(*gone);
    auto box = std::make_unique<ExpressionEdit>(questions, gone.get());
    EXPECT_EQ(host::HandleOf(gone.get()), host::ParentWindow(*box));
    host::PostMessage(host::HandleOf(gone.get()), host::kExpressionChanged, 0, 0);
    EXPECT_EQ(0, gone->changes);
    box.reset();
    gone.reset();
    QCoreApplication::sendPostedEvents();
}

TEST_F(ExpressionEditTest, TheMenuOffersWhatCanBeDone) {
    Set("A and B");
    QTest::keyClicks(&edit, "!");
    QApplication::clipboard()->clear();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, edit.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(edit.viewport(), &asked);
    auto* menu = edit.findChild<QMenu*>();
    ASSERT_NE(nullptr, menu);
    std::vector<std::string> shown;
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator()) continue;
        shown.push_back((action->isEnabled() ? "" : "-") + action->text().section('\t', 0, 0).toStdString());
    }
    EXPECT_EQ(
        (std::vector<std::string>{"실행 취소", "-다시 실행", "-잘라내기", "-복사", "-붙여넣기", "모두 선택"}),
        shown);
    menu->actions().front()->trigger();
    EXPECT_EQ("A and B", edit.ExpressionText());
    menu->close();
}

}  // namespace
}  // namespace jogeon
