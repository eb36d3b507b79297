// The parameter panels: every field on the panel, none on top of another, no text cut.

#include <algorithm>

#include "screen/condition/token_list.h"
#include "screen/text/cp949.h"
#include "tests/server/indicators/catalogue_files.h"

namespace jogeon::indicators {

namespace {

// What the panel offers beside its buttons, in pixels.
constexpr PanelRect kPanel{0, 0, 478, 92};

// The nine-point Korean font: a syllable, and anything else, at their widest.
constexpr int kSyllable = 12;
constexpr int kNarrow = 7;
constexpr int kRadioMark = 18;
constexpr int kListArrow = 24;
constexpr int kRadioHeight = 15;

int WidthOf(std::string_view cp949) {
    int width = 0;
    for (std::size_t i = 0; i < cp949.size(); ++i) {
        const bool wide = static_cast<unsigned char>(cp949[i]) >= 0x80;
        width += wide ? kSyllable : kNarrow;
        i += wide;
    }
    return width;
}

// How much room a field's text needs in width.
int NeededWidth(const CIndexField& field) {
    if (field.m_nType == kFieldLabel) return WidthOf(field.m_strValue);
    int width = 0;
    const CTokenList options(field.m_strItems, '|');
    for (const std::string& option : options.Tokens()) width = std::max(width, WidthOf(option));
    return width ? width + (field.m_nType == kFieldList ? kListArrow : kRadioMark) : 0;
}

using CatalogueLayout = CatalogueFiles;

TEST_F(CatalogueLayout, LayFieldsOutWhereTheirTextsFit) {
    for (const CIndexInfo* leaf : leaves_) {
        SCOPED_TRACE(leaf->m_strKey);
        const auto condition = Fresh(*leaf);
        const FieldArray& fields = *condition->m_pFields;
        for (std::size_t i = 1; i < fields.size(); ++i) {
            const CIndexField& field = *fields[i];
            const PanelRect& place = field.m_rcInit;
            EXPECT_TRUE(place.left >= kPanel.left && place.right <= kPanel.right && place.top > kPanel.top &&
                        place.bottom <= kPanel.bottom)
                << field.m_nId;
            if (field.m_nType != kFieldPicture) {
                EXPECT_GE(place.right - place.left, NeededWidth(field))
                    << field.m_nId << ToUtf8(field.m_strValue);
            }
            if (field.m_nType == kFieldRadios) {
                EXPECT_GE(place.bottom - place.top,
                          kRadioHeight * CTokenList(field.m_strItems, '|').GetCount());
            }
            for (std::size_t k = i + 1; k < fields.size(); ++k) {
                const PanelRect& other = fields[k]->m_rcInit;
                EXPECT_TRUE(place.right <= other.left || other.right <= place.left ||
                            place.bottom <= other.top || other.bottom <= place.top)
                    << field.m_nId << " covers " << fields[k]->m_nId;
            }
        }
    }
}

}  // namespace

}  // namespace jogeon::indicators
