// How often the chart asks the service, which can be slow or out of reach here.
#include <QLineEdit>
#include <QTest>
#include <atomic>
#include <mutex>
#include <stdexcept>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "server/service/local_service.h"
#include "terminal/chart/chart_screen.h"
#include "tests/screen/support/recorders.h"
#include "tests/server/service/requests.h"
#include "tests/terminal/chart/chart_market.h"
#include "tests/terminal/support/patience.h"

namespace jogeon::terminal {
namespace {

using market::Timeframe;

// Counts what is asked, and answers while nobody holds the gate.
class GatedCharts : public service::Charts {
public:
    explicit GatedCharts(service::Charts& charts) : charts_(charts) {}

    std::optional<service::StockBars> Bars(const std::string& code, Timeframe timeframe) override {
        Enter(bars);
        return charts_.Bars(code, timeframe);
    }
    std::vector<int> TrueDays(const std::string& user, const std::string& conditionSet,
                              const std::string& code) override {
        Enter(days);
        return charts_.TrueDays(user, conditionSet, code);
    }

    std::mutex gate;
    std::atomic<int> bars = 0, days = 0;
    std::atomic<bool> gone = false;

private:
    void Enter(std::atomic<int>& count) {
        ++count;
        const std::lock_guard pass(gate);
        if (gone) throw std::runtime_error("out of reach");
    }

    service::Charts& charts_;
};

class GatedService : public service::LocalService {
public:
    GatedService() : LocalService(test::ChartMarket(), nullptr), gated(LocalService::GetCharts()) {}
    service::Charts& GetCharts() override { return gated; }

    GatedCharts gated;
};

class ChartQuestionsTest : public testing::Test {
protected:
    ~ChartQuestionsTest() override { workers_.waitForDone(); }

    void Link(const char* code) {
        links_.NVLink_SetLinkTagData({"ReturnMainKey", "JCODE", code});
        screen_.OnTagChanged("ReturnMainKey", "JCODE");
    }
    void Publish(const std::string& set) {
        links_.NVLink_SetLinkTagData({"CS_RESULT", "CONDSET", set});
        links_.NVLink_SetMultiCodeLinkTagData("조건검색"_cp949,
                                              {test::kSwinging, test::kOther, test::kPausing});
    }
    bool Settles() {
        return QTest::qWaitFor([this] { return screen_.Settled(); }, kPatience);
    }
    void ExpectAsked(int bars, int days) {
        ASSERT_TRUE(Settles());
        EXPECT_EQ(charts_.bars, bars);
        EXPECT_EQ(charts_.days, days);
    }
    static std::string Set(const char* most) {
        return test::Header("A", "01") + test::PriceBlock('A', "9800", most);
    }

    GatedService service_;
    GatedCharts& charts_ = service_.gated;
    Links links_{"kim01", {}, {}};
    test::ScriptedQuestions questions_;
    QThreadPool workers_;
    ChartScreen screen_{{"kim01", service_, links_, questions_, workers_}};
};

TEST_F(ChartQuestionsTest, ManyLinksOnEndAskForTheFirstAndTheLast) {
    Publish(Set("10200"));
    {
        const std::lock_guard closed(charts_.gate);
        for (int i = 0; i < 10; ++i)
            for (const char* code : {test::kSwinging, test::kPausing, test::kOther}) Link(code);
    }
    ExpectAsked(2, 2);
    EXPECT_EQ(screen_.View().Shown().code, test::kOther);
    EXPECT_EQ(screen_.Title(), "차트 - 가나전자우 (000020)");
    const auto days = service_.LocalService::GetCharts().TrueDays("kim01", Set("10200"), test::kOther);
    EXPECT_EQ(screen_.View().ShownMarks().days, static_cast<int>(days.size()));
}

TEST_F(ChartQuestionsTest, WhatIsKnownIsNotAskedAgain) {
    Publish(Set("10200"));
    Link(test::kSwinging);
    ExpectAsked(1, 1);
    Link(test::kSwinging);
    screen_.OnOpened(true);
    Publish(Set("10200"));
    ExpectAsked(1, 1);
    auto& box = *screen_.findChild<QLineEdit*>("stock");
    ASSERT_TRUE(QTest::qWaitFor([&] { return workers_.activeThreadCount() == 0; }, kPatience));
    QCoreApplication::processEvents();  // the stocks have come
    box.setText("000010");
    QTest::keyClick(&box, Qt::Key_Return);
    ExpectAsked(1, 1);
    EXPECT_EQ(box.text(), "가나전자") << "though nothing was loaded";
    screen_.findChild<QAbstractButton*>("timeframe1")->click();
    ExpectAsked(2, 1);
    {
        const std::lock_guard closed(charts_.gate);
        EXPECT_TRUE(screen_.View().ShownMarks().known);
        Publish(Set("10900"));
        EXPECT_FALSE(screen_.View().ShownMarks().known) << "those of other conditions";
    }
    ExpectAsked(2, 2);
    EXPECT_TRUE(screen_.View().ShownMarks().known);
}

TEST_F(ChartQuestionsTest, WhatCouldNotBeToldIsAskedAgain) {
    Publish(Set("10200"));
    charts_.gone = true;
    Link(test::kSwinging);
    ExpectAsked(1, 1);
    EXPECT_TRUE(screen_.View().Shown().bars.empty());
    charts_.gone = false;
    Link(test::kSwinging);
    ExpectAsked(2, 2);
    EXPECT_EQ(screen_.View().Shown().code, test::kSwinging);
    EXPECT_TRUE(screen_.View().ShownMarks().known);
}

}  // namespace
}  // namespace jogeon::terminal
