// A workplace for the windows over portfolios: a real service on a small market, and a user who answers as
// the test says.
#pragma once

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QThreadPool>

#include "screen/text/cp949.h"
#include "server/service/local_service.h"
#include "terminal/screens/workplace.h"
#include "tests/screen/support/recorders.h"
#include "tests/server/engine/test_market.h"

namespace jogeon::terminal {

// Korean comes from an input method, character by character.
inline void Type(QWidget& widget, const QString& text) {
    for (QChar character : text) {
        QInputMethodEvent event;
        event.setCommitString(character);
        QApplication::sendEvent(&widget, &event);
    }
}

struct InterestPlace {
    static constexpr char kUser[] = "kim01";
    static constexpr int kPatience = 30000;  // milliseconds, for a sanitized build on a busy machine

    explicit InterestPlace(std::shared_ptr<const market::Market> market = test::TestMarket())
        : service(std::move(market), nullptr) {}
    ~InterestPlace() { workers.waitForDone(); }

    service::Portfolios& Portfolios() { return service.GetPortfolios(); }
    std::vector<std::string> StocksOf(const std::string& code) {
        for (const service::InterestGroup& group : Portfolios().Groups(kUser))
            if (group.code == code) return group.stocks;
        return {"no group " + code};
    }
    std::string NameOf(const std::string& code) {
        for (const service::InterestGroup& group : Portfolios().Groups(kUser))
            if (group.code == code) return ToUtf8(group.name);
        return "no group";
    }

    service::LocalService service;
    Links links{kUser, HomeFolder{}, {}};
    test::ScriptedQuestions questions;
    QThreadPool workers;
    const Workplace workplace{kUser, service, links, questions, workers};
};

}  // namespace jogeon::terminal
