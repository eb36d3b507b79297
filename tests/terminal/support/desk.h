// A terminal without its own window: the real module over a service, and a user who answers as the test says.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <memory>

#include "screen/text/cp949.h"
#include "server/market/market_builder.h"
#include "server/service/service.h"
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

inline constexpr char kDeskUser[] = "tester";

// The least that is a market: searches don't matter here.
inline std::shared_ptr<const market::Market> OneStock() {
    market::MarketBuilder builder;
    market::Instrument stock;
    stock.code = "000010";
    builder.AddBar(builder.AddInstrument(stock), 20240102, 10, 11, 9, 10, 100);
    return builder.Build();
}

class Desk {
public:
    Desk(service::Service& service, const QString& home)
        : communication_(service, kDeskUser, {}),
          links_(kDeskUser, PrepareHome(home), {}),
          codeLists_(service, kDeskUser),
          module_(ScreenModule::DefaultPath()),
          driver_(frame_) {
        questions.onRun = [this](const std::string&, void* dialog) { return Name(dialog); };
        host::Install({&communication_, &links_, &codeLists_, &colors_, &questions, &clock_});
        frame_.Open(module_);
        frame_.show();
        Settle();
    }
    ~Desk() { frame_.Close(); }

    // Opens a set of the firm and saves it under this name; true if the service took it.
    bool SaveAs(const QString& name) { return driver_.OpenSet("적삼병") && Save(name); }

    bool Save(const QString& name) {
        name_ = name;
        questions.boxes.clear();
        PressSave();
        return !questions.boxes.empty() &&
               ToUtf8(questions.boxes[0].text).starts_with("사용자정의 조건이 조건번호");
    }

    // Saves what is on the screen; returns when the answer has been dealt with.
    void PressSave() {
        frame_.findChild<QAbstractButton*>("21024")->click();
        Settle();
    }

    // The whole screen, as it is when Qt has told all its windows what there is to tell.
    QImage Picture() {
        QApplication::processEvents();
        return frame_.grab().toImage();
    }

    // The user's sets in the tree, with the firm's behind them.
    QStringList Sets() const { return driver_.SetNames(); }
    bool Shows(const QString& name) const { return Sets().contains(name); }

    test::ScriptedQuestions questions;

private:
    bool Name(void* object) {
        auto* dialog = static_cast<QDialog*>(object);
        dialog->findChild<QLineEdit*>()->setText(name_);
        dialog->accept();
        return dialog->result() == QDialog::Accepted;
    }

    void Settle() {
        while (!communication_.Idle()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
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

}  // namespace jogeon::terminal
