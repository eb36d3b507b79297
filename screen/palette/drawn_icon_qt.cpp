#include "screen/palette/drawn_icon_qt.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace jogeon {
namespace {

constexpr double kUnits = 16;
constexpr double kFaint = 0.4;

class DrawnIconEngine : public QIconEngine {
public:
    explicit DrawnIconEngine(IconDrawing draw) : draw_(std::move(draw)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kUnits, rect.height() / kUnits);
        if (mode == QIcon::Disabled) painter->setOpacity(kFaint);
        draw_(*painter, mode, state);
        painter->restore();
    }

    // `size` is in pixels of the display.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new DrawnIconEngine(draw_); }

private:
    IconDrawing draw_;
};

}  // namespace

QIcon DrawnIcon(IconDrawing draw) {
    return QIcon(new DrawnIconEngine(std::move(draw)));
}

}  // namespace jogeon
