// A terminal in a test: the module loaded from its library, the service on its thread, the generated market.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include <gtest/gtest.h>

#include "server/market/generated_market.h"
#include "server/market/market_file.h"
#include "terminal/screen_driver.h"
#include "terminal/terminal.h"
#include "tests/terminal/support/patience.h"

namespace jogeon::terminal {

class TerminalTest : public testing::Test {
protected:
    // The market of a first start, from a file: making it takes seconds in a sanitized build.
    static void SetUpTestSuite() {
        marketFolder_ = std::make_unique<QTemporaryDir>();
        market::WriteMarket(*market::GenerateMarket(), MarketFile().toStdString());
    }
    static void TearDownTestSuite() { marketFolder_.reset(); }
    static QString MarketFile() { return marketFolder_->path() + "/generated.market"; }

    TerminalTest() {
        options_.user = "tester";
        options_.market = MarketFile();
        options_.home = folder_.path() + "/home";
        options_.demonstrate = "no boxes";
    }

    void Open() {
        terminal_ = std::make_unique<Terminal>(options_, OwnScreens(), questions_);
        terminal_->Window().show();
        screen_ = std::make_unique<ScreenDriver>(terminal_->Window());
        // The answer to the start-up's own request would end the wait for a search.
        ASSERT_TRUE(QTest::qWaitFor([this] { return terminal_->Idle(); }, kPatience));
    }

    void SearchAndWait() {
        screen_->Search();
        ASSERT_TRUE(QTest::qWaitFor([this] { return terminal_->Idle(); }, kPatience));
    }

    QString Label(int id) { return terminal_->Window().findChild<QLabel*>(QString::number(id))->text(); }
    QAbstractButton& Button(int id) {
        return *terminal_->Window().Frame().findChild<QAbstractButton*>(QString::number(id));
    }

    inline static std::unique_ptr<QTemporaryDir> marketFolder_;
    QTemporaryDir folder_;
    Options options_;
    host::Questions* questions_ = nullptr;  // who answers in the user's place; null: nobody
    std::unique_ptr<Terminal> terminal_;
    std::unique_ptr<ScreenDriver> screen_;
};

}  // namespace jogeon::terminal
