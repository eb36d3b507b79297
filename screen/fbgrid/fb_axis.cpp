#include "screen/fbgrid/fb_axis.h"

#include <algorithm>
#include <bit>

// sums_ is counted from 1 as such trees are: the node at `n` holds the sum of the LowBit(n) sizes that end
// with the n-th.
namespace {

std::size_t LowBit(std::size_t n) {
    return n & (~n + 1);
}

}  // namespace

void FBAxis::Resize(int count, int newSize) {
    const auto wanted = static_cast<std::size_t>(std::max(count, 0));
    const std::size_t kept = std::min(wanted, sizes_.size());
    sizes_.resize(wanted, std::max(newSize, 0));
    sums_.resize(wanted + 1);
    // A node needs only those before it, so the kept ones stay and each new one is put together from them.
    for (std::size_t n = kept + 1; n <= wanted; ++n) {
        sums_[n] = sizes_[n - 1];
        for (std::size_t part = n - 1; part > n - LowBit(n); part -= LowBit(part)) sums_[n] += sums_[part];
    }
    total_ = Offset(Count());
}

int FBAxis::Size(int index) const {
    return index >= 0 && index < Count() ? sizes_[static_cast<std::size_t>(index)] : 0;
}

void FBAxis::SetSize(int index, int size) {
    if (index < 0 || index >= Count()) return;
    int& stored = sizes_[static_cast<std::size_t>(index)];
    const std::int64_t change = std::int64_t{std::max(size, 0)} - stored;
    stored = std::max(size, 0);
    for (std::size_t n = static_cast<std::size_t>(index) + 1; n < sums_.size(); n += LowBit(n))
        sums_[n] += change;
    total_ += change;
}

std::int64_t FBAxis::Offset(int index) const {
    std::int64_t sum = 0;
    for (auto n = static_cast<std::size_t>(std::clamp(index, 0, Count())); n > 0; n -= LowBit(n))
        sum += sums_[n];
    return sum;
}

int FBAxis::IndexAt(std::int64_t position) const {
    if (position < 0) return 0;
    std::size_t before = 0;  // this many sizes end at or before the position
    for (std::size_t step = std::bit_floor(sizes_.size()); step > 0; step /= 2) {
        const std::size_t next = before + step;
        if (next > sizes_.size() || sums_[next] > position) continue;
        before = next;
        position -= sums_[next];
    }
    return static_cast<int>(before);
}
