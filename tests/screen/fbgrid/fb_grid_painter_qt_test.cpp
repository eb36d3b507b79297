// The grid's painting: each kind of cell against its picture, and exactly what the rules give exactly.
#include "screen/fbgrid/fb_grid_painter_qt.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <functional>

#include <gtest/gtest.h>

#include "screen/fbgrid/fb_colour_qt.h"
#include "screen/palette/colors_qt.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/images.h"

namespace jogeon {
namespace {

constexpr QRgb kWindow = qRgb(255, 255, 255);
constexpr QRgb kLine = qRgb(0x82, 0x82, 0x82);
constexpr QRgb kFocus = qRgb(0xC6, 0xD7, 0xE7);
constexpr QRgb kHeader = qRgb(0xD2, 0xD2, 0xD2);
constexpr QRgb kFace = qRgb(240, 240, 240);
constexpr QRgb kLight = qRgb(254, 254, 254);
constexpr QRgb kShade = qRgb(160, 160, 160);
constexpr QRgb kUntouched = qRgb(255, 0, 255);

class FBGridPainterTest : public testing::Test {
protected:
    FBGridPainterTest() {
        look.font = QFont("NanumGothic", 9);
        look.palette.setColor(QPalette::Base, QColor(kWindow));
        look.palette.setColor(QPalette::Text, Qt::black);
        look.palette.setColor(QPalette::Button, QColor(kFace));
        look.palette.setColor(QPalette::ButtonText, Qt::black);
        look.palette.setColor(QPalette::Light, QColor(kLight));
        look.palette.setColor(QPalette::Mid, QColor(kShade));
        images[0].fill(QColor(0, 120, 0));
        look.images = &images;
    }

    void Make(int rows, const std::vector<int>& widths, int height = 18) {
        grid.SetDefRowHeight(height);
        grid.SetRowCnt(rows);
        grid.SetColCnt(static_cast<int>(widths.size()));
        for (int i = 0; i < grid.GetColCnt(); ++i) grid.SetColWidth(i, widths[static_cast<std::size_t>(i)]);
    }

    // A grid with headers, all kinds, a focused row and more cells than the window shows; scrolled.
    void MakeMixed() {
        Make(12, {30, 40, 0, 50, 60, 70});
        grid.SetFixedRowCnt(1);
        grid.SetFixedColCnt(1);
        for (int row = 0; row < 12; ++row) {
            for (int col = 0; col < 6; ++col) grid[row][col].text = "r" + std::to_string(row * 6 + col);
            grid[row][1].state = CCell::kCheck;
            grid[row][3].state = CCell::kButton;
            grid[row][4].image = 0;
        }
        grid.SetFocusedCellID({5, 3});
        client = {240, 100};
        scroll = {30, 20};
    }

    void Paint(QImage& image, const QRect& clip) {
        QPainter dc(&image);
        const FBGridGeometry geometry(grid, client, scroll.x, scroll.y);
        FBGridPainter(grid, geometry, client, look).OnDraw(dc, clip);
    }

