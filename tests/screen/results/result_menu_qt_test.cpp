// The menu of the results over a whole screen, opened as a right click does it.
#include <QAbstractButton>
#include <QMenu>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "screen/results/result_grid_view.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

class ResultMenuTest : public testing::Test {
protected:
    ResultMenuTest() {
        host.Open();
        host.Reply("VE");
        auto& tree = host.Control<QTreeWidget>(21001);
        emit tree.itemDoubleClicked(tree.topLevelItem(tree.topLevelItemCount() - 1)->child(0), 0);
        Search("T1        0500030002000200019003K000660     181000  Q035720     43000   ");
    }

    void Search(const char* reply) {
        host.Control<QAbstractButton>(21039).click();
        host.Reply(reply);
    }
    ResultGrid& Results() { return host.Control<ResultGrid>(21104); }

    // The entry of a newly opened menu.
    QAction& Entry(const char* text) {
        emit Results().customContextMenuRequested({20, 20});
        for (QAction* action : Results().findChildren<QMenu*>().back()->actions())
            if (action->text().startsWith(text)) return *action;
        throw std::runtime_error(text);
    }

    TestHost host;
};

TEST_F(ResultMenuTest, OnlyRowsThatAreStillThereArePublished) {
    Results().SelectRange(2, 3);
    QAction& publish = Entry("선택 종목만");
    ASSERT_TRUE(publish.isEnabled());
    Search("T1        0500010001000100019003K000660     181000  ");
    host.journal.clear();
    publish.trigger();
    EXPECT_EQ(Journal(), host.journal);
}

TEST_F(ResultMenuTest, TheKeyStandsWhereItDoesWhatTheEntryDoes) {
    EXPECT_EQ("관심그룹에 저장\tCtrl+D", Entry("관심").text());
    Results().SelectRange(2, 3);
    EXPECT_EQ("관심그룹에 저장", Entry("관심").text());
}

}  // namespace
}  // namespace jogeon::test
