// The desktop's settings that a screen follows, palette and font, as they were again afterwards; and whether
// a picture has followed them.
#pragma once

#include <QApplication>
#include <QFont>
#include <QImage>
#include <QPalette>
#include <algorithm>

#include "screen/palette/colors_qt.h"

namespace jogeon::test {

inline QPalette DarkPalette() {
    const auto dark = [](Color color) { return ToQColor(ColorOf(color, Theme::Dark)); };
    QPalette palette(dark(Color::ControlFace), dark(Color::ScreenBack));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, dark(Color::ControlText));
    palette.setColor(QPalette::Base, dark(Color::ControlFace));
    palette.setColor(QPalette::Highlight, dark(Color::Accent));
    palette.setColor(QPalette::HighlightedText, dark(Color::AccentText));
    return palette;
}

inline bool NearlyWhite(QRgb pixel) {
    constexpr int kLeast = 170;
    return std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) > kLeast;
}

// How many squares are light all over, which no stroke of a letter is.
inline int LightSquares(const QImage& image) {
    constexpr int kSide = 6;
    int light = 0;
    for (int y = 0; y + kSide <= image.height(); y += kSide) {
        for (int x = 0; x + kSide <= image.width(); x += kSide) {
            bool all = true;
            for (int i = 0; all && i < kSide * kSide; ++i)
                all = NearlyWhite(image.pixel(x + i % kSide, y + i / kSide));
            light += all ? 1 : 0;
        }
    }
    return light;
}

class DesktopSettings {
public:
    ~DesktopSettings() {
        QApplication::setPalette(palette_);
        QApplication::setFont(font_);
        SetTheme(Theme::Light);
    }

private:
    const QPalette palette_ = QApplication::palette();
    const QFont font_ = QApplication::font();
};

}  // namespace jogeon::test
