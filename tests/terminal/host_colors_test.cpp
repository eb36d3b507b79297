// The theme of the application in what the terminal gives to its screens.
#include "terminal/host/host_colors.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "server/service/local_service.h"
#include "tests/screen/support/desktop.h"
#include "tests/terminal/support/desk.h"

namespace jogeon::terminal {
namespace {

TEST(HostColorsTest, FollowTheApplicationsPalette) {
    const test::DesktopSettings settings;
    HostColors colors;
    EXPECT_EQ(0xf4f1efu, colors.GetColor(0, 0));
    EXPECT_EQ(0xf4f1efu, colors.GetColor(0x34, 0));
    EXPECT_EQ(0xd8d2cdu, colors.GetColor(0x41, 0));
    QApplication::setPalette(test::DarkPalette());
    for (const int index : {0, 0x34, 0x41}) EXPECT_LT(colors.GetColor(index, 0) & 0xff, 0x60u) << index;
}

// From Qt's event in the terminal's frame to the last corner of the module.
TEST(HostColorsTest, AChangeOfThePaletteReachesTheModule) {
    const test::DesktopSettings settings;
    const QPalette light = QApplication::palette();
    QTemporaryDir folder;
    service::LocalService service(
        OneStock(), std::make_unique<service::StoreService>(folder.filePath("sets").toStdString()));
    Desk desk(service, folder.filePath("home"));
    const QImage before = desk.Picture();
    EXPECT_GT(test::LightSquares(before), 5000);
    QApplication::setPalette(test::DarkPalette());
    EXPECT_EQ(0, test::LightSquares(desk.Picture()));
    QApplication::setPalette(light);
    EXPECT_TRUE(desk.Picture() == before);
}

}  // namespace
}  // namespace jogeon::terminal
