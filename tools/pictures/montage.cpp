#include "tools/pictures/montage.h"

#include <QPainter>
#include <algorithm>

namespace jogeon::pictures {
namespace {

constexpr int kGap = 14;
constexpr QRgb kFrame = 0xff8a9099;  // seen on paper and on black

}  // namespace

QPixmap SideBySide(const QList<QPixmap>& pictures, int columns) {
    QList<QRect> places;
    QSize size;
    QPoint corner;
    int rowHeight = 0;
    for (int i = 0; i < pictures.size(); ++i) {
        if (i > 0 && i % columns == 0) {
            corner = {0, corner.y() + rowHeight + kGap};
            rowHeight = 0;
        }
        places.append({corner, pictures[i].size()});
        size = size.expandedTo({places[i].right() + 1, places[i].bottom() + 1});
        rowHeight = std::max(rowHeight, pictures[i].height());
        corner.rx() += pictures[i].width() + kGap;
    }
    QPixmap sheet(size);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    for (int i = 0; i < pictures.size(); ++i) painter.drawPixmap(places[i], pictures[i]);
    return sheet;
}

QPixmap Framed(const QPixmap& picture) {
    QPixmap framed(picture.size() + QSize(2, 2));
    framed.fill(QColor::fromRgb(kFrame));
    QPainter(&framed).drawPixmap(1, 1, picture);
    return framed;
}

}  // namespace jogeon::pictures
