// Pictures in tests: compared with a reference, with tolerance for fonts, or pixel by pixel.
//
// A failure writes the pictures and their difference into the folder failed_pictures of the working folder.
// To change a reference, look at the actual picture, and if it is right, copy it over the one in tests/.
#pragma once

#include <QDir>
#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace jogeon::test {

inline int Distance(QRgb a, QRgb b) {
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

// Whether a pixel of `image` no more than `reach` away from (x, y) is nearly of this colour.
inline bool HasNear(const QImage& image, int x, int y, QRgb colour, int reach) {
    constexpr int kNear = 40;  // what smoothing a glyph in another way changes
    for (int v = std::max(0, y - reach); v <= std::min(image.height() - 1, y + reach); ++v) {
        for (int u = std::max(0, x - reach); u <= std::min(image.width() - 1, x + reach); ++u) {
            if (Distance(image.pixel(u, v), colour) <= kNear) return true;
        }
    }
    return false;
}

// A picture with a red dot for each pixel that isn't alike, over a faint form of the first one.
template <typename Alike>
QImage DifferenceOf(const QImage& picture, Alike alike, int& different) {
    QImage out = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < out.height(); ++y) {
        for (int x = 0; x < out.width(); ++x) {
            const bool same = alike(x, y);
            different += same ? 0 : 1;
            const int grey = 192 + qGray(out.pixel(x, y)) / 4;
            out.setPixel(x, y, same ? qRgb(grey, grey, grey) : qRgb(255, 0, 0));
        }
    }
    return out;
}

inline testing::AssertionResult Unlike(const QImage& actual, const QImage& expected, const QImage& difference,
                                       const std::string& name, const std::string& what) {
    const QString stem = "failed_pictures/" + QString::fromStdString(name).replace('/', '_').remove(".png");
    QDir().mkpath("failed_pictures");
    actual.save(stem + "_actual.png");
    expected.save(stem + "_expected.png");
    difference.save(stem + "_difference.png");
    return testing::AssertionFailure()
           << name << ": " << what << "; see " << QDir().absoluteFilePath(stem).toStdString()
           << "_{actual,expected,difference}.png";
}

inline testing::AssertionResult SamePixels(const QImage& actual, const QImage& expected,
                                           const std::string& name) {
    if (actual.size() != expected.size()) return Unlike(actual, expected, {}, name, "other size");
    int different = 0;
    const QImage difference = DifferenceOf(
        actual, [&](int x, int y) { return Distance(actual.pixel(x, y), expected.pixel(x, y)) == 0; },
        different);
    if (different == 0) return testing::AssertionSuccess();
    return Unlike(actual, expected, difference, name, std::to_string(different) + " pixels differ");
}

// `file`: a reference below tests/screen. Another rasteriser may move a glyph's edge by a pixel, so that a
// pixel may stand one pixel off; lines that must not are checked exactly, elsewhere.
inline testing::AssertionResult LooksLike(const QImage& actual, const std::string& file) {
    constexpr double kStray = 0.002;  // share of pixels
    const QImage expected(QString::fromStdString(JOGEON_TEST_PICTURES "/" + file));
    if (actual.size() != expected.size())
        return Unlike(actual, expected, {}, file, "no such reference, or size");
    int different = 0;
    const QImage difference = DifferenceOf(
        actual,
        [&](int x, int y) {
            return HasNear(expected, x, y, actual.pixel(x, y), 1) &&
                   HasNear(actual, x, y, expected.pixel(x, y), 1);
        },
        different);
    if (different <= kStray * actual.width() * actual.height()) return testing::AssertionSuccess();
    return Unlike(actual, expected, difference, file, std::to_string(different) + " pixels look different");
}

}  // namespace jogeon::test
