#include "screen/condition/spin_steps.h"

#include <cmath>

#include <gtest/gtest.h>

#include "screen/condition/index_field.h"

namespace jogeon {
namespace {

CIndexField Spin(const std::string& value, double min, double max, bool range = true) {
    CIndexField field;
    field.m_nType = kFieldSpin;
    field.m_strValue = value;
    field.m_bRange = range;
    field.m_dMin = min;
    field.m_dMax = max;
    return field;
}

TEST(SpinStepsTest, CountsPositions) {
    const struct {
        double min, max, step;
        int positions;
        double value;
        std::optional<int> position;
    } cases[] = {
        {0, 100, 1, 100, 40, 40},      {0.1, 9.9, 0.1, 98, 0.35, 2},    {1, 999, 1, 998, 0, 0},
        {1, 999, 1, 998, 5000, 998},   {0, 99999999, 1, 32767, 50, 50}, {0, 99999999, 1, 32767, 5e7, 32767},
        {5, 5, 1, 0, 5, std::nullopt}, {0, 1, 0, 32767, 0.5, 32767},    {0, 0, 0, 0, 0, std::nullopt}};
    for (const auto& c : cases) {
        SpinSteps steps;
        steps.m_dStep = c.step;
        steps.SetRange(c.min, c.max);
        EXPECT_EQ(c.positions, steps.m_nPositions) << c.min << " to " << c.max;
        EXPECT_EQ(c.position, steps.Position(c.value)) << c.min << " to " << c.max;
    }
}

TEST(SpinStepsTest, FormatsValues) {
    const std::tuple<int, double, const char*, const char*> cases[] = {{2, 2.5, "2.5", "2.50"},
                                                                       {2, 2, "2", "2.00"},
                                                                       {0, 20, "20", "20"},
                                                                       {0, -0.4, "0", "0"},
                                                                       {1, 100, "100", "100.0"},
                                                                       {-1, 0.1, "0.1", "0.1"},
                                                                       {-1, 1.5e20, "1.5e+20", "1.5e+20"},
                                                                       {-1, 200000, "200000", "200000"}};
    for (const auto& [decimals, value, trimmed, whole] : cases) {
        SpinSteps steps;
        steps.m_nDecimals = decimals;
        EXPECT_EQ(trimmed, steps.Format(value));
        steps.m_bTrimZeros = false;
        EXPECT_EQ(whole, steps.Format(value));
    }
    SpinSteps steps;
    steps.m_nDecimals = 0;
    steps.m_strFormat = "%+.3f";
    EXPECT_EQ("+1.25", steps.Format(1.25));
}

TEST(SpinStepsTest, SetsStepAndDecimalsByTheField) {
    const std::tuple<CIndexField, double, double, int, const char*> cases[] = {
        {Spin("20", 1, 999), 1, 999, 0, "20"},
        {Spin("1.25", 0, 5), 0.01, 5, 2, "1.25"},
        {Spin("2.0", 0.1, 9.9), 1, 9.9, 1, "2"},
        {Spin("0.5", 0, 1), 0.1, 1, 1, "0.5"},
        {Spin("7", 0, 0, false), 1, 100, 0, "7"},
        {Spin("", 0, 99), 1, 99, 0, "0"},
        {Spin("-80", -100, 0), 1, 0, 0, "-80"},
        {Spin("5000", 1, 999), 1, 999, 0, "5000"},
        {Spin("1." + std::string(400, '0'), 0, 9), 0.01, 9, 15, "1"}};
    for (const auto& [field, step, max, decimals, text] : cases) {
        const SpinSteps steps = StepsOf(field);
        EXPECT_EQ(step, steps.m_dStep) << field.m_strValue;
        EXPECT_EQ(max, steps.m_dMax) << field.m_strValue;
        EXPECT_EQ(decimals, steps.m_nDecimals) << field.m_strValue;
        EXPECT_EQ(text, SpinText(steps, field));
    }
}

TEST(SpinStepsTest, Clicks) {
    const SpinSteps whole = StepsOf(Spin("20", 1, 999));
    const SpinSteps fine = StepsOf(Spin("1.25", 0, 5));
    const struct {
        const SpinSteps& steps;
        const char* text;
        int delta;
        const char* result;
    } cases[] = {{whole, "20", 1, "21"},    {whole, "998", 10, "999"}, {whole, "999", 1, "999"},
                 {whole, "2", -10, "1"},    {whole, "", 1, "1"},       {whole, "5000", -1, "4999"},
                 {whole, "5000", 1, "999"}, {whole, "nan", 1, "2"},    {whole, "12abc", -1, "11"},
                 {fine, "2.49", 1, "2.5"},  {fine, "4.999", 1, "5"},   {fine, "0.005", -1, "0"}};
    for (const auto& c : cases) EXPECT_EQ(c.result, c.steps.Click(c.text, c.delta)) << c.text;
}

}  // namespace
}  // namespace jogeon
