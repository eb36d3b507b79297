// What becomes known of a server that was started anew between two questions.
#include "terminal/service_watch.h"

#include <gtest/gtest.h>

#include "tests/terminal/support/interest_place.h"

namespace jogeon::terminal {
namespace {

using namespace std::chrono_literals;

class RestartedService : public service::LocalService {
public:
    RestartedService() : LocalService(test::TestMarket(), nullptr) {}
    service::MarketSummary Market() override {
        if (away) throw std::runtime_error("out of reach");
        return {"yesterday's", false, 11, lastDate};
    }

    std::atomic<bool> away = false;
    std::atomic<int> lastDate = 20260306;
};

TEST(ServiceWatchTest, AnotherMarketIsFoundThoughNoCallFailed) {
    RestartedService service;
    Links links("kim01", HomeFolder{}, {});
    test::ScriptedQuestions questions;
    QThreadPool workers;
    const Workplace workplace{"kim01", service, links, questions, workers};
    StatusLine foot("kim01", "127.0.0.1:50150");
    foot.ShowMarket(service.Market());
    test::ManualClock clock;
    ServiceWatch watch(workplace, clock, foot);
    int renewed = 0;
    QObject::connect(&watch, &ServiceWatch::Renewed, &foot, [&renewed] { ++renewed; });
    const auto passes = [&](std::chrono::milliseconds time) {
        clock.Advance(time);
        workers.waitForDone();
        QApplication::processEvents();
    };

    watch.Begin();
    passes(30s);
    EXPECT_EQ(renewed, 0) << "it is the same";
    service.lastDate = 20260309;
    passes(30s);
    EXPECT_EQ(renewed, 1);
    EXPECT_EQ(foot.Market().lastDate, 20260309);

    service.away = true;
    passes(30s);
    EXPECT_TRUE(foot.findChild<QLabel*>("serviceLine")->text().endsWith("연결 끊김"));
    service.away = false;
    passes(3s);
    EXPECT_EQ(renewed, 2) << "what failed meanwhile may be asked again";
    passes(30s);
    EXPECT_EQ(renewed, 2);
}

}  // namespace
}  // namespace jogeon::terminal
