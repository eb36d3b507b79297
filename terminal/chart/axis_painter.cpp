#include "terminal/chart/axis_painter.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "terminal/chart/canvas.h"
#include "terminal/chart/chart_texts.h"
#include "terminal/chart/date_axis.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal::chart {
namespace {

constexpr int kTextGap = 5;               // pixels between the panes and a value's name
constexpr double kLinesApart = 2.6;       // heights of the text
constexpr double kLinesApartBelow = 1.5;  // in the low panes
constexpr double kDatesApart = 4.5;

QString TickText(int date, DateTick::Names names) {
    if (names == DateTick::Names::Year) return QString::number(date / 10000);
    if (names == DateTick::Names::Day) return QString::number(date % 100);
    return ChartTexts::tr("%1월").arg(date / 100 % 100);
}

// One pane's values and how they are written.
struct Axis {
    QRect pane;
    const ValueScale& scale;
    double apart;  // of the lines, in heights of the text
    double least;  // step
    std::function<QString(double)> text;
};

constexpr double kLeastLowerStep = 0.1;  // with one decimal, finer lines would all have one name

QString LowerText(double value) {
    return NumberText(value, value == std::floor(value) ? 0 : 1);
}

std::vector<Axis> AxesOf(const Scene& scene) {
    const auto volumeText = [most = scene.volume.Top()](double shares) { return VolumeText(shares, most); };
    std::vector<Axis> axes{{scene.panes.price, scene.price, kLinesApart, 1, PriceText},
                           {scene.panes.volume, scene.volume, kLinesApartBelow, 1, volumeText}};
    if (scene.content.study.kind != Lower::None)
        axes.push_back({scene.panes.lowerCurves, scene.lower, kLinesApartBelow, kLeastLowerStep, LowerText});
    return axes;
}

// Values whose name finds room in the pane.
std::vector<double> TicksOf(const Axis& axis, int textHeight) {
    std::vector<double> ticks = axis.scale.Ticks(axis.apart * textHeight, axis.least);
    std::erase_if(ticks, [&](double value) {
        const double y = axis.scale.YOf(value);
        return y < axis.pane.top() + textHeight / 2 || y > axis.pane.bottom() - textHeight / 2;
    });
    return ticks;
}

void PaintLines(QPainter& painter, const Scene& scene, const std::vector<DateTick>& dates, int textHeight) {
    Canvas canvas(painter);
    const QColor grid = ToQColor(Color::ChartGrid), edge = ToQColor(Color::GridHeaderLine);
    const Panes& panes = scene.panes;
    for (const DateTick& tick : dates)
        canvas.Vertical(scene.window.CentreOf(tick.bar), panes.price.top(), panes.Bottom(), grid);
    for (const Axis& axis : AxesOf(scene)) {
        for (double value : TicksOf(axis, textHeight))
            canvas.Horizontal(axis.scale.YOf(value), 0, panes.Right(), grid);
    }
    for (const QRect& pane : {panes.price, panes.volume, panes.lower})
        if (pane.height() > 0) canvas.Horizontal(pane.top(), 0, panes.legend.width(), edge);
    canvas.Horizontal(panes.dates.top(), 0, panes.legend.width(), edge);
    canvas.Vertical(panes.Right(), panes.price.top(), panes.dates.bottom() + 1, edge);
}

void PaintTexts(QPainter& painter, const Scene& scene, const std::vector<DateTick>& dates) {
    const QFontMetrics metrics = painter.fontMetrics();
    const int height = metrics.height();
    painter.setPen(ToQColor(Color::ChartText));
    for (const Axis& axis : AxesOf(scene))
        for (double value : TicksOf(axis, height))
            painter.drawText(QRectF(scene.panes.Right() + kTextGap, axis.scale.YOf(value) - height / 2.0,
                                    scene.panes.legend.width(), height),
                             Qt::AlignLeft | Qt::AlignVCenter, axis.text(value));
    for (const DateTick& tick : dates) {
        const QString text = TickText(scene.content.At(tick.bar).date, tick.names);
        const int width = metrics.horizontalAdvance(text);
        const double left = std::clamp(scene.window.CentreOf(tick.bar) - width / 2.0, 2.0,
                                       std::max(2.0, scene.panes.Right() - width - 2.0));
        painter.drawText(QRectF(left, scene.panes.dates.top(), width + 2, scene.panes.dates.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, text);
    }
}

}  // namespace

void PaintGround(QPainter& painter, const Scene& scene) {
    const int height = painter.fontMetrics().height();
    const std::vector<DateTick> dates = DateTicks(scene.content.bars, scene.window, kDatesApart * height);
    PaintLines(painter, scene, dates, height);
    PaintTexts(painter, scene, dates);
}

void PaintAxisTag(QPainter& painter, const Scene& scene, double y, const QString& text, QColor back) {
    const int height = painter.fontMetrics().height() + 2;
    const int left = scene.panes.Right() + 1;
    const QRectF place(left, y - height / 2.0, scene.panes.legend.width() - left, height);
    Canvas(painter).FillLogical(place.toAlignedRect(), back);
    painter.setPen(ToQColor(Color::ChartBack));
    painter.drawText(place.adjusted(kTextGap - 1, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
}

int AxisWidth(const QFontMetrics& metrics, const Content& content) {
    double price = 0, volume = 0;
    for (const service::ChartBar& bar : content.bars) {
        price = std::max(price, bar.high);
        volume = std::max(volume, bar.volume);
    }
    int width = metrics.horizontalAdvance(LowerText(-100.5));
    for (const QString& text : {PriceText(price), VolumeText(volume, volume), VolumeText(9.99e5, 0)})
        width = std::max(width, metrics.horizontalAdvance(text));
    return width + 2 * kTextGap;
}

}  // namespace jogeon::terminal::chart
