// The progress display: its arithmetic, when it repaints, and its pixels.
#include "screen/panes/progress_label_widget.h"

#include <QApplication>
#include <QImage>
#include <climits>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"

namespace jogeon {
namespace {

const QColor kBar(10, 20, 200);
const QColor kRest(250, 250, 240);

class CountingLabel : public ProgressLabel {
public:
    using ProgressLabel::ProgressLabel;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override {
        ++paints;
        ProgressLabel::paintEvent(event);
    }
};

class ProgressLabelTest : public testing::Test {
protected:
    void SetUp() override {
        QPalette colors;
        colors.setColor(QPalette::Highlight, kBar);
        colors.setColor(QPalette::Base, kRest);
        label.setPalette(colors);
        QFont font("NanumGothic");
        font.setPixelSize(14);
        font.setBold(true);
        label.setFont(font);
        label.resize(200, 20);
        label.show();
        QApplication::processEvents();
    }

    QImage Picture() { return label.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    // Pixels in columns `left` to `right`, behind the last, that are as unlike `back` as text on it must be.
    static int Inked(const QImage& image, int left, int right, const QColor& back, const QColor& ink) {
        int count = 0;
        const auto distance = [](QColor a, QColor b) {
            return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                   std::abs(a.blue() - b.blue());
        };
        for (int y = 0; y < image.height(); ++y) {
            for (int x = left; x < right; ++x) {
                const QColor at = image.pixelColor(x, y);
                if (distance(at, ink) * 2 < distance(back, ink)) ++count;
            }
        }
        return count;
    }

    CountingLabel label;
};

TEST(ProgressState, WidthAndTextForPositionsInAndOutsideTheRange) {
    struct Case {
        int minimum, maximum, position;
        int width;  // of 200 pixels
        const char* text;
    };
    const Case cases[] = {
        {0, 100, 0, 0, ""},
        {0, 100, 37, 74, "37%"},
        {0, 100, 29, 58, "29%"},  // 0.29 times 100 is less than 29 in binary
        {0, 1000, 4, 0, "0%"},    // truncated, and yet a position
        {0, 3, 1, 66, "33%"},
        {0, 9999, 9999, 200, "100%"},
        {0, 0, 0, 0, ""},  // no search yet
        {0, 0, 5, 0, ""},
        {9, 3, 5, 0, ""},
        {50, 150, 100, 100, "50%"},
        {0, 100, -10, -20, ""},
        {INT_MIN, INT_MAX, INT_MAX, 200, "100%"},
        {0, 1, INT_MAX, INT_MAX, "2147483647%"},
    };
    for (const Case& c : cases) {
        ProgressState state;
        state.minimum = c.minimum;
        state.maximum = c.maximum;
        state.position = c.position;
        EXPECT_EQ(state.BarWidth(200), c.width) << c.position << " of " << c.maximum;
        EXPECT_EQ(state.ShownText(), c.text) << c.position << " of " << c.maximum;
    }
}

TEST_F(ProgressLabelTest, RepaintsOnlyWhenTheBarGrowsByAPixel) {
    label.SetRange(0, 2000);  // ten positions a pixel
    label.SetPos(1000);
    const int before = label.paints;
    EXPECT_EQ(label.SetPos(1005), 1000);
    EXPECT_EQ(label.paints, before);
    label.SetPos(1010);
    EXPECT_EQ(label.paints, before + 1);

    label.resize(201, 20);
    QApplication::processEvents();
    const int resized = label.paints;
    label.SetPos(1010);
    EXPECT_EQ(label.paints, resized + 1);  // a position that didn't change, after a change of size
}

TEST_F(ProgressLabelTest, ALabelWithoutAWindowTakesNoPosition) {
    ProgressLabel loose;
    EXPECT_EQ(loose.SetPos(5), -1);
    EXPECT_EQ(loose.State().position, 0);
    ProgressLabel placed(&label);  // not yet shown, but on a form
    EXPECT_EQ(placed.SetPos(5), 0);
    EXPECT_EQ(placed.State().position, 5);
}

TEST_F(ProgressLabelTest, FillsUpToThePositionAndNotBeyond) {
    label.SetShowText(false);
    label.SetPos(37);
    const QImage image = Picture();
    for (const int y : {0, 10, 19}) {
        EXPECT_EQ(image.pixelColor(0, y), kBar);
        EXPECT_EQ(image.pixelColor(73, y), kBar);
        EXPECT_EQ(image.pixelColor(74, y), kRest);
        EXPECT_EQ(image.pixelColor(199, y), kRest);
    }
    label.SetPos(500);
    EXPECT_EQ(Picture().pixelColor(199, 10), kBar);
    label.SetPos(-500);
    EXPECT_EQ(Picture().pixelColor(0, 10), kRest);
}

TEST_F(ProgressLabelTest, TheEdgeDividesTheDigitsInTwoColours) {
    label.SetPos(50);  // the edge runs through the middle of "50%"
    const QImage image = Picture();
    EXPECT_GT(Inked(image, 80, 100, kBar, kRest), 10);
    EXPECT_GT(Inked(image, 100, 120, kRest, kBar), 10);
    EXPECT_EQ(Inked(image, 0, 60, kBar, kRest), 0);  // centred: nothing far to the left
    label.SetShowText(false);
    EXPECT_EQ(Inked(Picture(), 0, 100, kBar, kRest), 0);
}

TEST_F(ProgressLabelTest, AFixedTextStandsAtPositionNoughtToo) {
    EXPECT_EQ(Inked(Picture(), 0, 200, kRest, kBar), 0);
    label.SetText("대기"_cp949);
    EXPECT_GT(Inked(Picture(), 80, 120, kRest, kBar), 20);
    label.SetText({});
    EXPECT_EQ(Inked(Picture(), 0, 200, kRest, kBar), 0);
}

TEST_F(ProgressLabelTest, GivesItsTextInWholeCharacters) {
    label.SetText("가나"_cp949);
    const auto take = [&](std::size_t bytes) {
        std::string out(6, '#');
        const std::size_t count = label.GetText(out.data(), bytes);
        return std::to_string(count) + ":" + out;
    };
    EXPECT_EQ(take(0), "0:######");
    EXPECT_EQ(take(1), "0:######");
    EXPECT_EQ(take(2), "2:" + "가"_cp949 + "####");
    EXPECT_EQ(take(3), "3:" + "가"_cp949 + std::string("\0###", 4));
    EXPECT_EQ(take(6), "4:" + "가나"_cp949 + "##");
}

}  // namespace
}  // namespace jogeon
