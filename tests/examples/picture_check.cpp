// picture_check FILE...: whether each picture of the gallery shows a grid with something in it.
//
// The grid stands in the upper half of the page. Header, lines and texts give many colours there; an empty
// grid gives its background alone.
#include <QImage>
#include <QSet>
#include <cstdio>

namespace {

constexpr int kFewestColours = 8;

QSet<QRgb> ColoursIn(const QImage& picture, const QRect& part) {
    QSet<QRgb> colours;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) colours.insert(picture.pixel(x, y));
    }
    return colours;
}

bool ShowsGrid(const QImage& picture) {
    const int width = picture.width();
    const int height = picture.height();
    const QRect grid(width / 4, height / 4, width / 2, height / 5);
    return ColoursIn(picture, grid).size() >= kFewestColours;
}

}  // namespace

int main(int argc, char** argv) {
    int failed = 0;
    for (int i = 1; i < argc; ++i) {
        if (ShowsGrid(QImage(argv[i]))) continue;
        std::fprintf(stderr, "%s: no grid to be seen\n", argv[i]);
        ++failed;
    }
    return failed == 0 && argc > 1 ? 0 : 1;
}
