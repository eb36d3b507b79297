// Condition sets from the button to the service's file and back: the real module, the real service, one or
// two terminals of the same user.
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "server/market/market_file.h"
#include "server/service/local_service.h"
#include "terminal/demonstration.h"
#include "terminal/set_opener.h"
#include "tests/terminal/support/desk.h"
#include "tests/terminal/support/patience.h"

namespace jogeon::terminal {
namespace {

class SavingTest : public testing::Test {
protected:
    service::LocalService Service() {
        return {OneStock(), std::make_unique<service::StoreService>(folder_.filePath("sets").toStdString())};
    }
    QString Home(const char* name) { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

TEST_F(SavingTest, ASavedSetIsThereWhenTerminalAndServiceStartAgain) {
    {
        service::LocalService service = Service();
        EXPECT_TRUE(Desk(service, Home("home")).SaveAs("나의 적삼병"));
    }
    service::LocalService service = Service();
    EXPECT_TRUE(Desk(service, Home("home")).Shows("나의 적삼병"));
    EXPECT_TRUE(Desk(service, Home("another computer")).Shows("나의 적삼병")) << "downloaded";
}

// On a computer that has never seen it, so that it is there only when the service has answered.
TEST_F(SavingTest, ATerminalOpensASetOfTheUsersOwnAtItsStart) {
    {
        service::LocalService service = Service();
        ASSERT_TRUE(Desk(service, Home("home")).SaveAs("나의 적삼병"));
    }
    Options options;
    options.user = kDeskUser;
    options.market = folder_.filePath("one.market");
    options.store = folder_.filePath("sets");
    market::WriteMarket(*OneStock(), options.market.toStdString());
    {
        options.home = Home("another computer");
        Terminal terminal(options);
        terminal.Window().show();
        const SetOpener opener(terminal, "나의 적삼병");
        const auto* name = terminal.Window().findChild<QLabel*>("21019");
        EXPECT_TRUE(QTest::qWaitFor([&] { return name->text() == "나의 적삼병"; }, kPatience));
    }
    options.home = Home("a third one");
    options.demonstrate = folder_.filePath("screen.png");
    Terminal terminal(options);
    EXPECT_EQ(0, Demonstrate(terminal, "나의 적삼병", options.demonstrate));
}

TEST_F(SavingTest, TheSameUserAtTwoTerminalsEndsUpWithTheSameSets) {
    service::LocalService service = Service();
    Desk first(service, Home("first")), second(service, Home("second"));
    EXPECT_TRUE(first.SaveAs("하나"));

    // The second terminal knows nothing of it: its save is refused, and it downloads what there is.
    second.questions.answers = {host::Answer::Yes};
    EXPECT_FALSE(second.SaveAs("둘"));
    ASSERT_EQ(1u, second.questions.boxes.size());
    EXPECT_TRUE(ToUtf8(second.questions.boxes[0].text).starts_with("버전 오류로 인해"));
    EXPECT_TRUE(second.Shows("하나"));
    EXPECT_TRUE(second.Save("둘"));

    first.questions.answers = {host::Answer::Yes};
    EXPECT_FALSE(first.SaveAs("셋"));
    EXPECT_TRUE(first.Save("셋"));
    for (const char* name : {"하나", "둘", "셋"}) EXPECT_TRUE(first.Shows(name)) << name;
    EXPECT_TRUE(Desk(service, Home("third")).Shows("셋"));
}

}  // namespace
}  // namespace jogeon::terminal
