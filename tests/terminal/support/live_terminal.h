// The real terminal on a market of one stock, with screens that only note what they are told.
#pragma once

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include <gtest/gtest.h>

#include "server/market/market_file.h"
#include "terminal/terminal.h"
#include "tests/terminal/support/desk.h"
#include "tests/terminal/support/fake_screen.h"
#include "tests/terminal/support/patience.h"

namespace jogeon::terminal {

class LiveTerminal : public testing::Test {
protected:
    LiveTerminal() {
        options_.user = "tester";
        options_.home = folder_.filePath("home");
        options_.market = folder_.filePath("market");
        market::WriteMarket(*OneStock(), options_.market.toStdString());
    }

    void Open() {
        terminal_ = std::make_unique<Terminal>(options_, FakeKinds());
        Window().show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window(), kPatience));
        ASSERT_TRUE(QTest::qWaitFor([this] { return terminal_->Idle(); }, kPatience));
    }

    void OpenAgain() {
        Window().close();
        terminal_.reset();
        Open();
    }

    MainWindow& Window() { return terminal_->Window(); }

    // Null while it is closed.
    FakeScreen* Screen(const QString& number) {
        for (auto* screen : Window().findChildren<OwnScreen*>()) {
            if (screen->Number() == number) return dynamic_cast<FakeScreen*>(screen);
        }
        return nullptr;
    }
    QDockWidget& Dock(const QString& number) { return *Window().findChild<QDockWidget*>("screen" + number); }
    void CloseByItsButton(const QString& number) {
        QTest::mouseClick(Dock(number).findChild<QAbstractButton*>("qt_dockwidget_closebutton"),
                          Qt::LeftButton);
    }

    // As the screen's module sends it.
    void Send(host::MessageNumber message, const std::string& text) {
        host::SendMessage(Window().Frame().Handle(), message, 0,
                          reinterpret_cast<std::intptr_t>(text.c_str()));
    }

    QAction& Action(const QString& name) { return *Window().findChild<QAction*>(name); }

    QString StateFile() const { return options_.home + "/Config/terminal_tester.ini"; }

    QTemporaryDir folder_;
    Options options_;
    std::unique_ptr<Terminal> terminal_;
};

}  // namespace jogeon::terminal
