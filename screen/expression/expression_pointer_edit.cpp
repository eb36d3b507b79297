// The expression box under the pointer: hovering, the toggle by double click, and the context menu.
#include <QContextMenuEvent>
#include <QMenu>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "screen/expression/expression_cursors_qt.h"
#include "screen/expression/expression_edit.h"
#include "screen/host/window_messages_qt.h"

namespace jogeon {

// The character that the point lies on. Behind the end of a line it is the line's last one, behind the end of
// the text and below it the text's length.
int ExpressionEdit::CharacterAt(const QPointF& point) const {
    const QTextBlock block = document()->firstBlock();
    const QTextLayout& layout = *block.layout();
    const QPointF at = point - blockBoundingGeometry(block).translated(contentOffset()).topLeft();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        if (at.y() >= line.rect().bottom()) continue;
        if (at.x() < line.naturalTextRect().right()) {
            return line.xToCursor(at.x(), QTextLine::CursorOnCharacter);
        }
        const bool last = i + 1 == layout.lineCount();
        return line.textStart() + line.textLength() - (last ? 0 : 1);
    }
    return block.length() - 1;
}

void ExpressionEdit::SetHover(const OperatorHover& hover) {
    const bool sameKind = hover.kind == hover_.kind;
    hover_ = hover;
    if (sameKind) return;
    viewport()->setCursor(hover.kind == OperatorKind::None
                              ? QCursor(Qt::ArrowCursor)
                              : OperatorCursor(MeansAnd(hover.kind), devicePixelRatioF()));
}

void ExpressionEdit::mousePressEvent(QMouseEvent* event) {
    doubleClicked_ = false;
    QPlainTextEdit::mousePressEvent(event);
}

// Where the arrow shows, a double click does nothing: behind the text as well.
void ExpressionEdit::mouseMoveEvent(QMouseEvent* event) {
    if (doubleClicked_ && event->buttons() != Qt::NoButton) return;
    if (!(event->buttons() & Qt::LeftButton)) {
        const std::string text = Characters();
        const int at = CharacterAt(event->position());
        OperatorHover hover;
        if (at < static_cast<int>(text.size())) TestHover(text, std::max(at, 1), hover);
        SetHover(hover);
    }
    QPlainTextEdit::mouseMoveEvent(event);
}

// The release of a double click is kept back: it would end the selection on the new operator.
void ExpressionEdit::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(doubleClicked_, false)) QPlainTextEdit::mouseReleaseEvent(event);
}

// No word is selected by a double click.
void ExpressionEdit::mouseDoubleClickEvent(QMouseEvent* event) {
    doubleClicked_ = true;
    if (event->button() == Qt::LeftButton && hover_.kind != OperatorKind::None) ToggleOperator();
}

void ExpressionEdit::ToggleOperator() {
    const OperatorToggle toggle = ToggleOf(hover_);
    const QString replacement =
        QString::fromLatin1(toggle.replacement.data(), static_cast<qsizetype>(toggle.replacement.size()));
    if (!MayInsert(replacement, toggle.place.start, toggle.place.end)) return;
    SelectCharacters(toggle.place);
    InsertAsOneStep(replacement);
    SelectCharacters(toggle.after.place);
    Recolour();
    SetHover(toggle.after);
    host::PostMessage(host::ParentWindow(*this), host::kExpressionChanged, 0, 0);
}

QMenu* ExpressionEdit::MakeMenu() {
    auto* menu = new QMenu(this);
    const auto add = [&](const char* text, const char* keys, bool enabled,
                         void (QPlainTextEdit::*command)()) {
        QAction* action = menu->addAction(QString::fromUtf8(text) + '\t' + keys);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, command);
    };
    const bool selected = textCursor().hasSelection();
    add("실행 취소", "Ctrl+Z", document()->isUndoAvailable(), &QPlainTextEdit::undo);
    add("다시 실행", "Ctrl+Y", document()->isRedoAvailable(), &QPlainTextEdit::redo);
    menu->addSeparator();
    add("잘라내기", "Ctrl+X", selected, &QPlainTextEdit::cut);
    add("복사", "Ctrl+C", selected, &QPlainTextEdit::copy);
    add("붙여넣기", "Ctrl+V", canPaste(), &QPlainTextEdit::paste);
    menu->addSeparator();
    add("모두 선택", "Ctrl+A", !document()->isEmpty(), &QPlainTextEdit::selectAll);
    return menu;
}

void ExpressionEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = MakeMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

}  // namespace jogeon
