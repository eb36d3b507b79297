#include "server/engine/sectors.h"

#include <algorithm>
#include <array>

namespace jogeon::engine {
namespace {

using Keywords = std::array<std::string_view, 13>;  // unused places are empty

struct Entry {
    std::string_view name;
    Keywords keywords;
};

// The order decides where two entries fit: a dealer in medicines is a dealer, a maker of chemical fibres
// makes textiles.
constexpr Entry kEntries[] = {
    {"유통", {"도매", "소매", "판매업", "중개업", "유통"}},
    {"음식료·담배",
     {"식품", "음식료", "음료", "담배", "낙농", "곡물", "도축", "수산물", "사료", "과자", "떡", "채소"}},
    {"섬유·의류", {"섬유", "의복", "의류", "방적", "직물", "원단", "가죽", "신발"}},
    {"종이·목재", {"종이", "펄프", "목재", "나무", "가구"}},
    {"제약", {"의약", "제약"}},
    {"화학", {"화학", "플라스틱", "고무", "석유", "비료", "살충제"}},
    {"비금속", {"비금속", "요업", "유리", "시멘트"}},
    {"금속", {"철강", "비철", "금속"}},
    {"의료·정밀기기", {"의료", "측정", "광학기기", "정밀"}},
    {"운송장비·부품", {"자동차", "선박", "조선", "항공기", "운송장비 제조", "운수장비", "철도장비"}},
    {"기계·장비", {"기계", "무기"}},
    {"전기·전자",
     {"반도체", "전자", "전지", "전동기", "전기장비", "조명", "케이블", "음향기기", "컴퓨터 및",
      "가정용 기기", "통신 및 방송 장비", "디스플레이", "매체"}},
    {"전기·가스", {"전기업", "전기가스", "가스", "증기"}},
    {"건설", {"건설", "공사업"}},
    {"운송·창고", {"운송", "운수", "여객", "화물", "창고"}},
    {"통신", {"통신업", "통신서비스"}},
    {"은행", {"은행"}},
    {"증권", {"증권", "금융 지원"}},
    {"보험", {"보험"}},
    {"금융", {"금융", "신탁", "투자업"}},
    {"부동산", {"부동산"}},
    {"오락·문화",
     {"오락", "문화", "영화", "방송", "오디오", "출판업", "인쇄물", "게임", "예술", "스포츠", "엔터",
      "미디어"}},
    {"IT 서비스", {"소프트웨어", "프로그래밍", "정보", "자료처리", "인터넷"}},
    {"일반서비스",
     {"서비스", "연구개발", "컨설팅", "광고", "교육", "임대업", "학원", "음식점", "디자인", "조사업",
      "폐기물"}},
    {"기타", {}},
};

constexpr std::size_t kCount = std::size(kEntries);

std::span<const std::string_view> Used(const Keywords& keywords) {
    const auto end = std::find(keywords.begin(), keywords.end(), std::string_view());
    return {keywords.data(), static_cast<std::size_t>(end - keywords.begin())};
}

bool Tells(const Sector& sector, std::string_view industry) {
    return std::any_of(sector.keywords.begin(), sector.keywords.end(), [industry](std::string_view keyword) {
        return industry.find(keyword) != std::string_view::npos;
    });
}

}  // namespace

std::span<const Sector> AllSectors() {
    static const std::array<Sector, kCount> sectors = [] {
        std::array<Sector, kCount> all;
        for (std::size_t i = 0; i < kCount; ++i) all[i] = {kEntries[i].name, Used(kEntries[i].keywords)};
        return all;
    }();
    return sectors;
}

int SectorOf(std::string_view industry) {
    const std::span<const Sector> sectors = AllSectors();
    const auto named = std::find_if(sectors.begin(), sectors.end(),
                                    [industry](const Sector& sector) { return sector.name == industry; });
    if (named != sectors.end()) return static_cast<int>(named - sectors.begin());
    const auto told = std::find_if(sectors.begin(), sectors.end() - 1,
                                   [industry](const Sector& sector) { return Tells(sector, industry); });
    return static_cast<int>(told - sectors.begin());
}

}  // namespace jogeon::engine