    QImage Untouched(double ratio = 1) const {
        QImage image(QSize(client.width, client.height) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(kUntouched);
        return image;
    }

    QImage Drawn(double ratio = 1) {
        QImage image = Untouched(ratio);
        Paint(image, QRect(0, 0, client.width, client.height));
        return image;
    }

    void FitClient() { client = {grid.GetVirtualWidth(), grid.GetVirtualHeight()}; }

    std::vector<QPixmap> images = std::vector<QPixmap>(1, QPixmap(12, 12));
    FBGridLook look;
    FBGridData grid;
    GridSize client{100, 100};
    GridPoint scroll;
};

struct Kind {
    const char* name;
    std::function<void(CRow&)> fill;  // a row of five cells, of which it leaves those that it doesn't need
};

const Kind kKinds[] = {
    {"texts",
     [](CRow& row) {
         row[0].text = "왼쪽 A & B"_cp949;
         row[0].format = CCell::kLeft;
         row[1].text = "오른쪽"_cp949;
         row[2].text = "가운데"_cp949;
         row[2].format = CCell::kCentre;
         row[3].text = "다 들어가지 않는 긴 글"_cp949;
         row[3].format = CCell::kLeft;
         row[4].text = "색"_cp949;
         row[4].textColour = 0x2424D0;
         row[4].backColour = 0xF7E3CC;
     }},
    {"numbers",
     [](CRow& row) {
         for (int col = 0; col < 5; ++col) row[col].state = CCell::kNumeric;
         row[0].value = 1234;
         row[0].text = "원"_cp949;
         row[1].value = 1000;
         row[1].state |= CCell::kTwoDecimals;
         row[2].value = -0.5;
         row[2].text = "%";
         row[3].value = 1234567890123;
     }},
    {"check_boxes",
     [](CRow& row) {
         for (int col = 0; col < 4; ++col) row[col].state = CCell::kCheck;
         row[1].check = CCell::kOn;
         row[2].check = CCell::kDisabled;
         row[3].check = CCell::kOn;
         row[3].backColour = 0xC0C0C0;
     }},
    {"buttons",
     [](CRow& row) {
         for (int col = 0; col < 3; ++col) {
             row[col].state = CCell::kButton;
             row[col].format = CCell::kCentre;
             row[col].text = "삭제"_cp949;
         }
         row[2].text = "▲"_cp949;
     }},
    {"images",
     [](CRow& row) {
         for (int col = 0; col < 3; ++col) row[col].image = 0;
         row[1].text = "그림 뒤"_cp949;
         row[1].format = CCell::kLeft;
         row[2].image = 7;  // not in the list
     }},
};

// Three rows of each kind: the header, a body row, and a focused row.
TEST_F(FBGridPainterTest, EachKindOfCellLooksAsItsPicture) {
    for (const Kind& kind : kKinds) {
        grid.SetRowCnt(0);
        Make(3, {70, 70, 70, 70, 30});
        grid.SetFixedRowCnt(1);
        for (int row = 0; row < 3; ++row) kind.fill(grid[row]);
        grid.SetFocusedCellID({2, 0});
        look.pressedButton = {1, 1};
        client = {320, 60};
        for (const int ratio : {1, 2}) {
            const std::string file = std::string(kind.name) + (ratio == 1 ? ".png" : "@2x.png");
            EXPECT_TRUE(test::LooksLike(Drawn(ratio), "fbgrid/pictures/" + file));
        }
    }
}

// The edge between two cells lies on a whole pixel of the device, and the line before it is as thick as whole
// pixels allow: at 125 % one, not now one and now two.
TEST_F(FBGridPainterTest, LinesAreCrispAndLeaveNoGapsAtAnyScale) {
    Make(5, {33, 21, 0, 40, 7}, 17);
    client = {120, 100};
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const QImage image = Drawn(ratio);
        const int thick = static_cast<int>(ratio);
        const auto isLine = [&](int pixel, const std::vector<int>& edges) {
            return std::any_of(edges.begin(), edges.end(), [&](int edge) {
                const int end = static_cast<int>(std::lround(edge * ratio));
                return pixel >= end - thick && pixel < end;
            });
        };
        const long right = std::lround(101 * ratio);
        const long bottom = std::lround(85 * ratio);
        QImage expected = Untouched(ratio);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool line = isLine(x, {33, 54, 94, 101}) || isLine(y, {17, 34, 51, 68, 85});
                expected.setPixel(x, y, line && x < right && y < bottom ? kLine : kWindow);
            }
        }
        EXPECT_TRUE(test::SamePixels(image, expected, "lines_at_" + std::to_string(ratio)));
    }
}

TEST_F(FBGridPainterTest, TheWholeFocusedRowIsMarkedAndItsCellsKeepTheirColours) {
    Make(4, {30, 20, 25});
    grid.SetFixedRowCnt(1);
    grid.SetFixedColCnt(1);
    grid[2][1].backColour = 0x00FF00;
    FitClient();
    const QImage before = Drawn();
    for (int col = 0; col < 3; ++col) {
        grid.SetFocusedCellID({2, col});
        QImage expected = before;
        for (int y = 36; y < 53; ++y) {
            for (int x = 0; x < 75; ++x) {
                if (before.pixel(x, y) != kLine) expected.setPixel(x, y, kFocus);
            }
        }
        EXPECT_TRUE(test::SamePixels(Drawn(), expected, "focused_column_" + std::to_string(col)));
    }
    EXPECT_EQ(grid[2][1].backColour, 0x00FF00u);
    for (const CCellID none : {CCellID{-1, -1}, CCellID{4, 0}, CCellID{2, 3}}) {
        grid.SetFocusedCellID(none);
        EXPECT_TRUE(test::SamePixels(Drawn(), before, "no_focus"));
    }
}

