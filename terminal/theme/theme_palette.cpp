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

// Answers for another theme while it lives.
class Borrowed {
public:
    explicit Borrowed(Theme theme) : before_(CurrentTheme()) { SetTheme(theme); }
    ~Borrowed() { SetTheme(before_); }
    Borrowed(const Borrowed&) = delete;
    Borrowed& operator=(const Borrowed&) = delete;

private:
    const Theme before_;
};

}  // namespace

QPalette PaletteOf(Theme theme) {
    const Borrowed borrowed(theme);
    QPalette palette(ToQColor(Color::ControlFace), ToQColor(Color::ScreenBack));
    for (const Role& role : kRoles) palette.setColor(role.role, ToQColor(role.color));
    for (const QPalette::ColorRole role : kFaintWhenDisabled)
        palette.setColor(QPalette::Disabled, role, ToQColor(Color::ControlFaintText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, ToQColor(Color::ControlEdge));
    return palette;
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

}  // namespace jogeon::terminal
