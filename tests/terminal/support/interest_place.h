// A workplace for the windows over portfolios: a real service on a small market, which waits or fails when
// the test says, and a user who answers as it says.
#pragma once

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QThreadPool>
#include <atomic>
#include <mutex>
#include <stdexcept>

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

class TroubledService : public service::LocalService {
public:
    explicit TroubledService(std::shared_ptr<const market::Market> market)
        : LocalService(market, nullptr), troubled_(*this, std::move(market)) {}
    service::Portfolios& GetPortfolios() override { return troubled_; }

    std::mutex gate;  // who holds it keeps the calls waiting
    std::atomic<bool> fails = false;

private:
    class Troubled : public service::LocalPortfolios {
    public:
        Troubled(TroubledService& service, std::shared_ptr<const market::Market> market)
            : LocalPortfolios(std::move(market), store::PortfolioStore::kInMemory), service_(service) {}
        std::vector<service::InterestGroup> Groups(const std::string& user) override {
            Pass();
            return LocalPortfolios::Groups(user);
        }
        service::Verdict Rename(const std::string& user, const std::string& code,
                                const std::string& name) override {
            Pass();
            return LocalPortfolios::Rename(user, code, name);
        }

    private:
        void Pass() {
            const std::lock_guard waited(service_.gate);
            if (service_.fails) throw std::runtime_error("the server can't be reached");
        }

        TroubledService& service_;
    } troubled_;
};

struct InterestPlace {
    static constexpr char kUser[] = "kim01";
    static constexpr int kPatience = 30000;  // milliseconds, for a sanitized build on a busy machine

    explicit InterestPlace(std::shared_ptr<const market::Market> market = test::TestMarket())
        : service(std::move(market)) {}
    ~InterestPlace() { workers.waitForDone(); }

    service::Portfolios& Portfolios() { return service.GetPortfolios(); }
    std::vector<std::string> StocksOf(const std::string& code) {
        for (const service::InterestGroup& group : Portfolios().Groups(kUser))
            if (group.code == code) return group.stocks;
        return {"no group " + code};
    }
    void SetStocks(const std::string& code, const std::vector<std::string>& stocks) {
        Portfolios().EditStocks(kUser, code, [&](std::vector<std::string>& now) { now = stocks; });
    }
    std::string NameOf(const std::string& code) {
        for (const service::InterestGroup& group : Portfolios().Groups(kUser))
            if (group.code == code) return ToUtf8(group.name);
        return "no group";
    }

    TroubledService service;
    Links links{kUser, HomeFolder{}, {}};
    test::ScriptedQuestions questions;
    QThreadPool workers;
    const Workplace workplace{kUser, service, links, questions, workers};
};

}  // namespace jogeon::terminal