// Each cell has a colour of its own: where it lies shows which cell it is.
TEST_F(FBGridPainterTest, HeadersStayAndTheBodyStartsWithTheFirstWholeRow) {
    Make(20, {30, 40, 50, 60});
    grid.SetFixedRowCnt(1);
    grid.SetFixedColCnt(1);
    const auto colour = [](int row, int col) { return static_cast<FBColour>(0x010101 * (row * 4 + col)); };
    for (int row = 0; row < 20; ++row) {
        for (int col = 0; col < 4; ++col) grid[row][col].backColour = colour(row, col);
    }
    client = {130, 62};
    scroll = {40, 19};  // behind column 1, and one pixel into the second body row
    const QImage image = Drawn();
    const auto at = [&](int x, int y) { return image.pixel(x, y); };
    const auto cell = [&](int row, int col) { return ToQColor(colour(row, col), look.palette).rgb(); };
    EXPECT_EQ(at(5, 5), kHeader);
    EXPECT_EQ(at(75, 5), kHeader);
    EXPECT_EQ(at(5, 20), cell(3, 0));  // in a header column, but no header
    EXPECT_EQ(at(31, 20), cell(3, 2));
    EXPECT_EQ(at(78, 34), cell(3, 2));
    EXPECT_EQ(at(81, 37), cell(4, 3));
    EXPECT_EQ(at(129, 61), cell(5, 3));  // cut by the window's edge

    look.fixedCellColour = 0x0000FF;
    look.gridLineColour = 0xFF0000;
    const QImage coloured = Drawn();
    EXPECT_EQ(coloured.pixel(5, 5), qRgb(255, 0, 0));
    EXPECT_EQ(coloured.pixel(29, 5), qRgb(0, 0, 255));
    EXPECT_EQ(coloured.pixel(5, 35), qRgb(0, 0, 255));
}

TEST_F(FBGridPainterTest, AClippedRepaintGivesTheSamePixelsAndTouchesNoOther) {
    MakeMixed();
    const QImage whole = Drawn();
    const QRect clips[] = {{0, 0, 10, 10},   {25, 15, 40, 30}, {100, 40, 1, 1},     {70, 18, 90, 18},
                           {0, 60, 240, 30}, {200, 0, 40, 99}, {230, 90, 100, 100}, {-5, -5, 50, 20},
                           {300, 0, 9, 9},   {29, 17, 2, 2},   {50, 50, 0, 0}};
    for (const QRect& clip : clips) {
        QImage image = Untouched();
        Paint(image, clip);
        QImage expected = Untouched();
        if (clip.intersects(image.rect())) {
            const QRect inside = clip & image.rect();
            QPainter(&expected).drawImage(inside, whole, inside);
        }
        EXPECT_TRUE(test::SamePixels(image, expected, "clip_at_" + std::to_string(clip.left())));
    }
    const QRect quarters[] = {{0, 0, 113, 47}, {113, 0, 127, 47}, {0, 47, 113, 53}, {113, 47, 127, 53}};
    for (const double ratio : {1.0, 1.25, 2.0}) {
        QImage image = Untouched(ratio);
        for (const QRect& quarter : quarters) Paint(image, quarter);
        EXPECT_TRUE(test::SamePixels(image, Drawn(ratio), "quarters_at_" + std::to_string(ratio)));
    }
}

// Neighbours of a narrow cell, whatever it holds, are as if it held nothing.
TEST_F(FBGridPainterTest, NothingReachesBeyondItsCell) {
    for (const int width : {0, 1, 2, 9, 14, 40}) {
        for (const std::uint32_t state : {0u, 4u, 8u, 0x10u}) {
            for (const std::uint32_t format : {CCell::kLeft, CCell::kRight, CCell::kCentre}) {
                Make(3, {30, width, 30}, 12);
                grid[1][1] = CCell();
                FitClient();
                const QImage empty = Drawn();
                grid[1][1].text = "다 들어가지 않는 긴 글"_cp949;
                grid[1][1].state = state;
                grid[1][1].format = format;
                grid[1][1].image = 0;
                QImage full = Drawn();
                const QRect inside(30, 12, width - 1, 11);
                if (width > 1) QPainter(&full).drawImage(inside, empty, inside);
                EXPECT_TRUE(test::SamePixels(full, empty, "cell_of_width_" + std::to_string(width)));
            }
        }
    }
}

