#include "terminal/theme/theme_palette.h"

#include "screen/palette/colors_qt.h"

namespace jogeon::terminal {
namespace {

struct Role {
    QPalette::ColorRole role;
    Color color;
};

// What isn't here (the shades of an edge) Qt derives from these.
constexpr Role kRoles[] = {
    {QPalette::Window, Color::ScreenBack},      {QPalette::WindowText, Color::ControlText},
    {QPalette::Base, Color::ControlFace},       {QPalette::AlternateBase, Color::GridEvenRow},
    {QPalette::Text, Color::ControlText},       {QPalette::ButtonText, Color::ControlText},
    {QPalette::BrightText, Color::AccentText},  {QPalette::PlaceholderText, Color::ControlFaintText},
    {QPalette::Highlight, Color::Accent},       {QPalette::HighlightedText, Color::AccentText},
    {QPalette::Link, Color::TabSelectedText},   {QPalette::LinkVisited, Color::TabSelectedText},
    {QPalette::ToolTipBase, Color::NoticeBack}, {QPalette::ToolTipText, Color::NoticeText},
};

constexpr QPalette::ColorRole kFaintWhenDisabled[] = {QPalette::WindowText, QPalette::Text,
                                                      QPalette::ButtonText};

}  // namespace

QPalette PaletteOf(Theme theme) {
    const auto shown = [theme](Color color) { return ToQColor(ColorOf(color, theme)); };
    QPalette palette(shown(Color::ControlFace), shown(Color::ScreenBack));
    for (const Role& role : kRoles) palette.setColor(role.role, shown(role.color));
    for (const QPalette::ColorRole role : kFaintWhenDisabled)
        palette.setColor(QPalette::Disabled, role, shown(Color::ControlFaintText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, shown(Color::ControlEdge));
    return palette;
}

}  // namespace jogeon::terminal
