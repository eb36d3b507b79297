// The catalogue's files against the indicators that evaluate them: as built, in CP949.

#include <algorithm>
#include <cstdio>
#include <set>

#include "screen/condition/token_list.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/condition_block.h"
#include "tests/server/indicators/bars_of_tests.h"
#include "tests/server/indicators/catalogue_files.h"

namespace jogeon::indicators {

namespace {

// The block that the screen would send: through the stored text, which fills the values.
DecodedBlock BlockOf(CIndexInfo& condition) {
    condition.SetValueText(condition.GetValueText());
    return *DecodeConditionBlock(BuildConditionBlock(condition));
}

TEST_F(CatalogueFiles, NameEveryIndicatorAndNoOther) {
    std::set<std::string> keys;
    std::set<int> numbers;
    for (const CIndexInfo* leaf : leaves_) {
        SCOPED_TRACE(leaf->m_strKey + " " + ToUtf8(leaf->m_strName));
        const Indicator* indicator = IndicatorOf(*leaf);
        ASSERT_TRUE(indicator);
        EXPECT_TRUE(keys.insert(leaf->m_strKey.substr(0, 6)).second);
        EXPECT_EQ(leaf->m_strKey.substr(6), leaf->m_strKey == "0401030009" ? "0009" : "0008");
        EXPECT_EQ(condition_block::FamilyLetter(leaf->m_strKey), indicator->family);
        EXPECT_EQ(leaf->m_nIndexNo, indicator->number);
        for (int variant = 0; variant < indicator->variants; ++variant)
            EXPECT_TRUE(numbers.insert(indicator->number + variant).second);
        EXPECT_LE(indicator->number + indicator->variants - 1, 999);
        ASSERT_TRUE(catalogue_.FindFieldsByKey(leaf->m_strKey));
    }
    for (const Indicator& indicator : AllIndicators())
        EXPECT_TRUE(keys.contains(std::string(indicator.key))) << indicator.key;
}

// Group nodes have no data, and every indicator stands in a group under one of five roots.
TEST_F(CatalogueFiles, MakeATreeOfThreeLevels) {
    ASSERT_EQ(catalogue_.Roots().size(), 5u);
    std::size_t indicators = 0;
    for (const CatalogueNode* root : catalogue_.Roots())
        for (const CatalogueNode* group : root->children) {
            EXPECT_FALSE(group->data) << ToUtf8(group->text);
            EXPECT_FALSE(group->children.empty()) << ToUtf8(group->text);
            for (const CatalogueNode* node : group->children) {
                ASSERT_TRUE(node->data) << ToUtf8(node->text);
                EXPECT_EQ(CategoryOfKey(node->data->m_strKey),
                          CategoryOfKey(root->children[0]->children[0]->data->m_strKey));
                ++indicators;
            }
        }
    EXPECT_EQ(indicators, leaves_.size());
}

// Each field of a variant is read: its evaluator can't do without it.
void CheckEachIsRead(CIndexInfo& condition, MarketDay& day) {
    const DecodedBlock whole = BlockOf(condition);
    const Indicator& indicator = *FindIndicator(whole.key);
    for (const CIndexField* field : ActiveFields(condition)) {
        DecodedBlock without = whole;
        without.roles.erase(field->m_nRole);
        EXPECT_THROW(indicator.evaluate(day, without), BadCondition) << "role " << field->m_nRole;
    }
}

TEST_F(CatalogueFiles, OfferTheRolesThatAreRead) {
    MarketDay day(MarketOf(Flat({1000, 1000})));
    for (const CIndexInfo* leaf : leaves_) {
        SCOPED_TRACE(leaf->m_strKey);
        const Indicator& indicator = *IndicatorOf(*leaf);
        std::set<int> offered, active;
        const auto condition = Fresh(*leaf);
        for (const auto& field : *condition->m_pFields) {
            EXPECT_EQ(field->m_bStored != 0, IsValueRole(field->m_nRole)) << field->m_nId;
            if (field->m_bStored) offered.insert(field->m_nRole);
        }
        EXPECT_EQ(offered, std::set<int>(indicator.roles.begin(), indicator.roles.end()));
        EXPECT_EQ(offered.contains(kRoleSelector), indicator.variants > 1);
        for (int variant = 0; variant < indicator.variants; ++variant) {
            const auto chosen = Fresh(*leaf, variant);
            for (const CIndexField* field : ActiveFields(*chosen)) active.insert(field->m_nRole);
            CheckEachIsRead(*chosen, day);
        }
        offered.erase(kRoleSelector);
        EXPECT_EQ(active, offered) << "a field that no variant uses";
    }
}

// A selector loses nothing only as radio buttons, or as a list whose codes are its indexes; and it has one
// sentence, one list of arguments and one of fields for each variant.
TEST_F(CatalogueFiles, HaveSelectorsThatFitTheirVariants) {
    for (const CIndexInfo* leaf : leaves_) {
        SCOPED_TRACE(leaf->m_strKey);
        const auto condition = Fresh(*leaf);
        const int variants = IndicatorOf(*leaf)->variants;
        EXPECT_EQ(std::ssize(condition->m_Formats), variants);
        EXPECT_EQ(std::ssize(condition->m_ArgLists), variants);
        const CIndexField* selector = FindFieldByRole(*condition->m_pFields, kRoleSelector);
        if (!selector) continue;
        EXPECT_EQ(CTokenList(selector->m_strItems, '|').GetCount(), variants);
        EXPECT_EQ(CTokenList(selector->m_strVariantFields, '|').GetCount(), variants);
        for (int i = 0; i < variants; ++i)
            EXPECT_EQ(CTokenList(selector->m_strCodes, '|').GetToken(i), std::to_string(i));
        EXPECT_NE(selector->m_nType, kFieldCheck);
    }
}

// Sets `field` to `code` in a fresh condition and checks that it arrives whole and can be evaluated.
void CheckTravels(CIndexInfo& condition, CIndexField& field, const std::string& code, MarketDay& day) {
    field.SetValue(code);
    const DecodedBlock block = BlockOf(condition);
    const auto arrived = block.roles.find(field.m_nRole);
    ASSERT_TRUE(arrived != block.roles.end()) << field.m_nId;
    EXPECT_EQ(arrived->second, code) << "role " << field.m_nRole << " is cut";
    const Indicator& indicator = *FindIndicator(block.key);
    try {
        indicator.evaluate(day, block);
    } catch (const BadCondition& refused) {
        // Bounds may contradict another field's default: a range or an order upside down, nothing else.
        const std::string why = refused.what();
        EXPECT_TRUE(why.find("범위의 하한이 상한보다") != why.npos || why.find("기간이") != why.npos) << why;
    }
}

TEST_F(CatalogueFiles, HaveCodesAndBoundsThatFitTheirSlots) {
    MarketDay day(MarketOf(Flat(std::vector<double>(40, 1000))));
    for (const CIndexInfo* leaf : leaves_) {
        for (int variant = 0; variant < IndicatorOf(*leaf)->variants; ++variant) {
            SCOPED_TRACE(leaf->m_strKey + " variant " + std::to_string(variant));
            const std::size_t count = ActiveFields(*Fresh(*leaf, variant)).size();
            for (std::size_t i = 0; i < count; ++i) {
                const auto values = [&](const CIndexField& field) {
                    if (field.m_nType == kFieldList) return CTokenList(field.m_strCodes, '|').Tokens();
                    EXPECT_TRUE(field.m_bRange) << field.m_nId << " has no bounds";
                    char low[32], high[32];
                    std::snprintf(low, sizeof low, "%.10g", field.m_dMin);
                    std::snprintf(high, sizeof high, "%.10g", field.m_dMax);
                    EXPECT_LE(field.m_dMin, Atof(field.m_strValue)) << field.m_nId;
                    EXPECT_GE(field.m_dMax, Atof(field.m_strValue)) << field.m_nId;
                    return std::vector<std::string>{low, high};
                };
                for (const std::string& value : values(*ActiveFields(*Fresh(*leaf, variant))[i])) {
                    const auto condition = Fresh(*leaf, variant);
                    CheckTravels(*condition, *ActiveFields(*condition)[i], value, day);
                }
            }
        }
    }
}

// The defaults are a condition that works as it stands, and its sentence has a place for each argument.
TEST_F(CatalogueFiles, DescribeAndEvaluateTheirDefaults) {
    MarketDay day(MarketOf(Flat(std::vector<double>(40, 1000))));
    for (const CIndexInfo* leaf : leaves_)
        for (int variant = 0; variant < IndicatorOf(*leaf)->variants; ++variant) {
            SCOPED_TRACE(leaf->m_strKey + " variant " + std::to_string(variant));
            const auto condition = Fresh(*leaf, variant);
            ASSERT_TRUE(condition->BuildDescription());
            const std::string sentence = ToUtf8(condition->GetDescription());
            EXPECT_EQ(sentence.find("%s"), sentence.npos) << sentence;
            std::size_t places = 0;
            const std::string& format = condition->m_Formats[static_cast<std::size_t>(variant)];
            for (std::size_t at = 0; (at = format.find("%s", at)) != format.npos; ++at) ++places;
            const CTokenList arguments(condition->m_ArgLists[static_cast<std::size_t>(variant)], '^');
            EXPECT_EQ(static_cast<int>(places), arguments.GetCount());
            std::set<std::string> told(arguments.Tokens().begin(), arguments.Tokens().end());
            for (const CIndexField* field : ActiveFields(*condition))
                EXPECT_TRUE(told.contains(std::to_string(field->m_nId))) << field->m_nId << " isn't told";
            for (const std::string& id : told) {
                const auto& fields = *condition->m_pFields;
                const auto named = std::find_if(fields.begin(), fields.end(),
                                                [&](const auto& field) { return field->m_nId == Atoi(id); });
                ASSERT_TRUE(named != fields.end()) << id;
                EXPECT_FALSE((*named)->GetDisplayText().empty()) << id;
            }
            EXPECT_NO_THROW(IndicatorOf(*leaf)->evaluate(day, BlockOf(*condition)));
        }
}

}  // namespace

}  // namespace jogeon::indicators