TEST_F(FBGridPainterTest, APressedButtonHasItsFrameExchangedAndItsTextMoved) {
    Make(1, {40});
    grid[0][0].state = CCell::kButton;
    grid[0][0].format = CCell::kCentre;
    grid[0][0].text = "X";
    FitClient();
    const QImage raised = Drawn();
    look.pressedButton = {0, 0};
    const QImage pressed = Drawn();
    const auto expectFrame = [](const QImage& image, QRgb leftTop, QRgb rightBottom) {
        for (const QPoint at : {QPoint(0, 0), QPoint(20, 0), QPoint(0, 10)}) {
            EXPECT_EQ(image.pixel(at), leftTop) << at.x() << ' ' << at.y();
        }
        for (const QPoint at : {QPoint(38, 0), QPoint(38, 10), QPoint(0, 16), QPoint(20, 16)}) {
            EXPECT_EQ(image.pixel(at), rightBottom) << at.x() << ' ' << at.y();
        }
        EXPECT_EQ(image.pixel(1, 1), kFace);
        EXPECT_EQ(image.pixel(39, 5), kLine);
        EXPECT_EQ(image.pixel(5, 17), kLine);
    };
    expectFrame(raised, kLight, kShade);
    expectFrame(pressed, kShade, kLight);
    EXPECT_TRUE(test::SamePixels(pressed.copy(2, 2, 36, 14), raised.copy(1, 1, 36, 14), "moved_text"));
}

TEST_F(FBGridPainterTest, WhatWasLaidOutBeforeIsDrawnAsIfNew) {
    Make(2, {60, 60});
    grid[0][0].text = grid[1][0].text = "한 줄\n아닌 글"_cp949;
    grid[0][1].text = "짧다"_cp949;
    FitClient();
    const auto expectAsNew = [&](const char* name) {
        const QImage kept = Drawn();
        look.texts = std::make_shared<FBTextCache>();
        EXPECT_TRUE(test::SamePixels(kept, Drawn(), name));
    };
    Drawn();
    grid.SetColWidth(0, 40);
    expectAsNew("other_width");
    look.font.setPointSize(12);
    expectAsNew("other_font");
}

// The window's palette decides, not the colours of a screen; what a client sets by number stays.
TEST_F(FBGridPainterTest, ADarkWindowHasDarkHeadersAndLinesAndTheClientsColours) {
    Make(3, {30, 40});
    grid.SetFixedRowCnt(1);
    grid[2][1].backColour = 0x80FFFF;
    grid[2][1].text = "W";
    grid[1][0].state = CCell::kCheck;
    grid.SetFocusedCellID({1, 0});
    look.palette.setColor(QPalette::Window, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text}) look.palette.setColor(role, Qt::white);
    look.palette.setColor(QPalette::Base, Qt::black);
    FitClient();
    const QImage image = Drawn();
    const auto dark = [](Color color) { return ToQColor(ColorOf(color, Theme::Dark)).rgb(); };
    EXPECT_EQ(dark(Color::FBHeaderBack), image.pixel(2, 2));
    EXPECT_EQ(dark(Color::FBLine), image.pixel(29, 5));
    EXPECT_EQ(dark(Color::FBFocusedRow), image.pixel(2, 20));
    EXPECT_EQ(dark(Color::FBCheckBack), image.pixel(15, 27));
    EXPECT_EQ(qRgb(255, 255, 128), image.pixel(32, 38));
    EXPECT_TRUE(test::HasNear(image, 50, 45, qRgb(0, 0, 0), 18)) << "black text on the client's yellow";
}

TEST(FBGridPainterColourTest, DesktopColoursFollowThePaletteAndTextCanBeRead) {
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    EXPECT_EQ(ToQColor(fbcolour::kWindow, dark), QColor(Qt::black));
    EXPECT_EQ(ToQColor(FBColour{0x332211}, dark), QColor(0x11, 0x22, 0x33));  // red in the low byte
    EXPECT_EQ(TextColourOn(Qt::black, fbcolour::kWindowText, dark), QColor(Qt::white));
    EXPECT_EQ(TextColourOn(QColor(kFocus), fbcolour::kWindowText, dark), QColor(Qt::black));
    EXPECT_EQ(TextColourOn(QColor(kFocus), 0xFFFFFF, dark), QColor(Qt::white));  // chosen by number
}

}  // namespace
}  // namespace jogeon
