// The two tables of the watch as models: their rows follow the news, whatever comes and goes.
#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "server/market/random_numbers.h"
#include "terminal/watch/event_model.h"
#include "terminal/watch/match_model.h"

namespace jogeon::terminal {
namespace {

using service::WatchEvent;
using service::WatchMatch;

std::string CodeOf(int stock) {
    return std::to_string(100'000 + stock);
}

WatchMatch Matching(int stock, double price = 1000) {
    return {{CodeOf(stock), "name", price, 1.5}, 32'400'000 + stock, "AC"};
}

QString Cell(const QAbstractItemModel& model, int row, int column) {
    return model.index(row, column).data().toString();
}

TEST(MatchModelTest, RowsKeepTheirPlaceAndNewOnesComeBehind) {
    MatchModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto codes = [&model] {
        QString digits;
        for (int row = 0; row < model.rowCount(); ++row)
            digits += Cell(model, row, MatchModel::kCode).right(1);
        return digits;
    };
    model.Take({Matching(2), Matching(5)});
    model.Take({Matching(1), Matching(2, 12'345), Matching(5), Matching(7)});
    EXPECT_EQ(codes(), "2517");
    EXPECT_EQ(Cell(model, 0, MatchModel::kPrice), "12,345");
    EXPECT_EQ(Cell(model, 0, MatchModel::kChange), "+1.50%");
    EXPECT_EQ(Cell(model, 0, MatchModel::kSince), "09:00:00");
    EXPECT_EQ(Cell(model, 0, MatchModel::kHolding), "A·C");
    model.Take({Matching(3), Matching(7)});
    EXPECT_EQ(codes(), "73");
    model.Take({});
    EXPECT_EQ(codes(), "");

    market::RandomNumbers random(1, 1);
    for (int round = 0; round < 200; ++round) {
        std::vector<WatchMatch> matches;
        for (int stock = 0; stock < 40; ++stock)
            if (random.Chance(0.5)) matches.push_back(Matching(stock, round));
        model.Take(matches);
        ASSERT_EQ(model.rowCount(), static_cast<int>(matches.size()));
        std::set<std::string> there, wanted;
        for (int row = 0; row < model.rowCount(); ++row) there.insert(model.CodeAt(row));
        for (const WatchMatch& match : matches) wanted.insert(match.stock.code);
        ASSERT_EQ(there, wanted);
    }
}

TEST(EventModelTest, NewestIsOnTopAndOldLinesFallOff) {
    EventModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.Take({{{CodeOf(1), "a", 900, -2}, 32'400'000, true, "AC", ""},
                {{CodeOf(2), "b", 1000, 0}, 32'401'000, false, "C", "B"}});
    EXPECT_EQ(Cell(model, 0, EventModel::kTime), "09:00:01");
    EXPECT_EQ(Cell(model, 0, EventModel::kMove), "이탈");
    EXPECT_EQ(Cell(model, 0, EventModel::kFlips), "C 충족, B 해제");
    EXPECT_EQ(Cell(model, 1, EventModel::kMove), "편입");
    EXPECT_EQ(Cell(model, 1, EventModel::kFlips), "A·C 충족");
    EXPECT_EQ(Cell(model, 1, EventModel::kChange), "-2.00%");

    std::vector<WatchEvent> many;
    for (int i = 0; i < 4'000; ++i) many.push_back({{CodeOf(i), "c", 1, 1}, 32'500'000, true, "A", ""});
    for (int i = 0; i < 3; ++i) model.Take(many);
    EXPECT_EQ(model.rowCount(), 10'000);
    EXPECT_EQ(model.CodeAt(0), CodeOf(3'999));
    EXPECT_EQ(model.CodeAt(9'999), CodeOf(2'000));
    many.resize(10'000, many.back());
    many.push_back({{CodeOf(7), "d", 1, 1}, 32'600'000, true, "A", ""});
    model.Take(many);
    EXPECT_EQ(model.rowCount(), 10'000);
    EXPECT_EQ(model.CodeAt(0), CodeOf(7)) << "more news at once than there are lines";
}

}  // namespace
}  // namespace jogeon::terminal
