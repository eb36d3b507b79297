#include "terminal/chart/legend.h"

#include <algorithm>
#include <cmath>

#include "screen/palette/colors_qt.h"
#include "terminal/chart/chart_texts.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal::chart {
namespace {

using Kind = LegendEntry::Kind;

constexpr int kMargin = 6;
constexpr int kRowGap = 3;
constexpr int kEntryGap = 12;
constexpr int kLabelGap = 4;

QString ValueText(double value, int decimals = 0) {
    return OrDash(NumberText(value, decimals));
}

double ValueAt(const Curve& curve, int bar) {
    return curve.values[static_cast<std::size_t>(bar)];
}

// A text as wide as any value of its kind.
QString WidestOf(const Content& content, const LegendEntry& entry, double mostPrice, double mostVolume) {
    switch (entry.kind) {
        case Kind::Date:
            return QStringLiteral("8888-88-88");
        case Kind::Price:
            return PriceText(mostPrice);
        case Kind::Percent:
            return QStringLiteral("+88.88%");
        case Kind::Volume:
            return NumberText(mostVolume);
        case Kind::Bands:
            return QStringLiteral("%1 / %1 / %1").arg(PriceText(mostPrice));
        case Kind::Lower:
            return content.study.kind == Lower::Macd ? "-" + ValueText(mostPrice / 10, 1)
                                                     : QStringLiteral("100.00");
        case Kind::Note:
            return entry.value;
    }
    return entry.value;
}

// Digits are of one width in most fonts, and eights are the widest in the others.
int WidthOf(const QFontMetrics& metrics, QString text) {
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.isDigit(); }, QChar('8'));
    return metrics.horizontalAdvance(text);
}

void AppendLines(const Content& content, int bar, const QColor& valueColor,
                 std::vector<LegendEntry>& entries) {
    const std::size_t before = entries.size();
    for (const Curve& curve : content.study.averages)
        entries.push_back({Kind::Price, QString::fromStdString(curve.name), ValueText(ValueAt(curve, bar)),
                           ToQColor(curve.color), valueColor, false});
    const std::vector<Curve>& bands = content.study.bands;
    if (!bands.empty())
        entries.push_back({Kind::Bands, QStringLiteral("BB(20,2)"),
                           QStringLiteral("%1 / %2 / %3")
                               .arg(ValueText(ValueAt(bands[0], bar)), ValueText(ValueAt(bands[1], bar)),
                                    ValueText(ValueAt(bands[2], bar))),
                           ToQColor(Color::ChartBand), valueColor, false});
    if (entries.size() > before) entries[before].newRow = true;
}

class Flow {
public:
    Flow(const QFontMetrics& metrics, QPoint corner, int right)
        : metrics_(metrics), left_(corner.x()), right_(right), at_(corner) {}

    QPoint Place(const LegendEntry& entry, int valueWidth) {
        const int label = entry.label.isEmpty() ? 0 : metrics_.horizontalAdvance(entry.label) + kLabelGap;
        const int width = label + valueWidth;
        if (at_.x() > left_ && (entry.newRow || at_.x() + width > right_))
            at_ = {left_, at_.y() + metrics_.height() + kRowGap};
        const QPoint place(at_.x(), at_.y() + metrics_.ascent());
        at_.rx() += width + kEntryGap;
        return place;
    }
    int Bottom() const { return at_.y() + metrics_.height(); }

private:
    const QFontMetrics& metrics_;
    const int left_;
    const int right_;
    QPoint at_;
};

void PaintEntries(QPainter& painter, const std::vector<LegendEntry>& entries,
                  const std::vector<QPoint>& places, QPoint shift) {
    for (std::size_t i = 0; i < std::min(entries.size(), places.size()); ++i) {
        QPoint at = places[i] + shift;
        painter.setPen(entries[i].labelColor);
        painter.drawText(at, entries[i].label);
        if (!entries[i].label.isEmpty())
            at.rx() += painter.fontMetrics().horizontalAdvance(entries[i].label) + kLabelGap;
        painter.setPen(entries[i].valueColor);
        painter.drawText(at, entries[i].value);
    }
}

}  // namespace

std::vector<LegendEntry> EntriesOf(const Content& content, const Marks& marks, int bar) {
    const service::ChartBar& quote = content.At(bar);
    const QColor text = ToQColor(Color::ControlText), faint = ToQColor(Color::ChartText);
    const double before = bar > 0 ? content.At(bar - 1).close : quote.open;
    const auto against = [&](double price) {
        return price == before ? text : ToQColor(price > before ? Color::ChartRise : Color::ChartFall);
    };
    std::vector<LegendEntry> entries{
        {Kind::Date, {}, DateText(quote.date), text, text, false},
        {Kind::Price, ChartTexts::tr("시"), PriceText(quote.open), faint, against(quote.open), false},
        {Kind::Price, ChartTexts::tr("고"), PriceText(quote.high), faint, against(quote.high), false},
        {Kind::Price, ChartTexts::tr("저"), PriceText(quote.low), faint, against(quote.low), false},
        {Kind::Price, ChartTexts::tr("종"), PriceText(quote.close), faint, against(quote.close), false},
        {Kind::Percent, {}, PercentText(content.ChangeOf(bar)), text, against(quote.close), false},
        {Kind::Volume, ChartTexts::tr("거래량"), NumberText(quote.volume), faint, text, false}};
    if (marks.known)
        entries.push_back({Kind::Note, QStringLiteral("▲"), ChartTexts::tr("조건 만족 %1일").arg(marks.days),
                           ToQColor(Color::ChartMark), text, false});
    AppendLines(content, bar, text, entries);
    return entries;
}

std::vector<LegendEntry> LowerEntriesOf(const Content& content, int bar) {
    std::vector<LegendEntry> entries;
    for (const Curve& curve : content.study.lower)
        entries.push_back({Kind::Lower, QString::fromStdString(curve.name),
                           ValueText(ValueAt(curve, bar), content.study.lowerDecimals), ToQColor(curve.color),
                           ToQColor(Color::ControlText), false});
    return entries;
}

Legend::Legend(const QFontMetrics& metrics, const Content& content, const Marks& marks, int width) {
    double mostPrice = 0, mostVolume = 0;
    for (const service::ChartBar& bar : content.bars) {
        mostPrice = std::max(mostPrice, bar.high);
        mostVolume = std::max(mostVolume, bar.volume);
    }
    const auto valueWidth = [&](const LegendEntry& entry) {
        return WidthOf(metrics, WidestOf(content, entry, mostPrice, mostVolume));
    };
    Flow flow(metrics, {kMargin, kRowGap}, width - kMargin);
    for (const LegendEntry& entry : EntriesOf(content, marks, content.Last()))
        places_.push_back(flow.Place(entry, valueWidth(entry)));
    height_ = flow.Bottom() + kRowGap;
    Flow lower(metrics, {kMargin, kRowGap}, width - kMargin);
    for (const LegendEntry& entry : LowerEntriesOf(content, content.Last()))
        lowerPlaces_.push_back(lower.Place(entry, valueWidth(entry)));
    if (!lowerPlaces_.empty()) lowerHeight_ = lower.Bottom();
}

void Legend::Paint(QPainter& painter, const Scene& scene, int bar) const {
    PaintEntries(painter, EntriesOf(scene.content, scene.marks, bar), places_, {});
    PaintEntries(painter, LowerEntriesOf(scene.content, bar), lowerPlaces_, scene.panes.lower.topLeft());
}

}  // namespace jogeon::terminal::chart
