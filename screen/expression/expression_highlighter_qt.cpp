#include "screen/expression/expression_highlighter_qt.h"

#include <QTextDocument>
#include <algorithm>

#include "screen/palette/colors_qt.h"

namespace jogeon {
namespace {

QTextCharFormat FormatOf(ExpressionInk ink, bool bold) {
    QTextCharFormat format;
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    if (ink == ExpressionInk::Operator) format.setForeground(ToQColor(Color::ExpressionOperator));
    if (ink == ExpressionInk::Letter) format.setForeground(ToQColor(Color::ExpressionLetter));
    if (ink == ExpressionInk::Bracket) format.setForeground(ToQColor(Color::ExpressionBracket));
    return format;
}

}  // namespace

// The looks follow a change before the base class, which is connected by setDocument, asks for them.
ExpressionHighlighter::ExpressionHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(static_cast<QObject*>(document)) {
    connect(document, &QTextDocument::contentsChange, this, &ExpressionHighlighter::FollowChange);
    setDocument(document);
}

void ExpressionHighlighter::Recolour() {
    for (std::size_t i = 0; i < looks_.size(); ++i) {
        looks_[i] = {FinishedInk(text_[static_cast<qsizetype>(i)].unicode()), true};
    }
    rehighlight();
}

void ExpressionHighlighter::highlightBlock(const QString& text) {
    const int count = static_cast<int>(std::min(static_cast<std::size_t>(text.size()), looks_.size()));
    for (int i = 0; i < count; ++i) {
        const Look& look = looks_[static_cast<std::size_t>(i)];
        setFormat(i, 1, FormatOf(look.ink, look.bold));
    }
}

ExpressionHighlighter::Look ExpressionHighlighter::LookOf(QChar character) const {
    return typing_ ? Look{TypedInk(character.unicode()), false}
                   : Look{FinishedInk(character.unicode()), true};
}

// A new format is announced like a change of the text, and the counts may hold the end of the line with it.
void ExpressionHighlighter::FollowChange(int position, int removed, int added) {
    const QString text = document()->toPlainText();
    if (text == text_) return;
    const qsizetype shorter = std::min(text.size(), text_.size());
    const qsizetype head = std::min<qsizetype>(position, shorter);
    const qsizetype tail = std::clamp<qsizetype>(
        std::min(text.size() - position - added, text_.size() - position - removed), 0, shorter - head);
    std::vector<Look> looks(looks_.begin(), looks_.begin() + head);
    for (qsizetype i = head; i < text.size() - tail; ++i) looks.push_back(LookOf(text[i]));
    looks.insert(looks.end(), looks_.end() - tail, looks_.end());
    looks_ = std::move(looks);
    text_ = text;
}

}  // namespace jogeon
