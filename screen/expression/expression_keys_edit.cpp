// The expression box as text comes into it: keys, the clipboard, and text that is dropped.
#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>

#include "screen/expression/expression_characters.h"
#include "screen/expression/expression_edit.h"
#include "screen/expression/expression_highlighter_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

bool IsAllowed(QChar character) {
    return IsExpressionCharacter(character.unicode());
}

// Whether the key stands for text rather than for an editing command.
bool IsText(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const QString text = event.text();
    const bool command = modifiers == Qt::ControlModifier ||
                         modifiers == (Qt::ControlModifier | Qt::ShiftModifier) || text.isEmpty();
    return !command && text[0].category() != QChar::Other_Control;
}

}  // namespace

QString ExpressionEdit::OnOneLine(QString text) {
    text.replace("\r\n", " ");
    for (QChar& c : text) {
        if (c.isSpace()) c = ' ';
    }
    return text;
}

void ExpressionEdit::keyPressEvent(QKeyEvent* event) {
    const bool redo = event->key() == Qt::Key_Y && event->modifiers() == Qt::ControlModifier;
    if (redo) {
        QPlainTextEdit::redo();
    } else if (IsText(*event)) {
        Type(event);
    } else if (!SelectWords(*event) && event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void ExpressionEdit::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Shift) words_.OnShiftUp();
    if (event->key() == Qt::Key_Space) Recolour();
    QPlainTextEdit::keyReleaseEvent(event);
}

// What an input method composes is no part of an expression.
void ExpressionEdit::inputMethodEvent(QInputMethodEvent* event) {
    event->accept();
}

// The release of a Shift that is held now goes to another window.
void ExpressionEdit::focusOutEvent(QFocusEvent* event) {
    words_.OnShiftUp();
    QPlainTextEdit::focusOutEvent(event);
}

// True if the key was an arrow with Shift, which is never more than that.
bool ExpressionEdit::SelectWords(const QKeyEvent& event) {
    const bool left = event.key() == Qt::Key_Left;
    const bool arrow = left || event.key() == Qt::Key_Right;
    // A Shift that went down before the box had the focus shows with its arrow only.
    const bool shiftBegins =
        event.key() == Qt::Key_Shift || (arrow && (event.modifiers() & Qt::ShiftModifier) != 0);
    if (shiftBegins && !words_.ShiftIsDown()) words_.OnShiftDown(textCursor().position());
    if (!arrow) return false;
    if (!words_.ShiftIsDown()) {
        left ? words_.OnPlainLeft() : words_.OnPlainRight();
        return false;
    }
    const std::string text = Characters();
    const auto selection = left ? words_.OnShiftLeft(text) : words_.OnShiftRight(text);
    if (selection) SelectCharacters(*selection);
    return true;
}

void ExpressionEdit::Type(QKeyEvent* event) {
    const QString text = event->text();
    const QTextCursor cursor = textCursor();
    if (!std::all_of(text.begin(), text.end(), IsAllowed) ||
        !MayInsert(text, cursor.selectionStart(), cursor.selectionEnd())) {
        return;
    }
    highlighter_->SetTyping(true);
    QPlainTextEdit::keyPressEvent(event);
    highlighter_->SetTyping(false);
}

// --- text from elsewhere

bool ExpressionEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText();
}

void ExpressionEdit::insertFromMimeData(const QMimeData* source) {
    QString text = OnOneLine(source->text());
    text.removeIf([](QChar c) { return !IsAllowed(c); });
    const QTextCursor cursor = textCursor();
    if (text.isEmpty() || !MayInsert(text, cursor.selectionStart(), cursor.selectionEnd())) return;
    InsertAsOneStep(text);
}

// Steps of the undo history that touch are joined, but never across a state that counts as saved.
void ExpressionEdit::InsertAsOneStep(const QString& text) {
    document()->setModified(false);
    textCursor().insertText(text);
    document()->setModified(false);
}

bool ExpressionEdit::MayInsert(const QString& text, int start, int end) {
    QString after = toPlainText();
    after.replace(start, end - start, text);
    const auto refusal = RefuseLength(ExpressionText(), FromQString(after));
    if (refusal) questions_.Ask(*refusal);
    return !refusal;
}

}  // namespace jogeon
