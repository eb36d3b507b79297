// The catalogue as built, in CP949, for the tests that hold it against the code.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "screen/condition/catalogue.h"
#include "server/indicators/indicator.h"

namespace jogeon::indicators {

// The built home folder: JOGEON_HOME_DATA.
std::filesystem::path Home();

// The indicator of a tree key; null if there is none.
const Indicator* IndicatorOf(const CIndexInfo& leaf);

// The fields that count in the variant that is selected.
std::vector<CIndexField*> ActiveFields(const CIndexInfo& condition);

class CatalogueFiles : public testing::Test {
protected:
    void SetUp() override;

    // A condition with lists and radio buttons at their defaults, as the panel shows it, and a variant.
    std::unique_ptr<CIndexInfo> Fresh(const CIndexInfo& leaf, int variant = 0) const;

    Catalogue catalogue_;
    std::vector<const CIndexInfo*> leaves_;
};

}  // namespace jogeon::indicators
