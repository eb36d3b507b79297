#include "terminal/service_watch.h"

#include <exception>
#include <utility>

namespace jogeon::terminal {
namespace {

using namespace std::chrono_literals;

constexpr int kAskTimer = 1;
constexpr auto kAskUsually = 30s;
constexpr auto kAskWhenLost = 3s;

std::optional<service::MarketSummary> MarketOf(service::Service& service) {
    try {
        return service.Market();
    } catch (const std::exception&) {
        return std::nullopt;  // it is asked again
    }
}

}  // namespace

ServiceWatch::ServiceWatch(const Workplace& workplace, host::Clock& clock, StatusLine& line)
    : workplace_(workplace), clock_(clock), line_(line) {}

ServiceWatch::~ServiceWatch() {
    clock_.Forget(*this);
}

void ServiceWatch::Begin() {
    clock_.SetTimer(*this, kAskTimer, kAskUsually);
}

void ServiceWatch::OnLost() {
    lost_ = true;
    line_.ShowConnected(false);
    clock_.SetTimer(*this, kAskTimer, kAskWhenLost);
}

void ServiceWatch::OnRecovered() {
    Ask();
}

void ServiceWatch::OnTimer(int) {
    Ask();
}

void ServiceWatch::Ask() {
    if (asking_) return;
    asking_ = true;
    InBackground(
        workplace_, *this, [&service = workplace_.service] { return MarketOf(service); },
        [this](const std::optional<service::MarketSummary>& market) { Take(market); });
}

void ServiceWatch::Take(const std::optional<service::MarketSummary>& market) {
    asking_ = false;
    if (!market) return OnLost();
    Begin();
    const bool renewed = std::exchange(lost_, false) || *market != line_.Market();
    line_.ShowMarket(*market);
    line_.ShowConnected(true);
    if (renewed) emit Renewed();
}

}  // namespace jogeon::terminal
