// The looks of the expression's characters, kept beside the text so that they never enter its undo history.
//
// A character that is being typed has the ink of its kind and isn't bold; all others are bold in the ink of
// the finished text. Relies on a document of one line.
#pragma once

#include <QSyntaxHighlighter>
#include <vector>

#include "screen/expression/expression_characters.h"

namespace jogeon {

class ExpressionHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    // Belongs to the document.
    explicit ExpressionHighlighter(QTextDocument* document);

    // What comes into the text from now on is being typed, or not.
    void SetTyping(bool typing) { typing_ = typing; }

    // Gives all characters the looks of the finished text.
    void Recolour();

    // Shows the same looks in the colours of the table as it is now.
    void RefreshColors() { rehighlight(); }

protected:
    void highlightBlock(const QString& text) override;

private:
    struct Look {
        ExpressionInk ink;
        bool bold;
    };

    Look LookOf(QChar character) const;
    void FollowChange(int position, int removed, int added);

    QString text_;
    std::vector<Look> looks_;  // one for each character of it
    bool typing_ = false;
};

}  // namespace jogeon
