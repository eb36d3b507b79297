// The candles that the pictures of the candle patterns show: each row is a market in which the pattern of
// that name is true on the last day.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace jogeon::patterns {

// Pixels; as large as the panel's places for pictures.
inline constexpr int kPictureWidth = 96;
inline constexpr int kPictureHeight = 64;

struct Candle {
    double open, high, low, close;
};

struct Pattern {
    std::string_view file;  // in Image/Pattern of the home
    std::string_view key;   // of the indicator, six digits
    int variant;
    int length;  // candles of the pattern itself; those before it show where it stands
    std::span<const Candle> candles;
};

// Moves before a reversal: the last close is below, or above, the mean of the five.
inline constexpr Candle kFall1{152, 154, 143, 144}, kFall2{145, 147, 137, 139}, kFall3{140, 141, 130, 132},
    kFall4{133, 135, 125, 127}, kFall5{128, 129, 119, 121};
inline constexpr Candle kRise1{100, 109, 98, 108}, kRise2{107, 115, 105, 113}, kRise3{112, 122, 111, 120},
    kRise4{119, 127, 117, 125}, kRise5{124, 133, 123, 131};

inline constexpr Candle kSoldiers[] = {{116, 118, 108, 110}, {111, 114, 106, 108}, {108, 112, 104, 106},
                                       {106, 119, 105, 118}, {114, 128, 113, 127}, {123, 137, 122, 136}};
inline constexpr Candle kCrows[] = {{120, 132, 118, 130}, {129, 134, 126, 132}, {132, 136, 128, 134},
                                    {134, 135, 121, 122}, {126, 127, 112, 113}, {117, 118, 103, 104}};
inline constexpr Candle kEngulfUp[] = {
    kFall1, kFall2, kFall3, kFall4, kFall5, {121, 123, 113, 115}, {113, 130, 111, 128}};
inline constexpr Candle kEngulfDown[] = {
    kRise1, kRise2, kRise3, kRise4, kRise5, {131, 139, 129, 137}, {139, 141, 122, 124}};
inline constexpr Candle kHammer[] = {kFall1, kFall2, kFall3, kFall4, kFall5, {115, 120, 98, 120}};
inline constexpr Candle kShootingStar[] = {kRise1, kRise2, kRise3, kRise4, kRise5, {137, 154, 132, 132}};
inline constexpr Candle kMorningStar[] = {
    kFall1, kFall2, kFall3, kFall4, kFall5, {122, 124, 104, 106}, {103, 106, 98, 101}, {104, 124, 103, 122}};
inline constexpr Candle kEveningStar[] = {
    kRise1, kRise2, kRise3, kRise4, kRise5, {130, 148, 128, 146}, {151, 154, 146, 149}, {148, 149, 128, 130}};
inline constexpr Candle kDoji[] = {
    {104, 111, 102, 110}, {109, 118, 108, 116}, {115, 124, 114, 122}, {123, 134, 112, 123}};

inline constexpr Pattern kPatterns[] = {
    {"soldiers.bmp", "060101", 0, 3, kSoldiers},
    {"crows.bmp", "060102", 0, 3, kCrows},
    {"engulf_up.bmp", "060201", 0, 2, kEngulfUp},
    {"engulf_down.bmp", "060201", 1, 2, kEngulfDown},
    {"hammer.bmp", "060202", 0, 1, kHammer},
    {"shooting_star.bmp", "060202", 1, 1, kShootingStar},
    {"morning_star.bmp", "060203", 0, 3, kMorningStar},
    {"evening_star.bmp", "060203", 1, 3, kEveningStar},
    {"doji.bmp", "060204", 0, 1, kDoji},
};

}  // namespace jogeon::patterns
