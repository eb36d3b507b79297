// Random conditions over every indicator and variant of the catalogue as built, made as the screen makes
// them.
#pragma once

#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "screen/condition/catalogue.h"
#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"

namespace jogeon::test {

class RandomConditions {
public:
    // JOGEON_HOME_DATA must name the built home folder.
    explicit RandomConditions(unsigned seed) : random_(seed) {
        catalogue.Load(std::filesystem::path(std::getenv("JOGEON_HOME_DATA")) / "System",
                       {"001 sector", "102 other"});
        for (const auto& index : catalogue.Indexes()) {
            if (!index->m_bLeaf) continue;
            const auto condition = catalogue.MakeCondition(index->m_strKey);
            const CIndexField* selector = FindFieldByRole(*condition->m_pFields, kRoleSelector);
            const int count = selector ? CTokenList(selector->m_strItems, '|').GetCount() : 1;
            for (int variant = 0; variant < count; ++variant) variants_.emplace_back(index.get(), variant);
        }
    }

    std::size_t Variants() const { return variants_.size(); }
    std::size_t Made() const { return made_; }

    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

    // A condition on the next variant in turn, with random values in all of its fields.
    std::unique_ptr<CIndexInfo> Make(char letter) {
        const auto& [index, variant] = variants_[made_++ % variants_.size()];
        auto condition = catalogue.MakeCondition(index->m_strKey);
        if (CIndexField* selector = FindFieldByRole(*condition->m_pFields, kRoleSelector))
            selector->m_nSelected = variant;
        for (const auto& field : *condition->m_pFields) field->SetValue(ValueOf(*field));
        condition->SetValueText(condition->GetValueText());
        condition->m_chLetter = letter;
        condition->m_bChecked = Below(2);
        condition->m_bShowValue = Below(2);
        return condition;
    }

    Catalogue catalogue;

private:
    // One of its codes, or a number within its bounds; sometimes nothing.
    std::string ValueOf(const CIndexField& field) {
        const CTokenList codes(field.m_strCodes, '|');
        if (codes.GetCount() > 0) return codes.GetToken(Below(codes.GetCount()));
        if (Below(20) == 0) return "";
        const int least = static_cast<int>(field.m_dMin), most = static_cast<int>(field.m_dMax);
        const std::string whole = Decimal(Below(8) == 0 ? most : least + Below(most - least + 1));
        const bool fraction = field.m_nRole >= 60 && whole.size() < 3 && Atoi(whole) != most && Below(2);
        return fraction ? whole + "." + Decimal(Below(9)) : whole;
    }

    std::vector<std::pair<const CIndexInfo*, int>> variants_;
    std::size_t made_ = 0;
    std::mt19937 random_;
};

}  // namespace jogeon::test
