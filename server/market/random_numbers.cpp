#include "server/market/random_numbers.h"

#include <bit>

namespace jogeon::market {
namespace {

std::uint64_t SplitMix(std::uint64_t& state) {
    std::uint64_t z = (state += 0x9E3779B97F4A7C15u);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
}

}  // namespace

RandomNumbers::RandomNumbers(std::uint64_t seed, std::uint64_t stream) : state_{} {
    std::uint64_t start = SplitMix(seed) ^ (stream * 0xD1342543DE82EF95u);
    for (std::uint64_t& word : state_) word = SplitMix(start);
}

std::uint64_t RandomNumbers::Next() {
    const std::uint64_t result = std::rotl(state_[0] + state_[3], 23) + state_[0];
    const std::uint64_t shifted = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = std::rotl(state_[3], 45);
    return result;
}

double RandomNumbers::Normal() {
    constexpr int kWords = 3;  // of four 16-bit numbers each
    constexpr double kMean = 12 * 32767.5;
    std::uint64_t sum = 0;
    for (int i = 0; i < kWords; ++i) {
        const std::uint64_t word = Next();
        sum += (word & 0xFFFF) + (word >> 16 & 0xFFFF) + (word >> 32 & 0xFFFF) + (word >> 48);
    }
    return (static_cast<double>(sum) - kMean) / 65536;
}

double RoughExp(double x) {
    constexpr int kSquarings = 14;
    double value = 1 + x / (1 << kSquarings);
    for (int i = 0; i < kSquarings; ++i) value *= value;
    return value;
}

}  // namespace jogeon::market
