#include "terminal/interest/interest_save.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <exception>
#include <utility>

#include "screen/host/window_messages_qt.h"
#include "screen/settings/settings_block.h"
#include "screen/text/cp949_qt.h"
#include "terminal/interest/portfolio_texts.h"

namespace jogeon::terminal {
namespace {

using service::InterestGroup;
using service::Verdict;

// The settings of a screen that doesn't answer are all 0.
class ScreenAnswers {
public:
    explicit ScreenAnswers(host::WindowHandle window) {
        host::SendMessage(window, host::kSettingsFill, 0, reinterpret_cast<std::intptr_t>(block_.data()));
    }

    bool ConfirmOverwrite() const { return Value(settings_block::kConfirmOverwrite) == 1; }
    bool RegLink() const { return Value(settings_block::kRegLink) == 1; }

private:
    std::uint32_t Value(std::size_t offset) const {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < sizeof value; ++i)
            value |= std::to_integer<std::uint32_t>(block_[offset + i]) << (8 * i);
        return value;
    }

    std::array<std::byte, settings_block::kSize> block_{};
};

const InterestGroup* Find(const std::vector<InterestGroup>& groups, const std::string& code) {
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [&](const InterestGroup& group) { return group.code == code; });
    return found == groups.end() ? nullptr : &*found;
}

}  // namespace

InterestSave::InterestSave(const Workplace& workplace, Saved saved)
    : workplace_(workplace), saved_(std::move(saved)) {}

QString InterestSave::Caption() {
    return tr("관심저장");
}

int InterestSave::SaveInterest(host::WindowHandle window, const std::vector<std::string>& codes,
                               host::WindowHandle, int) {
    const std::vector<std::string> stocks = Joined({}, codes);
    if (stocks.empty()) {
        Tell(workplace_.questions, tr("저장할 종목이 없습니다. 먼저 검색하십시오."), Caption());
        return 0;
    }
    try {
        return Save(stocks, window) ? 1 : 0;
    } catch (const std::exception& error) {
        Tell(workplace_.questions,
             tr("관심그룹에 저장할 수 없습니다.\n%1").arg(QString::fromUtf8(error.what())), Caption(),
             host::Icon::Warning);
        return 0;
    }
}

bool InterestSave::Save(const std::vector<std::string>& codes, host::WindowHandle window) {
    const std::vector<InterestGroup> groups = workplace_.service.GetPortfolios().Groups(workplace_.user);
    const ScreenAnswers settings(window);
    InterestDialog dialog(groups, codes, last_, host::FindWindow(window));
    if (!workplace_.questions.Run("InterestDialog", static_cast<QDialog*>(&dialog))) return false;
    const InterestDialog::Choice choice = dialog.Chosen();
    if (choice.replaces && settings.ConfirmOverwrite() && !MayReplace(choice.code, groups)) return false;
    const service::Addition saved = Carry(choice, codes);
    if (saved.verdict != Verdict::Taken) {
        Tell(workplace_.questions, WhyNot(saved.verdict), Caption(), host::Icon::Warning);
        return false;
    }
    last_ = saved.code;
    if (saved_) saved_(saved.code, settings.RegLink());
    return true;
}

bool InterestSave::MayReplace(const std::string& code, const std::vector<InterestGroup>& groups) const {
    const InterestGroup* group = Find(groups, code);
    if (!group || group->stocks.empty()) return true;
    return Agrees(workplace_.questions,
                  tr("관심그룹 '%1'에 있는 %2종목을 검색 결과로 바꾸시겠습니까?")
                      .arg(ToQString(group->name))
                      .arg(group->stocks.size()),
                  Caption());
}

// Stocks join the group as it is now, not as it was when the dialog opened.
service::Addition InterestSave::Carry(const InterestDialog::Choice& choice,
                                      const std::vector<std::string>& codes) {
    service::Portfolios& portfolios = workplace_.service.GetPortfolios();
    if (choice.code.empty()) return portfolios.Add(workplace_.user, choice.name, codes);
    std::vector<std::string> stocks = codes;
    if (!choice.replaces) {
        const std::vector<InterestGroup> now = portfolios.Groups(workplace_.user);
        const InterestGroup* group = Find(now, choice.code);
        if (!group) return {Verdict::NoSuchGroup, {}};
        stocks = Joined(group->stocks, codes);
    }
    return {portfolios.SetStocks(workplace_.user, choice.code, stocks), choice.code};
}

}  // namespace jogeon::terminal
