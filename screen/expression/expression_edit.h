// The expression box: the boolean expression over the condition letters, in its display form, on one line.
//
// It takes the characters of an expression only, shows each kind of them in its ink, selects by words with
// Shift and the arrow keys, and toggles `and` and `or` by double click, which it tells its parent window by
// the message kExpressionChanged. Relies on the questions for the box that refuses a text too long.
#pragma once

#include <QPlainTextEdit>
#include <string>

#include "screen/expression/expression_commands.h"
#include "screen/expression/operator_hover.h"
#include "screen/expression/word_selection.h"

class QMenu;

namespace jogeon {

class ExpressionHighlighter;

class ExpressionEdit : public QPlainTextEdit, public ExpressionBox {
    Q_OBJECT

public:
    // `questions` outlives the box.
    explicit ExpressionEdit(host::Questions& questions, QWidget* parent = nullptr);

    // CP949, as all text of the screen; characters outside it read as '?'.
    std::string ExpressionText() const override;

    // Replaces the whole text, of any length, and its looks. Nothing is left to undo: an undo would bring
    // back letters that the condition list no longer stands for.
    void SetExpressionText(const std::string& text);

    TextSelection Selection() const override;
    void ReplaceSelection(const std::string& text) override;
    void Recolour() override;
    void TakeFocus() override;
    void Select(TextSelection selection) override;

    void RefreshColors();  // after a change of the colour table

signals:
    // The user has changed the text: typed, pasted, cut, undone, dropped or toggled.
    void Edited();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void OnTextChanged();

    // White space of every kind as blanks, a line end as one.
    static QString OnOneLine(QString text);

    // keys
    bool SelectWords(const QKeyEvent& event);
    void Type(QKeyEvent* event);

    // Whether `text` may take the place of the characters from `start` to `end`; if not, the user has been
    // told why.
    bool MayInsert(const QString& text, int start, int end);

    // Replaces the selection in a step of the undo history that is neither joined by another nor split.
    void InsertAsOneStep(const QString& text);

    // Selects by characters; the caret goes to `end`.
    void SelectCharacters(TextSelection selection);
    std::string Characters() const;  // one byte each, for what asks for blanks and Latin letters only

    // pointer
    int CharacterAt(const QPointF& point) const;
    void SetHover(const OperatorHover& hover);
    void ToggleOperator();

    QMenu* MakeMenu();

    host::Questions& questions_;
    ExpressionHighlighter* highlighter_;  // belongs to the document
    QString text_;                        // as it was when the last change was told
    WordSelection words_;
    OperatorHover hover_;
    bool byProgram_ = false;      // the change under way isn't the user's
    bool doubleClicked_ = false;  // the button of a double click is still down
};

}  // namespace jogeon
