// Draws one cell of a grid, kind by kind, and never a pixel beside it.
//
// Works on a painter for as long as it lives and leaves the painter as it found it. It knows no rows and
// columns: the grid's painter says which cell goes where.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QRect>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "screen/fbgrid/fb_cell.h"
#include "screen/fbgrid/fb_device_pixels_qt.h"
#include "screen/fbgrid/fb_text_cache_qt.h"
#include "screen/palette/theme_qt.h"

namespace jogeon {

// What the window adds to the data when it is drawn. It is best kept as long as the window, with its texts.
struct FBGridLook {
    std::optional<FBColour> fixedCellColour;  // none: the palette's theme decides
    std::optional<FBColour> gridLineColour;
    QFont font;
    QPalette palette;
    const std::vector<QPixmap>* images = nullptr;  // not owned; null for none
    CCellID pressedButton;                         // the push button that is drawn pressed
    std::shared_ptr<FBTextCache> texts = std::make_shared<FBTextCache>();

    FBColour FixedCellColour() const { return fixedCellColour.value_or(ThemeColour(Color::FBHeaderBack)); }
    FBColour GridLineColour() const { return gridLineColour.value_or(ThemeColour(Color::FBLine)); }

    // A colour in the theme of the palette: a grid may stand in a window of any.
    FBColour ThemeColour(Color color) const { return ColorOf(color, ThemeOf(palette)); }
};

class FBCellPainter {
public:
    enum class Button { Raised, Pressed };

    // Both outlive this.
    FBCellPainter(QPainter& dc, const FBGridLook& look);
    ~FBCellPainter();
    FBCellPainter(const FBCellPainter&) = delete;
    FBCellPainter& operator=(const FBCellPainter&) = delete;

    // `back` takes the place of the cell's own background.
    void DrawCell(const CCell& cell, const QRect& rect, const QColor& back, Button button);

    // A cell of a header row: its text on the header's background, whatever its kind.
    void DrawHeader(const CCell& cell, const QRect& rect);

private:
    // The right edge of what was drawn: a text begins behind it.
    qreal DrawImage(const QPixmap& image, const QRect& rect, const QRectF& within);
    void DrawCheckBox(std::uint32_t check, const QRect& rect, const QRectF& within);
    void DrawTick(QPointF centre, qreal half);
    void DrawButton(const QRectF& rect, Button button);

    // One line, centred vertically and moved by `shift`; nothing of it is drawn beside `rect`.
    void DrawTextA(const QRectF& rect, const std::string& text, std::uint32_t format, const QColor& colour,
                   QPointF shift);
    const QPixmap* ImageOf(const CCell& cell) const;

    QPainter& dc_;
    const FBGridLook& look_;
    FBDevicePixels pixels_;
};

}  // namespace jogeon
