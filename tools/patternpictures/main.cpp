// Draws the pictures of candle patterns that the parameter panel shows.
//
// patternpictures FOLDER NAME.bmp ...: each picture goes into the folder, and one for dark windows into its
// subfolder Dark. A name that no pattern has is told and ends with 2, so that the catalogue can't name a
// picture that isn't there.

#include <QColor>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

#include "screen/palette/colors_qt.h"
#include "tools/patternpictures/pattern_candles.h"

namespace jogeon::patterns {
namespace {

constexpr int kMargin = 5;      // pixels above the highest price and below the lowest
constexpr int kMostPitch = 16;  // from candle to candle, where few of them leave the room
constexpr int kGap = 4;         // between two bodies, at least
constexpr int kPaleShare = 65;  // percent of the background in the candles before the pattern

// The pixel row of a price.
class Scale {
public:
    explicit Scale(std::span<const Candle> candles) : low_(candles[0].low), high_(candles[0].high) {
        for (const Candle& candle : candles) {
            low_ = std::min(low_, candle.low);
            high_ = std::max(high_, candle.high);
        }
    }

    int RowOf(double price) const {
        const int rows = kPictureHeight - 1 - 2 * kMargin;
        return kMargin + static_cast<int>(std::lround((high_ - price) / (high_ - low_) * rows));
    }

private:
    double low_, high_;
};

QColor Paler(const QColor& color, const QColor& back) {
    const auto mix = [](int a, int b) { return (a * (100 - kPaleShare) + b * kPaleShare) / 100; };
    return QColor(mix(color.red(), back.red()), mix(color.green(), back.green()),
                  mix(color.blue(), back.blue()));
}

// A candle without a body is a cross, in the colour of text.
QColor ColorOfCandle(const Candle& candle) {
    if (candle.close == candle.open) return ToQColor(Color::GridText);
    return ToQColor(candle.close > candle.open ? Color::GridRise : Color::GridFall);
}

// `width` of the body is odd, so that the shadow stands in the middle.
void DrawCandle(QPainter& painter, const Candle& candle, const Scale& scale, int left, int width,
                const QColor& color) {
    const int top = scale.RowOf(std::max(candle.open, candle.close));
    const int bottom = scale.RowOf(std::min(candle.open, candle.close));
    const int high = scale.RowOf(candle.high);
    painter.fillRect(left + width / 2, high, 1, scale.RowOf(candle.low) - high + 1, color);
    painter.fillRect(left, top, width, bottom - top + 1, color);
}

QImage Draw(const Pattern& pattern) {
    const QColor back = ToQColor(Color::ControlFace);
    QImage picture(kPictureWidth, kPictureHeight, QImage::Format_RGB32);
    picture.fill(back);
    QPainter painter(&picture);
    const Scale scale(pattern.candles);
    const int count = static_cast<int>(pattern.candles.size());
    const int pitch = std::min(kMostPitch, kPictureWidth / count);
    const int width = (pitch - kGap) | 1;
    for (int i = 0; i < count; ++i) {
        const Candle& candle = pattern.candles[static_cast<std::size_t>(i)];
        const QColor color = ColorOfCandle(candle);
        const bool before = i < count - pattern.length;
        const int left = (kPictureWidth - count * pitch) / 2 + i * pitch + (pitch - width) / 2;
        DrawCandle(painter, candle, scale, left, width, before ? Paler(color, back) : color);
    }
    return picture;
}

bool SaveIn(Theme theme, const Pattern& pattern, const std::string& path) {
    SetTheme(theme);
    if (Draw(pattern).save(QString::fromStdString(path), "BMP")) return true;
    std::fprintf(stderr, "patternpictures: %s can't be written\n", path.c_str());
    return false;
}

bool Save(const std::string& folder, std::string_view name) {
    for (const Pattern& pattern : kPatterns) {
        if (pattern.file != name) continue;
        const std::string file(name);
        return SaveIn(Theme::Light, pattern, folder + "/" + file) &&
               SaveIn(Theme::Dark, pattern, folder + "/Dark/" + file);
    }
    std::fprintf(stderr, "patternpictures: there is no pattern for %s\n", std::string(name).c_str());
    return false;
}

}  // namespace
}  // namespace jogeon::patterns

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: patternpictures FOLDER NAME.bmp ...\n");
        return 2;
    }
    for (int i = 2; i < argc; ++i) {
        if (!jogeon::patterns::Save(argv[1], argv[i])) return 2;
    }
    return 0;
}
