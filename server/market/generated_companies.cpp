#include "server/market/generated_companies.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "screen/text/bytes.h"
#include "server/market/calendar.h"
#include "server/market/generated_names.h"
#include "server/market/generated_sectors.h"
#include "server/market/tick_size.h"

namespace jogeon::market {
namespace {

constexpr double kSpacPart = 0.028;      // of all companies
constexpr double kPreferredPart = 0.11;  // of KOSPI companies, that have a preferred stock too
constexpr double kNewPart = 0.05;        // that were listed within the days of the market
constexpr int kOneOfAKind = 12;          // the last companies, which show rare lengths of history

void Set(Instrument& stock, Status status, bool is = true) {
    stock.status[static_cast<std::size_t>(status)] = is;
}

// Code number `n` with the class of the stock: 0 for a common one. Real codes don't begin with 8, so that
// nobody meets a company he knows under another name.
std::string MakeCode(int n, char kind) {
    std::string code = "8";
    code += ZeroPadded(n, 4);
    code += kind;
    return code;
}

class CompanyMaker {
public:
    CompanyMaker(const std::vector<int>& tradingDays, RandomNumbers random)
        : days_(tradingDays), random_(random) {}

    Company Make(int codeNumber) {
        Company company;
        const bool spac = random_.Chance(kSpacPart);
        company.stock.code = MakeCode(codeNumber, '0');
        if (spac)
            Describe(company.stock);
        else
            DescribeBusiness(company);
        SetSize(company, spac);
        SetListing(company, spac);
        SetStanding(company, spac);
        return company;
    }

    bool HasPreferred(const Company& company) {
        return company.stock.exchange == Exchange::Kospi && random_.Chance(kPreferredPart);
    }

    Company MakePreferred(const Company& common, int commonNumber) {
        Company preferred = common;
        preferred.commonOf = commonNumber;
        preferred.stock.name += "우";
        preferred.stock.code.back() = random_.Chance(0.15) ? 'K' : '5';
        preferred.stock.shares = std::floor(common.stock.shares * random_.Between(0.03, 0.18));
        preferred.model.startPrice = RoundToTick(common.model.startPrice * random_.Between(0.45, 0.9));
        preferred.model.volatility = 0.008;
        preferred.model.dailyVolume = std::max(50.0, preferred.stock.shares * random_.Between(0.0005, 0.006));
        preferred.model.shock = 0.002;
        Set(preferred.stock, Status::Preferred);
        return preferred;
    }

    // Companies that came to the market in its last days, down to a single bar.
    void ShortenHistory(Company& company, int bars) {
        company.model.firstDay = static_cast<int>(days_.size()) - bars;
        company.model.halts.clear();
        company.model.gaps.clear();
        company.stock.listingDate = days_[static_cast<std::size_t>(company.model.firstDay)];
    }

private:
    void Describe(Instrument& spac) {
        spac.exchange = Exchange::Kosdaq;
        spac.name = names_.NextSpac(random_);
        spac.industry = kSpacIndustry;
        spac.division = "SPAC(소속부없음)";
        spac.settlementMonth = 12;
    }

    int PickSector() {
        int weights = 0;
        for (const Sector& sector : Sectors()) weights += sector.weight;
        int left = random_.Below(weights);
        int number = 0;
        while (left >= Sectors()[static_cast<std::size_t>(number)].weight)
            left -= Sectors()[static_cast<std::size_t>(number++)].weight;
        return number;
    }

    void DescribeBusiness(Company& company) {
        company.sector = PickSector();
        const Sector& sector = Sectors()[static_cast<std::size_t>(company.sector)];
        company.stock.name = names_.Next(sector, random_);
        company.stock.industry = sector.industry;
        company.stock.exchange = random_.Chance(sector.kosdaq) ? Exchange::Kosdaq : Exchange::Kospi;
        company.beta = std::max(0.2, sector.beta + 0.2 * random_.Normal());
        company.stock.settlementMonth = 12;
        if (random_.Chance(0.07)) {
            constexpr int kOthers[] = {3, 3, 3, 6, 6, 9, 11, 2};
            company.stock.settlementMonth = kOthers[random_.Below(std::size(kOthers))];
        }
    }

