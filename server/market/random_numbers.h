// Random numbers that are the same on every machine.
//
// xoshiro256++ by Blackman and Vigna, seeded with splitmix64; both are in the public domain. All that is
// computed from it uses integers, the four operations and square roots, which have one right result. An
// expression takes one number at most: compilers evaluate two calls in the order they like.
#pragma once

#include <array>
#include <cstdint>

// A fused multiply-add rounds once where a product and a sum round twice. GCC fuses nothing in ISO mode.
#ifdef __clang__
#pragma clang fp contract(off)
#endif

namespace jogeon::market {

class RandomNumbers {
public:
    // Each stream of a seed is a sequence of its own.
    RandomNumbers(std::uint64_t seed, std::uint64_t stream);

    std::uint64_t Next();

    // At least 0 and less than 1.
    double Uniform() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }
    double Between(double low, double high) { return low + (high - low) * Uniform(); }

    // 0 to count - 1. `count` is at least 1 and small, so that no number is favoured to speak of.
    int Below(int count) { return static_cast<int>(Uniform() * count); }

    bool Chance(double probability) { return Uniform() < probability; }

    // Mean 0, deviation 1, bell-shaped: the sum of twelve uniform numbers. Never beyond 6.
    double Normal();

private:
    std::array<std::uint64_t, 4> state_;
};

// e to the power of x for x from -20 to 20, to about one percent: what a spread of sizes needs.
double RoughExp(double x);

}  // namespace jogeon::market
