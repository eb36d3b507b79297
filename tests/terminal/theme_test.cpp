// Light and dark: the palettes, whose choice holds, and the switch in the real terminal with the real module.
#include <QSplitter>
#include <cmath>

#include "screen/palette/colors_qt.h"
#include "screen/palette/theme_qt.h"
#include "terminal/theme/theme_palette.h"
#include "tests/terminal/support/live_terminal.h"

namespace jogeon::terminal {
namespace {

// The contrast of two colours as accessibility guides reckon it, 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const auto light = [&](const QColor& c) {
        return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF()) + 0.05;
    };
    return std::max(light(one), light(other)) / std::min(light(one), light(other));
}

TEST(ThemePaletteTest, TextIsLegibleOnItsGroundInBothThemes) {
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},      {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase}, {QPalette::Link, QPalette::Window}};
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        const QPalette palette = PaletteOf(theme);
        for (const auto& [text, ground] : pairs)
            EXPECT_GT(Contrast(palette.color(text), palette.color(ground)), 4.5)
                << text << static_cast<int>(theme);
        EXPECT_GT(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
                  2.8);
        EXPECT_EQ(theme, ThemeOf(palette));
        EXPECT_EQ(CurrentTheme(), Theme::Light) << "left as it was";
    }
}

TEST(ThemeSwitchTest, AutoFollowsTheDesktopAndAChoiceDoesNot) {
    QPalette desktop = PaletteOf(Theme::Dark);
    {
        ThemeSwitch themes(ThemeChoice::Auto, [&] { return desktop; });
        EXPECT_EQ(CurrentTheme(), Theme::Dark);
        EXPECT_EQ(Theme::Dark, ThemeOf(QApplication::palette()));
        desktop = PaletteOf(Theme::Light);
        themes.OnDesktopChanged();
        EXPECT_EQ(CurrentTheme(), Theme::Light);
        themes.Choose(ThemeChoice::Dark);
        themes.OnDesktopChanged();
        EXPECT_EQ(CurrentTheme(), Theme::Dark);
    }
    EXPECT_EQ(Theme::Light, ThemeOf(QApplication::palette())) << "the desktop's again";
}

class ThemeTest : public LiveTerminal {};

TEST_F(ThemeTest, ASwitchReachesModuleAndOwnScreensAtOnceAndIsKept) {
    Open();
    Send(host::kOpenScreen, "0615");
    const QWidget& module = *Window().Frame().findChild<QSplitter*>();
    const QWidget& form = *Window().Frame().findChild<QAbstractButton*>("21039")->parentWidget();
    ASSERT_EQ(Theme::Light, ThemeOf(module.palette()));
    const QColor light = Window().palette().color(QPalette::Window);
    Action("dark").trigger();
    QApplication::processEvents();
    EXPECT_EQ(Theme::Dark, ThemeOf(module.palette()));
    const QString back = ToQColor(HostColors().GetColor(0, 0)).name();
    const QWidget& screen = *form.parentWidget();
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.styleSheet().contains(back); }, kPatience));
    EXPECT_EQ(Screen("0615")->themeWindow, ToQColor(Color::ScreenBack)) << "told when its palette is there";
    EXPECT_NE(Window().palette().color(QPalette::Window), light);

    OpenAgain();
    EXPECT_EQ(Theme::Dark, ThemeOf(Window().palette()));
    EXPECT_TRUE(Action("dark").isChecked());
    options_.theme = "light";
    OpenAgain();
    EXPECT_EQ(Theme::Light, ThemeOf(Window().palette())) << "for one run";
    options_.theme.clear();
    OpenAgain();
    EXPECT_EQ(Theme::Dark, ThemeOf(Window().palette()));
}

}  // namespace
}  // namespace jogeon::terminal
