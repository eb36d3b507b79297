// Choosing columns: what is offered, and what becomes of an odd choice.
#include "screen/results/column_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/screen/support/columns.h"

namespace jogeon::test {
namespace {

using testing::ElementsAre;

std::string Fids(const GridLayout& layout) {
    std::string fids;
    for (const GridColumn& column : layout) {
        fids += (column.fid.empty() ? "-" : column.fid) + (column.hidden ? "h " : " ");
    }
    return fids;
}

class ColumnChoiceTest : public testing::Test {
protected:
    ColumnChoiceTest() {
        choice.TakeStored({{1, "9001", "name", 100, false},
                           {2, "7777", "gone", 50, false},
                           {3, "3001", "price", 80, true},
                           {4, "", "", 40, true},
                           {5, "2001", "volume", 60, false},
                           {6, "2001", "twice", 60, false}});
    }

    const ColumnTables tables = SmallTables();
    ColumnChoice choice{tables};
};

TEST_F(ColumnChoiceTest, OffersWhatASearchCanAskForOnceEach) {
    EXPECT_THAT(choice.Choices(), ElementsAre(host::GridColumnChoice{"9001", "name", 100, true},
                                              host::GridColumnChoice{"3001", "price", 80, false},
                                              host::GridColumnChoice{"2001", "volume", 60, true}));
}

TEST_F(ColumnChoiceTest, ValueColumnsStayBehindInEveryChoice) {
    choice.Choose({{"2001", "", 5, true}, {"3001", "", 99999, true}, {"9001", "", 90, false}});
    EXPECT_EQ("2001 3001 9001 2001 7777 -h ", Fids(choice.Layout()));
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(int(i) + 1, choice.Layout()[i].number);
    EXPECT_EQ(kMinColumnWidth, choice.Layout()[0].width);
    EXPECT_EQ(kMaxColumnWidth, choice.Layout()[1].width);

    // Strangers are ignored, columns left out keep what they were.
    choice.Choose(
        {{"7777", "", 50, true}, {"9999", "", 50, true}, {"", "", 50, true}, {"9001", "", 90, true}});
    EXPECT_EQ("9001 2001 3001 2001 7777 -h ", Fids(choice.Layout()));
}

TEST_F(ColumnChoiceTest, KnowsWhetherThereIsSomethingToSave) {
    EXPECT_FALSE(choice.Changed());
    choice.Choose(choice.Choices());
    EXPECT_TRUE(choice.Changed()) << "value columns have moved behind";
    choice.TakeStored(choice.Layout());
    choice.Choose(choice.Choices());
    choice.SetWidth(1, 100);
    choice.SetWidth(0, 50);
    choice.SetWidth(7, 50);
    EXPECT_FALSE(choice.Changed());
    choice.SetWidth(1, 101);
    EXPECT_TRUE(choice.Changed());
}

}  // namespace
}  // namespace jogeon::test
