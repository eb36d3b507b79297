#include "server/indicators/parameters.h"

#include "screen/text/bytes.h"

namespace jogeon::indicators {

Parameters::Parameters(const DecodedBlock& condition) : condition_(condition) {
    const Indicator* indicator = FindIndicator(condition.key);
    if (!indicator) Fail("없는 지표입니다");
    // A block of family F tells its variant in a byte of its own and sends the bare number.
    const int offset = condition.number - indicator->number;
    variant_ = condition.family == 'F' ? condition.mode : offset;
    const bool numberFits = condition.family == 'F' ? offset == 0 : offset >= 0;
    Require(condition.family == indicator->family && numberFits && variant_ >= 0 &&
                variant_ < indicator->variants,
            "지표 번호가 맞지 않습니다");
}

Timeframe Parameters::GetTimeframe() const {
    return static_cast<Timeframe>(Choice(kTimeframeRole, "DWM"));
}

int Parameters::BarsAgo() const {
    const int bars = Atoi(Text(kBarsAgoRole));
    Require(bars >= 0 && bars <= 99, "봉전기준 값의 범위는 0부터 99까지입니다");
    return bars;
}

int Parameters::Whole(int role, int least, int most) const {
    const int number = Atoi(Text(role));
    Require(number >= least && number <= most,
            "값의 범위는 " + Decimal(least) + "부터 " + Decimal(most) + "까지입니다 (" + Decimal(role) + ")");
    return number;
}

double Parameters::Number(int role) const {
    return Atof(Text(role));
}

int Parameters::Choice(int role, std::string_view codes) const {
    const std::string& text = Text(role);
    const std::size_t index = text.size() == 1 ? codes.find(text[0]) : std::string_view::npos;
    if (index == std::string_view::npos) Fail("없는 선택값입니다 (" + Decimal(role) + ")");
    return static_cast<int>(index);
}

void Parameters::Require(bool sensible, std::string_view problem) const {
    if (!sensible) Fail(problem);
}

const std::string& Parameters::Text(int role) const {
    const auto found = condition_.roles.find(role);
    if (found == condition_.roles.end()) Fail("값이 없습니다 (" + Decimal(role) + ")");
    return found->second;
}

void Parameters::Fail(std::string_view problem) const {
    throw BadCondition(std::string("조건 ") + condition_.letter + " (" + condition_.key +
                       "): " + std::string(problem));
}

Place PlaceOf(const MarketDay& day, const Parameters& parameters) {
    const Timeframe timeframe = parameters.GetTimeframe();
    return {timeframe, day.BarAgo(timeframe, parameters.BarsAgo())};
}

Range RangeOf(const Parameters& parameters) {
    const Range range{parameters.Number(60), parameters.Number(61)};
    parameters.Require(range.low <= range.high, "범위의 하한이 상한보다 큽니다");
    return range;
}

}  // namespace jogeon::indicators
