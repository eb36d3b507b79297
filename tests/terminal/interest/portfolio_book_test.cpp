// The book of a window, and what other books and its own end do to its changes.
#include "terminal/interest/portfolio_book.h"

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

}  // namespace
}  // namespace jogeon::terminal
