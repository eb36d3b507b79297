#include "terminal/interest/interest_save.h"

#include <QGuiApplication>
#include <algorithm>
#include <exception>
#include <utility>

#include "screen/host/window_messages_qt.h"
#include "screen/text/cp949_qt.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/settings/interest_settings.h"

namespace jogeon::terminal {
namespace {

using service::InterestGroup;
using service::Verdict;

}  // namespace

InterestSave::InterestSave(const Workplace& workplace, Saved saved)
    : workplace_(workplace), saved_(std::move(saved)) {}

InterestSave::~InterestSave() {
    if (waits_) QGuiApplication::restoreOverrideCursor();
}

QString InterestSave::Caption() {
    return tr("관심저장");
}

int InterestSave::SaveInterest(host::WindowHandle window, const std::vector<std::string>& codes,
                               host::WindowHandle, int) {
    if (job_) return 0;
    const std::vector<std::string> stocks = Joined({}, codes);
    if (stocks.empty()) {
        Tell(workplace_.questions, tr("저장할 종목이 없습니다. 먼저 검색하십시오."), Caption());
        return 0;
    }
    ScreenSettings settings;
    AskInterestSettings(window, settings);
    job_ = Job{window, stocks, settings.confirmOverwrite == 1, settings.regLink == 1};
    AskGroups();
    return 1;
}

// The pointer is that of work that hinders nobody.
void InterestSave::AskService(Question question, void (InterestSave::*then)(const Answer&)) {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    waits_ = true;
    InBackground(
        workplace_, *this,
        [question = std::move(question), &portfolios = workplace_.service.GetPortfolios(),
         user = workplace_.user] {
            try {
                return question(portfolios, user);
            } catch (const std::exception& error) {
                return Answer{{}, {}, error.what()};
            }
        },
        [this, then](const Answer& answer) {
            QGuiApplication::restoreOverrideCursor();
            waits_ = false;
            if (answer.failure.empty()) return (this->*then)(answer);
            job_.reset();
            Tell(workplace_.questions,
                 tr("관심그룹에 저장할 수 없습니다.\n%1").arg(QString::fromStdString(answer.failure)),
                 Caption(), host::Icon::Warning);
        });
}

void InterestSave::AskGroups() {
    AskService(
        [](service::Portfolios& portfolios, const std::string& user) {
            return Answer{portfolios.Groups(user), {}, {}};
        },
        &InterestSave::AskUser);
}

void InterestSave::AskUser(const Answer& answer) {
    InterestDialog dialog(answer.groups, job_->codes, choice_, host::FindWindow(job_->window));
    const bool agreed = workplace_.questions.Run("InterestDialog", static_cast<QDialog*>(&dialog));
    if (agreed) choice_ = dialog.Chosen();
    const bool asks = choice_.replaces && job_->asksBeforeReplacing;
    if (!agreed || (asks && !MayReplace(choice_.code, answer.groups))) {
        choice_ = {choice_.code, {}, false};
        job_.reset();
        return;
    }
    AskService(
        [choice = choice_, codes = job_->codes](service::Portfolios& portfolios,
                                                const std::string& user) -> Answer {
            if (choice.code.empty()) return {{}, portfolios.Add(user, Bytes(choice.name), codes), {}};
            const auto edit = [&](std::vector<std::string>& stocks) {
                stocks = choice.replaces ? codes : Joined(std::move(stocks), codes);
            };
            return {{}, {portfolios.EditStocks(user, choice.code, edit), choice.code}, {}};
        },
        &InterestSave::Finish);
}

bool InterestSave::MayReplace(const std::string& code, const std::vector<InterestGroup>& groups) const {
    const auto group = std::find_if(groups.begin(), groups.end(),
                                    [&](const InterestGroup& known) { return known.code == code; });
    if (group == groups.end() || group->stocks.empty()) return true;
    return Agrees(workplace_.questions,
                  tr("관심그룹 '%1'에 있는 %2종목을 검색 결과로 바꾸시겠습니까?")
                      .arg(ToQString(group->name))
                      .arg(group->stocks.size()),
                  Caption());
}

// What wasn't taken is asked for again, as it was entered, over the groups that there are then.
void InterestSave::Finish(const Answer& answer) {
    if (answer.saved.verdict != Verdict::Taken) {
        Tell(workplace_.questions, WhyNot(answer.saved.verdict), Caption(), host::Icon::Warning);
        return AskGroups();
    }
    choice_ = {answer.saved.code, {}, false};
    const bool shows = job_->shows;
    job_.reset();
    if (saved_) saved_(answer.saved.code, shows);
}

}  // namespace jogeon::terminal
