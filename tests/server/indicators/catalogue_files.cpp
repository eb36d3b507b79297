#include "tests/server/indicators/catalogue_files.h"

#include <cstdlib>

#include "screen/text/bytes.h"

namespace jogeon::indicators {

std::filesystem::path Home() {
    const char* home = std::getenv("JOGEON_HOME_DATA");
    return home ? home : "";
}

const Indicator* IndicatorOf(const CIndexInfo& leaf) {
    return FindIndicator(std::string_view(leaf.m_strKey).substr(0, 6));
}

void CatalogueFiles::SetUp() {
    ASSERT_TRUE(std::filesystem::exists(Home() / "System" / "S4TreeList.dat"))
        << "JOGEON_HOME_DATA must name the built home folder";
    catalogue_.Load(Home() / "System", {});
    for (const auto& index : catalogue_.Indexes())
        if (index->m_bLeaf) leaves_.push_back(index.get());
    ASSERT_FALSE(leaves_.empty());
}

std::unique_ptr<CIndexInfo> CatalogueFiles::Fresh(const CIndexInfo& leaf, int variant) const {
    auto condition = catalogue_.MakeCondition(leaf.m_strKey);
    for (const auto& field : *condition->m_pFields) {
        const bool options = field->m_nType == kFieldList || field->m_nType == kFieldRadios;
        if (options) field->m_nSelected = Atoi(field->m_strValue);
        if (field->m_nRole == kRoleSelector) field->m_nSelected = variant;
    }
    condition->m_bChecked = 1;
    return condition;
}

std::vector<CIndexField*> ActiveFields(const CIndexInfo& condition) {
    const CIndexField* selector = FindFieldByRole(*condition.m_pFields, kRoleSelector, 1);
    std::vector<CIndexField*> fields;
    for (const auto& field : *condition.m_pFields)
        if (field->m_bStored && field.get() != selector &&
            (!selector || ActiveFieldIds(*selector).contains(field->m_nId)))
            fields.push_back(field.get());
    return fields;
}

}  // namespace jogeon::indicators