    // Price, number of shares and how briskly they are traded.
    void SetSize(Company& company, bool spac) {
        StockModel& model = company.model;
        if (spac) {
            company.beta = 0.05;
            company.stock.shares = std::floor(random_.Between(4e6, 2e7));
            model = {.startPrice = FloorToTick(random_.Between(2000, 2200)),
                     .volatility = 0.006,
                     .dailyVolume = random_.Between(3'000, 60'000),
                     .shock = 0.001,
                     .pull = 0.05,
                     .halts = {},
                     .gaps = {}};
            return;
        }
        const bool kospi = company.stock.exchange == Exchange::Kospi;
        const double size = random_.Normal();
        const double value =
            1e11 * RoughExp(kospi ? 0.9 + 1.6 * size : 0.1 + 0.9 * size);  // won, of all shares
        const double price =
            std::clamp(RoughExp(8.7 + 0.5 * size + 0.9 * random_.Normal()), 450.0, 900'000.0);
        const double spread = RoughExp(0.3 * random_.Normal());
        company.stock.shares = std::floor(value / price);
        model.startPrice = RoundToTick(price);
        model.volatility = std::clamp((kospi ? 0.014 : 0.021) * spread, 0.007, 0.045);
        model.dailyVolume = company.stock.shares * RoughExp(-5.7 + 1.0 * random_.Normal());
        model.shock = random_.Chance(0.15) ? 0.02 : 0.005;
        model.pull = 0.004;
    }

    int OldListingDate() {
        const int first = DayNumber(19600104);
        const int last = DayNumber(days_.front()) - 7;
        // Most companies came in the last third of these years.
        const double a = random_.Uniform();
        const double b = random_.Uniform();
        const double late = 1 - (1 - std::max(a, b)) * random_.Uniform();
        int day = first + static_cast<int>((last - first) * late);
        while (Weekday(DateOfDay(day)) > 4) --day;
        return DateOfDay(day);
    }

    void SetListing(Company& company, bool spac) {
        const int days = static_cast<int>(days_.size());
        if (random_.Chance(spac ? 0.5 : kNewPart)) {
            company.model.firstDay = 1 + random_.Below(days - 10);
            company.stock.listingDate = days_[static_cast<std::size_t>(company.model.firstDay)];
        } else {
            company.stock.listingDate = OldListingDate();
        }
        if (random_.Chance(0.008)) AddSpans(company.model.gaps, 1 + random_.Below(3), 5);
    }

    // `count` spans of up to `longest` days each, somewhere.
    void AddSpans(std::vector<DaySpan>& spans, int count, int longest) {
        for (int i = 0; i < count; ++i) {
            const int first = random_.Below(static_cast<int>(days_.size()));
            spans.push_back({first, 1 + random_.Below(longest)});
        }
    }

    void SetStanding(Company& company, bool spac) {
        Instrument& stock = company.stock;
        StockModel& model = company.model;
        const int days = static_cast<int>(days_.size());
        if (random_.Chance(0.03)) AddSpans(model.halts, 1 + random_.Below(2), 3);
        if (random_.Chance(0.01)) AddSpans(model.halts, 1, 60);
        const bool administrative = !spac && random_.Chance(0.025);
        const bool alert = !spac && !administrative && random_.Chance(0.017);
        if (administrative) {
            model.volatility = std::min(model.volatility * 1.5, 0.05);
            const int lastDays = 1 + random_.Below(250);
            if (random_.Chance(0.45)) model.halts.push_back({days - lastDays, lastDays});
        }
        Set(stock, Status::Administrative, administrative);
        Set(stock, Status::Alert, alert);
        Set(stock, Status::NoCollateral, administrative || alert || spac || random_.Chance(0.06));
        const bool risky = model.volatility > 0.032 || model.startPrice < 1000;
        Set(stock, Status::FullMargin, administrative || alert || spac || (risky && random_.Chance(0.6)));
        if (!spac && stock.exchange == Exchange::Kosdaq) stock.division = Division(administrative, alert);
    }

    std::string_view Division(bool administrative, bool alert) {
        if (administrative) return "관리종목(소속부없음)";
        if (alert) return "투자주의환기종목(소속부없음)";
        const double which = random_.Uniform();
        if (which < 0.30) return "우량기업부";
        if (which < 0.63) return "중견기업부";
        if (which < 0.83) return "벤처기업부";
        return which < 0.988 ? "기술성장기업부" : "외국기업(소속부없음)";
    }

    const std::vector<int>& days_;
    RandomNumbers random_;
    CompanyNames names_;
};

}  // namespace

std::vector<Company> MakeCompanies(int count, const std::vector<int>& tradingDays, RandomNumbers random) {
    CompanyMaker maker(tradingDays, random);
    std::vector<Company> companies;
    int codeNumber = 0;
    while (static_cast<int>(companies.size()) < count) {
        codeNumber += 1 + random.Below(3);
        companies.push_back(maker.Make(codeNumber));
        const int number = static_cast<int>(companies.size()) - 1;
        if (number + 1 < count && maker.HasPreferred(companies.back()))
            companies.push_back(maker.MakePreferred(companies[static_cast<std::size_t>(number)], number));
    }
    for (int bars = 1; bars <= kOneOfAKind; ++bars) {
        const std::size_t number = companies.size() - static_cast<std::size_t>(bars);
        const bool preferred = companies[number].commonOf >= 0;
        const bool followed = number + 1 < companies.size() && companies[number + 1].commonOf >= 0;
        if (!preferred && !followed) maker.ShortenHistory(companies[number], bars);
    }
    return companies;
}

}  // namespace jogeon::market
