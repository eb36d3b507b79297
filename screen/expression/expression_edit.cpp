#include "screen/expression/expression_edit.h"

#include <QScopedValueRollback>
#include <algorithm>

#include "screen/expression/expression_highlighter_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr int kMargin = 2;  // pixels around the text

}  // namespace

ExpressionEdit::ExpressionEdit(host::Questions& questions, QWidget* parent)
    : QPlainTextEdit(parent), questions_(questions), highlighter_(new ExpressionHighlighter(document())) {
    setProperty("windowClass", "S4CExpEditorClass");
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(kMargin);
    // Without an input method the Latin letters of the keys arrive, whatever language it is set to.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    viewport()->setMouseTracking(true);
    viewport()->setCursor(Qt::ArrowCursor);
    connect(this, &QPlainTextEdit::textChanged, this, &ExpressionEdit::OnTextChanged);
}

std::string ExpressionEdit::ExpressionText() const {
    return FromQString(toPlainText());
}

void ExpressionEdit::SetExpressionText(const std::string& text) {
    const QScopedValueRollback guard(byProgram_, true);
    setPlainText(OnOneLine(ToQString(text)));
    Recolour();
}

TextSelection ExpressionEdit::Selection() const {
    const QString text = toPlainText();
    const QTextCursor cursor = textCursor();
    const auto bytesBefore = [&text](int position) {
        return static_cast<int>(FromQString(text.left(position)).size());
    };
    return {bytesBefore(cursor.selectionStart()), bytesBefore(cursor.selectionEnd())};
}

void ExpressionEdit::Select(TextSelection selection) {
    const std::string text = ExpressionText();
    const auto charactersBefore = [&text](int position) {
        return static_cast<int>(ToQString(text.substr(0, static_cast<std::size_t>(position))).size());
    };
    SelectCharacters({charactersBefore(selection.start), charactersBefore(selection.end)});
}

// Earlier changes go from the history with it, as their places are no longer right.
void ExpressionEdit::ReplaceSelection(const std::string& text) {
    const QScopedValueRollback guard(byProgram_, true);
    document()->setUndoRedoEnabled(false);
    textCursor().insertText(OnOneLine(ToQString(text)));
    document()->setUndoRedoEnabled(true);
}

void ExpressionEdit::Recolour() {
    highlighter_->Recolour();
}

void ExpressionEdit::RefreshColors() {
    highlighter_->RefreshColors();
    SetHover({});  // the next pointer is drawn anew
}

void ExpressionEdit::TakeFocus() {
    setFocus();
}

void ExpressionEdit::SelectCharacters(TextSelection selection) {
    const int length = static_cast<int>(toPlainText().size());
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::clamp(selection.start, 0, length));
    cursor.setPosition(std::clamp(selection.end, 0, length), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

std::string ExpressionEdit::Characters() const {
    return toPlainText().toLatin1().toStdString();
}

// New looks are announced as a change too, and are none.
void ExpressionEdit::OnTextChanged() {
    const QString text = toPlainText();
    if (text == text_) return;
    text_ = text;
    words_.OnTextChanged(textCursor().position());
    SetHover({});
    if (!byProgram_) emit Edited();
}

// A high box shows the whole text, a low one the part around the caret.
void ExpressionEdit::resizeEvent(QResizeEvent* event) {
    const int twoLines = 2 * fontMetrics().lineSpacing() + 2 * kMargin;
    setLineWrapMode(viewport()->height() < twoLines ? NoWrap : WidgetWidth);
    QPlainTextEdit::resizeEvent(event);
}

}  // namespace jogeon
