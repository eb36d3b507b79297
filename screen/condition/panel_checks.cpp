#include "screen/condition/panel_checks.h"

#include <algorithm>
#include <cmath>

#include "screen/condition/catalogue.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr int kRankCategory = 8;

bool IsTyped(const CIndexField& field) {
    return field.m_nType == kFieldEdit || field.m_nType == kFieldSpin ||
           (field.m_nType == kFieldFreeCombo && field.m_nSelected == -1);
}

bool IsWholeRole(int role) {
    return role == kRoleBarsAgo || (role >= 40 && role <= 46);
}

// Digits with a sign before them at most, and a point among them unless the number is whole.
bool IsNumber(std::string_view text, bool whole) {
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    const auto digit = [](char c) { return c >= '0' && c <= '9'; };
    const auto point = [whole](char c) { return c == '.' && !whole; };
    return std::any_of(text.begin(), text.end(), digit) &&
           std::count_if(text.begin(), text.end(), point) <= 1 &&
           std::all_of(text.begin(), text.end(), [&](char c) { return digit(c) || point(c); });
}

// A tie goes away from zero, and there is no "-0".
std::string Rounded(double value, int decimals) {
    const double unit = std::pow(10, decimals);
    const double scaled = value * unit;
    return FixedDecimal((std::isfinite(scaled) ? std::round(scaled) / unit : value) + 0.0, decimals);
}

}  // namespace

std::optional<host::Box> CheckRange(const CIndexField& field) {
    if (!field.m_bRange) return std::nullopt;
    const double value = Atof(field.GetDisplayText());
    if (value >= field.m_dMin && value <= field.m_dMax) return std::nullopt;
    const int decimals = field.m_dMin > 0 && field.m_dMin < 1 ? 3 : 0;
    const std::string text = "값의 범위는 [" + Rounded(field.m_dMin, decimals) + "]부터 [" +
                             Rounded(field.m_dMax, decimals) + "]까지입니다.";
    return host::Box{ToCp949(text), "값 범위"_cp949};
}

std::optional<host::Box> CheckEntry(const CIndexField& field, std::string_view key) {
    if (!field.m_bStored || !IsTyped(field)) return std::nullopt;
    const std::string value = field.GetValueCode();
    const auto box = [](const std::string& text) { return host::Box{ToCp949(text), "값 입력"_cp949}; };
    if (value.find_first_of("|^;") != std::string::npos) {
        return box("값에는 | ^ ; 문자를 쓸 수 없습니다.");
    }
    const bool whole = IsWholeRole(field.m_nRole);
    if (field.m_bRange && !IsNumber(value, whole)) {
        return box(whole ? "값을 정수로 입력하십시오." : "값을 숫자로 입력하십시오.");
    }
    const std::size_t width = SlotWidth(key, field.m_nRole);
    if (width == 0 || value.size() <= width) return std::nullopt;
    return box("값은 " + std::to_string(width) + "자까지 입력할 수 있습니다.");
}

std::size_t SlotWidth(std::string_view key, int role) {
    if (role == 20 || (role >= 50 && role <= 56)) return 1;
    if (role == kRoleBarsAgo) return 2;
    if (role >= 40 && role <= 46) return 3;
    if (role >= 60 && role <= 62) return CategoryOfKey(key) == kRankCategory ? 4 : 9;
    return 0;
}

}  // namespace jogeon
