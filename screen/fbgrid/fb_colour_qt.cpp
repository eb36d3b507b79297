#include "screen/fbgrid/fb_colour_qt.h"

#include "screen/palette/colors_qt.h"
#include "screen/palette/contrast.h"

namespace jogeon {
namespace {

QPalette::ColorRole RoleOf(FBColour colour) {
    switch (colour) {
        case fbcolour::kWindow:
            return QPalette::Base;
        case fbcolour::kWindowText:
            return QPalette::Text;
        case fbcolour::kInactiveBorder:
            return QPalette::Midlight;
        case fbcolour::kHighlight:
            return QPalette::Highlight;
        case fbcolour::kButtonFace:
            return QPalette::Button;
        case fbcolour::kButtonText:
            return QPalette::ButtonText;
        default:
            return QPalette::Base;
    }
}

ColorNumber NumberOf(const QColor& color) {
    return static_cast<ColorNumber>(color.red() | color.green() << 8 | color.blue() << 16);
}

bool CanBeRead(const QColor& text, const QColor& back) {
    return Contrast(NumberOf(text), NumberOf(back)) >= kFaintContrast;
}

}  // namespace

QColor ToQColor(FBColour colour, const QPalette& palette) {
    return IsDesktopColour(colour) ? palette.color(RoleOf(colour)) : ToQColor(ColorNumber{colour});
}

QColor TextColourOn(const QColor& back, FBColour text, const QPalette& palette) {
    const QColor wanted = ToQColor(text, palette);
    return IsDesktopColour(text) && !CanBeRead(wanted, back)
               ? ToQColor(ReadableOn(NumberOf(back), Color::FBText))
               : wanted;
}

}  // namespace jogeon
