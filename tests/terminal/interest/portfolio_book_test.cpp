// The book of a window, and what other books and its own end do to its changes.
#include "terminal/interest/portfolio_book.h"

#include <cmath>
#include <future>

#include <gtest/gtest.h>

#include "tests/terminal/support/interest_place.h"

namespace jogeon::terminal {
namespace {

using Codes = std::vector<std::string>;

class PortfolioBookTest : public testing::Test {
protected:
    PortfolioBookTest() { place_.SetStocks("501", {"000010"}); }

    static service::Portfolios::StockEdit Adding(const std::string& code) {
        return [code](Codes& stocks) { stocks.push_back(code); };
    }

    InterestPlace place_;
};

TEST_F(PortfolioBookTest, ChangesThatWaitWhenTheBookGoesAreMadeInTheirOrder) {
    std::unique_lock hold(place_.service.gate);
    {
        PortfolioBook book(place_.workplace);
        for (const char* code : {"000020", "000030", "000040"}) book.EditStocks("501", Adding(code));
        book.Refresh();
    }
    hold.unlock();
    place_.workers.waitForDone();
    EXPECT_EQ(place_.StocksOf("501"), (Codes{"000010", "000020", "000030", "000040"}));
}

TEST_F(PortfolioBookTest, WhatTwoBooksAddAtTheSameMomentIsBothIn) {
    PortfolioBook one(place_.workplace), other(place_.workplace);
    std::promise<void> read, added;
    bool first = true;
    one.EditStocks("501", [&](Codes& stocks) {
        if (std::exchange(first, false)) {
            read.set_value();
            added.get_future().wait();
        }
        stocks.push_back("000020");
    });
    read.get_future().wait();
    other.EditStocks("501", Adding("000030"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return other.Idle(); }, InterestPlace::kPatience));
    added.set_value();
    ASSERT_TRUE(QTest::qWaitFor([&] { return one.Idle(); }, InterestPlace::kPatience));
    EXPECT_EQ(one.FindGroup("501")->stocks, (Codes{"000010", "000030", "000020"}));
}

// A service that was started anew with the next day's market.
class RestartedService : public service::LocalService {
public:
    RestartedService()
        : LocalService(test::TestMarket(), nullptr), next_(NextDay(), store::PortfolioStore::kInMemory) {}
    service::Portfolios& GetPortfolios() override {
        return restarted ? next_ : LocalService::GetPortfolios();
    }

    bool restarted = false;

private:
    static std::shared_ptr<const market::Market> NextDay() {
        market::MarketBuilder builder;
        market::Instrument stock;
        stock.code = "000010";
        stock.name = "새이름";
        builder.AddBar(builder.AddInstrument(stock), 20260309, 1'000, 1'000, 1'000, 1'000, 1);
        return builder.Build();
    }

    service::LocalPortfolios next_;
};

TEST(RenewedBookTest, NamesAndPricesAreThoseOfTheMarketThatTheServiceHasNow) {
    RestartedService service;
    Links links("kim01", HomeFolder{}, {});
    test::ScriptedQuestions questions;
    QThreadPool workers;
    PortfolioBook book({"kim01", service, links, questions, workers});
    const auto waits = [&book] {
        return QTest::qWaitFor([&] { return book.Idle(); }, InterestPlace::kPatience);
    };
    for (const bool restarted : {true, false}) {
        service.restarted = restarted;
        service.GetPortfolios().EditStocks("kim01", "501", [](Codes& stocks) {
            stocks = {"000010", "000020"};
        });
    }
    book.Refresh();
    ASSERT_TRUE(waits());
    EXPECT_EQ(book.QuoteOf("000010")->close, 50'000);
    EXPECT_NE(book.QuoteOf("000020"), nullptr);

    service.restarted = true;
    book.Renew();
    ASSERT_TRUE(waits());
    EXPECT_EQ(book.QuoteOf("000010")->close, 1'000);
    EXPECT_EQ(ToUtf8(book.NameOf("000010")), "새이름");
    const service::Quote* gone = book.QuoteOf("000020");
    EXPECT_TRUE(!gone || std::isnan(gone->close));
}

}  // namespace
}  // namespace jogeon::terminal
