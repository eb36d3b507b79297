#include "screen/fbgrid/fb_colour_qt.h"

#include <cstdlib>

#include "screen/palette/colors_qt.h"

namespace jogeon {
namespace {

constexpr int kReadable = 96;  // least difference of two greys, of 255, that a small text needs

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

bool CanBeRead(const QColor& text, const QColor& back) {
    return std::abs(qGray(text.rgb()) - qGray(back.rgb())) >= kReadable;
}

}  // namespace

QColor ToQColor(FBColour colour, const QPalette& palette) {
    return IsDesktopColour(colour) ? palette.color(RoleOf(colour)) : ToQColor(ColorNumber{colour});
}

QColor TextColourOn(const QColor& back, FBColour text, const QPalette& palette) {
    const QColor wanted = ToQColor(text, palette);
    return IsDesktopColour(text) && !CanBeRead(wanted, back) ? ToQColor(Color::FBText) : wanted;
}

}  // namespace jogeon
