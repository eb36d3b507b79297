#include "screen/fbgrid/fb_cell_painter_qt.h"

#include <QPolygonF>
#include <QtMath>
#include <algorithm>
#include <utility>

#include "screen/fbgrid/fb_colour_qt.h"
#include "screen/fbgrid/fb_grid_data.h"
#include "screen/palette/colors_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr int kImageMargin = 5;  // beside what centres the image in a square of the cell's height

// Cuts what is drawn to `within`, if it reaches beyond.
class ClipTo {
public:
    ClipTo(QPainter& dc, const QRectF& within, const QRectF& drawn)
        : dc_(within.contains(drawn) ? nullptr : &dc) {
        if (!dc_) return;
        dc_->save();
        dc_->setClipRect(within, Qt::IntersectClip);
    }
    ~ClipTo() {
        if (dc_) dc_->restore();
    }
    ClipTo(const ClipTo&) = delete;
    ClipTo& operator=(const ClipTo&) = delete;

private:
    QPainter* dc_;
};

QPointF TextPlace(const QRectF& rect, const QSizeF& text, std::uint32_t format) {
    const qreal spare = rect.width() - text.width();
    const qreal margin = std::clamp(spare / 2, 0.0, qreal{FBTextCache::kMargin});
    const qreal y = rect.top() + (rect.height() - text.height()) / 2;
    switch (format) {
        case CCell::kRight:
            return {rect.left() + spare - margin, y};
        case CCell::kCentre:
            return {rect.left() + spare / 2, y};
        default:
            return {rect.left() + margin, y};
    }
}

}  // namespace

FBCellPainter::FBCellPainter(QPainter& dc, const FBGridLook& look) : dc_(dc), look_(look), pixels_(dc) {
    dc_.save();
    dc_.setFont(look.font);
    dc_.setRenderHint(QPainter::SmoothPixmapTransform);  // an image made for another scale
    dc_.setRenderHint(QPainter::Antialiasing, false);
}

FBCellPainter::~FBCellPainter() {
    dc_.restore();
}

void FBCellPainter::DrawHeader(const CCell& cell, const QRect& rect) {
    if (rect.isEmpty()) return;
    const QColor back = ToQColor(look_.FixedCellColour(), look_.palette);
    pixels_.Fill(rect, back);
    const QRectF within = pixels_.RightBottomLines(rect, ToQColor(look_.GridLineColour(), look_.palette));
    DrawTextA(within, cell.text, cell.format, TextColourOn(back, fbcolour::kButtonText, look_.palette),
              QPointF());
}

void FBCellPainter::DrawCell(const CCell& cell, const QRect& rect, const QColor& back, Button button) {
    if (rect.isEmpty()) return;
    pixels_.Fill(rect, back);
    const QRectF within = pixels_.RightBottomLines(rect, ToQColor(look_.GridLineColour(), look_.palette));
    QRectF textRect = within;
    if (const QPixmap* image = ImageOf(cell)) textRect.setLeft(DrawImage(*image, rect, within));
    if (cell.state & CCell::kCheck) DrawCheckBox(cell.check, rect, within);
    if (cell.state & CCell::kButton) DrawButton(within, button);

    const bool isButton = (cell.state & CCell::kButton) != 0;
    const QColor textBack = isButton ? ToQColor(fbcolour::kButtonFace, look_.palette) : back;
    const QPointF shift = isButton && button == Button::Pressed ? QPointF(1, 1) : QPointF();
    DrawTextA(textRect, FBGridData::ShownText(cell), cell.format,
              TextColourOn(textBack, cell.textColour, look_.palette), shift);
}

const QPixmap* FBCellPainter::ImageOf(const CCell& cell) const {
    if (!look_.images || cell.image < 0) return nullptr;
    const auto index = static_cast<std::size_t>(cell.image);
    return index < look_.images->size() ? &(*look_.images)[index] : nullptr;
}

qreal FBCellPainter::DrawImage(const QPixmap& image, const QRect& rect, const QRectF& within) {
    const QSizeF size = image.deviceIndependentSize();
    const int above = (rect.height() - qRound(size.height())) / 2;
    const QRectF place(QPointF(rect.left() + above + kImageMargin, rect.top() + above), size);
    const ClipTo clip(dc_, within, place);
    dc_.drawPixmap(pixels_.Whole(place.topLeft()), image);
    return place.right();
}

void FBCellPainter::DrawCheckBox(std::uint32_t check, const QRect& rect, const QRectF& within) {
    const int half = rect.height() / 2 - 2;
    if (half <= 0) return;
    const QPoint centre(rect.left() + rect.width() / 2, rect.top() + rect.height() / 2);
    const QRectF box(centre.x() - half, centre.y() - half, 2 * half, 2 * half);
    const ClipTo clip(dc_, within, box);
    if (check == CCell::kDisabled) {
        const QColor shade = ToQColor(look_.ThemeColour(Color::FBCheckDisabledShade));
        pixels_.Fill(pixels_.Frame(box, ToQColor(look_.ThemeColour(Color::FBCheckDisabledLight)), shade),
                     ToQColor(look_.ThemeColour(Color::FBCheckDisabledBack)));
        return;
    }
    const QColor frame = ToQColor(look_.ThemeColour(Color::FBCheckFrame));
    pixels_.Fill(pixels_.Frame(box, frame, frame), ToQColor(look_.ThemeColour(Color::FBCheckBack)));
    if (check == CCell::kOn) DrawTick(box.center(), half);
}

// Two strokes, thickened downwards: what drawing them once more on each of the next pixel lines would give.
void FBCellPainter::DrawTick(QPointF centre, qreal half) {
    const qreal sixth = half / 6;
    const QPointF thick(0, 2 * sixth);
    const QPointF start = centre + QPointF(-3.5, -1.5) * sixth;
    const QPointF foot = centre + QPointF(-1, 1) * sixth;
    const QPointF tip = centre + QPointF(3.5, -3.5) * sixth;
    dc_.setRenderHint(QPainter::Antialiasing);
    dc_.setPen(Qt::NoPen);
    dc_.setBrush(ToQColor(look_.ThemeColour(Color::FBCheckTick)));
    dc_.drawPolygon(QPolygonF({start, foot, tip, tip + thick, foot + thick, start + thick}));
    dc_.setRenderHint(QPainter::Antialiasing, false);
}

void FBCellPainter::DrawButton(const QRectF& rect, Button button) {
    QColor leftTop = look_.palette.color(QPalette::Light);
    QColor rightBottom = look_.palette.color(QPalette::Mid);
    if (button == Button::Pressed) std::swap(leftTop, rightBottom);
    pixels_.Fill(pixels_.Frame(rect, leftTop, rightBottom), ToQColor(fbcolour::kButtonFace, look_.palette));
}

void FBCellPainter::DrawTextA(const QRectF& rect, const std::string& text, std::uint32_t format,
                              const QColor& colour, QPointF shift) {
    if (text.empty() || rect.width() < 1) return;
    const QStaticText& line = look_.texts->Line(ToQString(text), look_.font, qFloor(rect.width()));
    const QPointF place = pixels_.Whole(TextPlace(rect, line.size(), format) + shift);
    constexpr int kOverhang = 1;  // a glyph may reach beyond its advance
    const QRectF drawn = QRectF(place, line.size()).adjusted(-kOverhang, 0, kOverhang, 0);
    const ClipTo clip(dc_, rect, drawn);
    dc_.setPen(colour);
    dc_.drawStaticText(place, line);
}

}  // namespace jogeon
