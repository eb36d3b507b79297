#include "screen/condition/spin_steps.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdio>

#include "screen/condition/index_field.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

constexpr double kMostPositions = 32767;
constexpr std::size_t kMostDecimals = 15;  // digits that a double can tell

// By a format of the code's own, with `point` for the point of the desktop's language.
std::string Printed(const std::string& format, double value, char point) {
    const int length = std::snprintf(nullptr, 0, format.c_str(), value);
    std::string text(static_cast<std::size_t>(std::max(length, 0)) + 1, '\0');
    std::snprintf(text.data(), text.size(), format.c_str(), value);
    text.pop_back();
    return ReplaceAll(text, std::localeconv()->decimal_point, std::string(1, point));
}

void TrimZeros(std::string& text, char point) {
    if (text.find(point) == std::string::npos || text.find('e') != std::string::npos) return;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == point) text.pop_back();
}

std::size_t DecimalsOf(const std::string& number) {
    const std::size_t point = number.find('.');
    return point == std::string::npos ? 0 : number.size() - point - 1;
}

}  // namespace

void SpinSteps::SetRange(double min, double max) {
    m_dMin = min;
    m_dMax = max;
    const double positions = (max - min) / m_dStep;
    const double rounded = std::abs(positions) > kMostPositions ? kMostPositions : std::round(positions);
    m_nPositions = std::isnan(rounded) ? 0 : static_cast<int>(rounded);
}

std::optional<int> SpinSteps::Position(double value) const {
    if (m_dMin == m_dMax) return std::nullopt;
    if (value < m_dMin) return 0;
    if (value > m_dMax) return m_nPositions;
    return static_cast<int>(std::min((value - m_dMin) / m_dStep, kMostPositions));
}

std::string SpinSteps::Format(double value) const {
    std::string text = !m_strFormat.empty() ? Printed(m_strFormat, value, m_chDecimalPoint)
                       : m_nDecimals < 0    ? GeneralDecimal(value)
                                            : FixedDecimal(value, m_nDecimals);
    if (m_bTrimZeros) TrimZeros(text, m_chDecimalPoint);
    return text == "-0" ? "0" : text;
}

std::string SpinSteps::Click(std::string_view text, int delta) const {
    const double typed = Atof(text);
    double value = (std::isfinite(typed) ? typed : m_dMin) + delta * m_dStep;
    if (delta > 0) value = std::min(value, m_dMax);
    if (delta < 0) value = std::max(value, m_dMin);
    return Format(value);
}

SpinSteps StepsOf(const CIndexField& field) {
    SpinSteps steps;
    const std::size_t decimals = DecimalsOf(field.m_strValue);
    steps.m_nDecimals = static_cast<int>(std::min(decimals, kMostDecimals));
    if (!field.m_bRange) return steps;
    steps.m_dStep = decimals >= 2 ? 0.01 : field.m_dMax - field.m_dMin <= 1.0 ? 0.1 : 1;
    steps.SetRange(field.m_dMin, field.m_dMax);
    return steps;
}

std::string SpinText(const SpinSteps& steps, const CIndexField& field) {
    return steps.Format(steps.m_nDecimals == 0 ? Atoi(field.m_strValue) : Atof(field.m_strValue));
}

}  // namespace jogeon
