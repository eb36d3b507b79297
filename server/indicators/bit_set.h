// One bit for each instrument, in words of 64: the form in which conditions are combined.
//
// Relies on nothing but the standard library. Sets that are combined have the same size; bits beyond the
// size are always clear, so that counting and comparing need no mask.
#pragma once

#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace jogeon::indicators {

class BitSet {
public:
    explicit BitSet(std::size_t size = 0, bool filled = false)
        : size_(size), words_((size + 63) / 64, filled ? ~std::uint64_t{0} : 0) {
        ClearTail();
    }

    std::size_t Size() const { return size_; }

    bool Get(std::size_t index) const {
        assert(index < size_);
        return (words_[index / 64] >> (index % 64)) & 1;
    }

    void Set(std::size_t index, bool value = true) {
        assert(index < size_);
        const std::uint64_t bit = std::uint64_t{1} << (index % 64);
        words_[index / 64] = value ? words_[index / 64] | bit : words_[index / 64] & ~bit;
    }

    std::size_t Count() const {
        std::size_t count = 0;
        for (std::uint64_t word : words_) count += static_cast<std::size_t>(std::popcount(word));
        return count;
    }

    BitSet& operator&=(const BitSet& other) {
        assert(size_ == other.size_);
        for (std::size_t i = 0; i < words_.size(); ++i) words_[i] &= other.words_[i];
        return *this;
    }

    BitSet& operator|=(const BitSet& other) {
        assert(size_ == other.size_);
        for (std::size_t i = 0; i < words_.size(); ++i) words_[i] |= other.words_[i];
        return *this;
    }

    // Every bit of the set turned over.
    BitSet operator~() const {
        BitSet flipped(*this);
        for (std::uint64_t& word : flipped.words_) word = ~word;
        flipped.ClearTail();
        return flipped;
    }

    friend BitSet operator&(BitSet left, const BitSet& right) { return left &= right; }
    friend BitSet operator|(BitSet left, const BitSet& right) { return left |= right; }
    friend bool operator==(const BitSet&, const BitSet&) = default;

    // Calls visit(index) for every set bit, in ascending order.
    template <typename Visit>
    void ForEach(Visit visit) const {
        for (std::size_t i = 0; i < words_.size(); ++i)
            for (std::uint64_t word = words_[i]; word; word &= word - 1)
                visit(i * 64 + static_cast<std::size_t>(std::countr_zero(word)));
    }

private:
    void ClearTail() {
        if (size_ % 64) words_.back() &= (std::uint64_t{1} << (size_ % 64)) - 1;
    }

    std::size_t size_;
    std::vector<std::uint64_t> words_;
};

}  // namespace jogeon::indicators
