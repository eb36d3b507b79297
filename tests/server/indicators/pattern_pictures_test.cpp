// The pictures of candle patterns show what they are named for, and each that the catalogue names is there.

#include <fstream>
#include <iterator>

#include "screen/text/cp949.h"
#include "tests/server/indicators/bars_of_tests.h"
#include "tests/server/indicators/catalogue_files.h"
#include "tools/patternpictures/pattern_candles.h"

namespace jogeon::indicators {

namespace {

std::shared_ptr<const market::Market> Drawn(const patterns::Pattern& pattern) {
    std::vector<Bar> bars;
    for (const auto& candle : pattern.candles)
        bars.push_back({candle.open, candle.high, candle.low, candle.close, 100});
    return MarketOf(bars);
}

// True on the last day for its own pattern, and for no variant of another one.
TEST(PatternPictures, ShowTheirPattern) {
    for (const auto& pattern : patterns::kPatterns) {
        for (const auto& other : patterns::kPatterns) {
            const std::string values = "10^" + std::to_string(other.variant) + "|20^D|30^0";
            const bool same = &pattern == &other;
            EXPECT_EQ(Signs(Evaluate(Drawn(pattern), other.key, values)) == "1", same)
                << pattern.file << " as " << other.file;
        }
        for (const auto& candle : pattern.candles) {
            EXPECT_GE(candle.high, std::max(candle.open, candle.close)) << pattern.file;
            EXPECT_LE(candle.low, std::min(candle.open, candle.close)) << pattern.file;
        }
    }
}

int NumberAt(const std::string& bytes, std::size_t offset) {
    int number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = number * 256 + static_cast<unsigned char>(bytes.at(offset + i));
    return number;
}

TEST_F(CatalogueFiles, NamePicturesThatAreThereAndFit) {
    std::size_t pictures = 0;
    for (const CIndexInfo* leaf : leaves_) {
        const auto condition = Fresh(*leaf);
        for (const auto& field : *condition->m_pFields) {
            if (field->m_nType != kFieldPicture) continue;
            ++pictures;
            std::ifstream file(Home() / "Image" / "Pattern" / field->m_strItems, std::ios::binary);
            const std::string bytes((std::istreambuf_iterator<char>(file)), {});
            ASSERT_GT(bytes.size(), 54u) << field->m_strItems;
            EXPECT_EQ(bytes.substr(0, 2), "BM");
            EXPECT_EQ(NumberAt(bytes, 18), field->m_rcInit.right - field->m_rcInit.left);
            EXPECT_EQ(NumberAt(bytes, 22), field->m_rcInit.bottom - field->m_rcInit.top);
        }
    }
    EXPECT_EQ(pictures, std::size(patterns::kPatterns));
}

}  // namespace

}  // namespace jogeon::indicators
