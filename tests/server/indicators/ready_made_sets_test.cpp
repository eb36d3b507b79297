// The ready-made condition sets: well formed, and worth a trader's click.

#include <map>
#include <set>

#include "screen/saved/saved_condition_file.h"
#include "screen/text/cp949.h"
#include "screen/transactions/condition_block.h"
#include "server/engine/expression.h"
#include "server/market/generated_market.h"
#include "tests/server/indicators/catalogue_files.h"

namespace jogeon::indicators {

namespace {

class ReadyMadeSets : public CatalogueFiles {
protected:
    void SetUp() override {
        CatalogueFiles::SetUp();
        sets_ = LoadVendorConditions(VendorConditionPath(Home()), catalogue_);
        ASSERT_GE(sets_.size(), 12u);
    }

    SavedSets sets_;
};

TEST_F(ReadyMadeSets, AreWellFormed) {
    std::set<std::string> names;
    for (const auto& set : sets_) {
        SCOPED_TRACE(ToUtf8(set->Name));
        EXPECT_TRUE(names.insert(set->Name).second);
        EXPECT_LE(set->Name.size(), 80u);
        EXPECT_EQ(static_cast<int>(set->m_Conditions.size()), set->Count) << "an unknown indicator";
        const auto expression = engine::Expression::Parse(set->Exp);
        ASSERT_TRUE(expression) << set->Exp;
        std::string letters;
        for (const auto& condition : set->m_Conditions) {
            letters += condition->m_chLetter;
            EXPECT_TRUE(condition->m_bChecked);
            EXPECT_TRUE(condition->BuildDescription());
            for (const CIndexField* field : ActiveFields(*condition))
                EXPECT_FALSE(field->GetValueCode().empty()) << field->m_nId;
        }
        EXPECT_EQ(expression->Letters(), letters);
    }
}

// On the market of a first start each set finds something, and is choosy.
TEST_F(ReadyMadeSets, FindSomeStocksOnTheGeneratedMarket) {
    MarketDay day(market::GenerateMarket());
    for (const auto& set : sets_) {
        std::map<char, Verdict> verdicts;
        for (const auto& condition : set->m_Conditions) {
            DecodedBlock block = *DecodeConditionBlock(BuildConditionBlock(*condition));
            verdicts[condition->m_chLetter] = FindIndicator(block.key)->evaluate(day, block);
        }
        const std::size_t found = engine::Expression::Parse(set->Exp)->Evaluate(verdicts).truth.Count();
        EXPECT_GT(found, 0u) << ToUtf8(set->Name);
        EXPECT_LT(found, day.Instruments() / 4) << ToUtf8(set->Name);
    }
}

}  // namespace

}  // namespace jogeon::indicators
