// Texts to the left, to the right and in the middle; colours; images.
#include <QPainter>

#include "cp949.h"
#include "pages.h"
#include "stocks.h"

namespace {

// A triangle that points up or down, or a bar, for the screen's scale.
QPixmap Mark(FBColour colour, const QPolygonF& shape, qreal ratio) {
    constexpr int kSide = 12;
    QPixmap picture(QSize(kSide, kSide) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(colour & 0xff, (colour >> 8) & 0xff, (colour >> 16) & 0xff));
    painter.drawPolygon(shape);
    return picture;
}

class TextsPage : public GridPage {
public:
    TextsPage()
        : GridPage("Texts, colours, images",
                   "A cell shows its text as it stands. Its background and its text have a colour each: "
                   "a number, or one of the desktop's. The marks in the last column are images. A text "
                   "that doesn't fit its column ends in three dots.",
                   "texts_page.cpp") {
        MakeImages();
        CFBGrid& grid = Grid();
        // --- shown
        grid.AddColumn(Cp949("왼쪽"), 150);  // cells hold CP949
        grid.AddColumn(Cp949("가운데"), 110);
        grid.AddColumn(Cp949("오른쪽"), 110);
        grid.AddColumn(Cp949("바탕색"), 110);
        grid.AddColumn(Cp949("글자색"), 110);
        grid.AddColumn(Cp949("그림"), 150);
        grid.SetRowCnt(1 + 8);        // the header row counts
        grid.SetImageList(&images_);  // a std::vector<QPixmap>, which stays ours
        // --- to here
        for (int row = 1; row < grid.GetRowCnt(); ++row) FillRow(row);
    }

    void Pose() override { Grid().SetCellFocus(4, 0, true, true); }

private:
    void MakeImages() {
        const qreal ratio = devicePixelRatioF();
        images_ = {Mark(kRise, QPolygonF({{6, 1}, {11.5, 10}, {0.5, 10}}), ratio),
                   Mark(kFall, QPolygonF({{0.5, 2}, {11.5, 2}, {6, 11}}), ratio),
                   Mark(0x909090, QPolygonF({{1, 5}, {11, 5}, {11, 7}, {1, 7}}), ratio)};
    }

    void FillRow(int row) {
        const Stock stock = Stocks()[static_cast<std::size_t>(row) - 1];
        const bool rises = stock.change > 0;
        const FBColour tints[] = {0xd9f2fd, 0xe3f5e1, 0xf7e8dc, 0xf3e1ee};
        CFBGrid& grid = Grid();
        // --- shown
        CRow& cells = grid[row];
        cells[0].text = stock.name + Cp949(" 보통주 유가증권시장");
        cells[0].format = CCell::kLeft;
        cells[1].text = stock.code;
        cells[1].format = CCell::kCentre;
        cells[2].text = stock.code;            // to the right, if nothing is said
        cells[3].backColour = tints[row % 4];  // 0x00bbggrr
        cells[4].textColour = rises ? kRise : kFall;
        cells[5].image = rises ? 0 : 1;  // its place in the list
        // --- to here
        cells[3].text = Cp949("바탕");
        cells[3].textColour = 0x303030;
        cells[4].text = Cp949(rises ? "오름" : "내림");
        cells[5].text = Cp949(stock.change == 0 ? "보합" : "그림과 글");
        if (stock.change == 0) {
            cells[4].text = Cp949("보합");
            cells[4].textColour = fbcolour::kWindowText;
            cells[5].image = 2;
        }
        for (int col : {3, 4}) cells[col].format = CCell::kCentre;
        cells[5].format = CCell::kLeft;
    }

    std::vector<QPixmap> images_;
};

}  // namespace

std::unique_ptr<GridPage> MakeTextsPage() {
    return std::make_unique<TextsPage>();
}
