#include "terminal/chart/chart_data.h"

namespace jogeon::terminal::chart {

ChartData::ChartData(const Workplace& workplace)
    : bars_(
          workplace, *this,
          [&charts = workplace.service.GetCharts()](const BarsQuestion& question) {
              return charts.Bars(question.code, question.timeframe);
          },
          [this](const auto& answer) {
              if (answer)
                  emit BarsCame(*answer);
              else
                  emit BarsFailed();
          }),
      days_(
          workplace, *this,
          [&charts = workplace.service.GetCharts(), user = workplace.user](const DaysQuestion& question) {
              return charts.TrueDays(user, question.conditionSet, question.code);
          },
          [this](const auto& answer) { SetDays(answer); }),
      stocks_(
          workplace, *this,
          [&portfolios = workplace.service.GetPortfolios()](const StocksQuestion&) {
              return portfolios.Stocks();
          },
          [this](const auto& answer) {
              emit StocksCame(answer.value_or(std::vector<service::StockEntry>()));
          }) {}

void ChartData::AskDays(const std::string& conditionSet, const std::string& code) {
    if (days_.Ask({conditionSet, code})) SetDays(std::nullopt);
}

void ChartData::ForgetDays() {
    days_.Forget();
    SetDays(std::nullopt);
}

void ChartData::Outdate() {
    bars_.Forget();
    days_.Forget();
    stocks_.Forget();
}

void ChartData::SetDays(const std::optional<std::vector<int>>& days) {
    if (days == known_) return;
    known_ = days;
    emit DaysChanged();
}

}  // namespace jogeon::terminal::chart
