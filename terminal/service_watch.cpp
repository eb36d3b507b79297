#include "terminal/service_watch.h"

#include <exception>

namespace jogeon::terminal {
namespace {

using namespace std::chrono_literals;

constexpr int kAskTimer = 1;
constexpr auto kAskEvery = 3s;

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

void ServiceWatch::OnLost() {
    line_.ShowConnected(false);
    clock_.SetTimer(*this, kAskTimer, kAskEvery);
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
    clock_.KillTimer(*this, kAskTimer);
    line_.ShowMarket(*market);
    line_.ShowConnected(true);
}

}  // namespace jogeon::terminal
