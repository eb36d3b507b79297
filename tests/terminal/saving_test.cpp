// Condition sets from the button to the service's file and back: the real module, the real service, one or
// two terminals of the same user.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "server/market/market_builder.h"
#include "server/service/local_service.h"
#include "terminal/home_folder.h"
#include "terminal/host/clock.h"
#include "terminal/host/code_lists.h"
#include "terminal/host/communication.h"
#include "terminal/host/host_colors.h"
#include "terminal/host/links.h"
#include "terminal/host_frame.h"
#include "terminal/screen_driver.h"
#include "terminal/screen_module.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::terminal {
namespace {

constexpr int kPatience = 60000;  // milliseconds
constexpr char kUser[] = "tester";

std::shared_ptr<const market::Market> OneStock() {
    market::MarketBuilder builder;
    market::Instrument stock;
    stock.code = "000010";
    builder.AddBar(builder.AddInstrument(stock), 20240102, 10, 11, 9, 10, 100);
    return builder.Build();
}

// A terminal whose user answers as the test says.
class Desk {
public:
    Desk(service::Service& service, const QString& home)
        : communication_(service, kUser, {}),
          links_(kUser, PrepareHome(home), {}),
          codeLists_(service, kUser),
          module_(ScreenModule::DefaultPath()),
          driver_(frame_) {
        questions.onRun = [this](const std::string&, void* dialog) { return Name(dialog); };
        host::Install({&communication_, &links_, &codeLists_, &colors_, &questions, &clock_});
        EXPECT_TRUE(frame_.Open(module_));
        frame_.show();
        Settle();
    }
    ~Desk() { frame_.Close(); }

    // Opens a set of the firm and saves it under this name; true if the service took it.
    bool SaveAs(const QString& name) {
        EXPECT_TRUE(driver_.OpenSet("적삼병"));
        return Save(name);
    }

    bool Save(const QString& name) {
        name_ = name;
        questions.boxes.clear();
        frame_.findChild<QAbstractButton*>("21024")->click();
        Settle();
        return !questions.boxes.empty() &&
               ToUtf8(questions.boxes[0].text).starts_with("사용자정의 조건이 조건번호");
    }

    // The user's sets in the tree, with the firm's behind them.
    bool Shows(const QString& name) const { return driver_.SetNames().contains(name); }

    test::ScriptedQuestions questions;

private:
    bool Name(void* object) {
        auto* dialog = static_cast<QDialog*>(object);
        dialog->findChild<QLineEdit*>()->setText(name_);
        dialog->accept();
        return dialog->result() == QDialog::Accepted;
    }

    void Settle() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return communication_.Idle(); }, kPatience));
    }

    ServiceCommunication communication_;
    Links links_;
    ServiceCodeLists codeLists_;
    HostColors colors_;
    QtClock clock_;
    const ScreenModule module_;
    HostFrame frame_;
    ScreenDriver driver_;
    QString name_;
};

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
