#include "screen/fbgrid/fb_text_cache_qt.h"

#include <QFontMetricsF>
#include <QTransform>
#include <algorithm>

namespace jogeon {
namespace {

QStaticText LaidOut(const QString& text, const QFont& font) {
    QStaticText line(text);
    line.setTextFormat(Qt::PlainText);
    line.prepare(QTransform(), font);
    return line;
}

// A line break or another control character is shown as a blank: a cell has one line.
QString OneLine(QString text) {
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    std::replace_if(text.begin(), text.end(), isControl, QLatin1Char(' '));
    return text;
}

QStaticText Fitted(const QString& text, const QFont& font, int room) {
    const QString line = OneLine(text);
    QStaticText whole = LaidOut(line, font);
    if (whole.size().width() <= room) return whole;
    const QString elided =
        QFontMetricsF(font).elidedText(line, Qt::ElideRight, room - 2 * FBTextCache::kMargin);
    return elided.size() > 1 ? LaidOut(elided, font) : whole;
}

}  // namespace

const QStaticText& FBTextCache::Line(const QString& text, const QFont& font, int room) {
    if (font != font_) {
        lines_.clear();
        font_ = font;
    }
    const std::pair<QString, int> key(text, room);
    if (const QStaticText* known = lines_.object(key)) return *known;
    auto* made = new QStaticText(Fitted(text, font, room));  // the cache owns it
    lines_.insert(key, made);
    return *made;
}

}  // namespace jogeon
