#include "server/market/generated_names.h"

#include <iterator>
#include <string_view>

namespace jogeon::market {
namespace {

// Chosen so that no pair is a word or a well-known name.
constexpr std::string_view kFirst[] = {"휘", "벼", "늘", "윤", "결", "담", "묘", "엽", "찬", "혜", "겸",
                                       "율", "빈", "섬", "능", "욱", "령", "봉", "탐", "균", "뫼", "란"};
constexpr std::string_view kSecond[] = {"겸", "늬", "뫼", "벗", "솔", "랑", "찬", "령", "욱", "담",
                                        "엽", "빈", "율", "섬", "결", "모", "탄", "휘", "균", "별"};

std::string Stem(RandomNumbers& random) {
    std::string stem(kFirst[random.Below(std::size(kFirst))]);
    std::string_view second = kSecond[random.Below(std::size(kSecond))];
    while (second == stem) second = kSecond[random.Below(std::size(kSecond))];
    return stem.append(second);
}

}  // namespace

std::string CompanyNames::Next(const Sector& sector, RandomNumbers& random) {
    while (true) {
        std::string name = Stem(random);
        name +=
            sector.suffixes[static_cast<std::size_t>(random.Below(static_cast<int>(sector.suffixes.size())))];
        if (given_.insert(name).second) return name;
    }
}

std::string CompanyNames::NextSpac(RandomNumbers& random) {
    while (true) {
        std::string name = Stem(random);
        name += "제" + std::to_string(1 + random.Below(12)) + "호스팩";
        if (given_.insert(name).second) return name;
    }
}

}  // namespace jogeon::market
