#include "server/indicators/smoother.h"

namespace jogeon::indicators {

Smoother::Smoother(std::size_t instruments, int n, double alpha)
    : period_(n), alpha_(alpha), count_(instruments), sum_(instruments), average_(instruments, kMissing) {}

const Column& Smoother::Add(std::span<const double> row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        // Selections instead of branches, so that the loop works on several instruments at once.
        const double value = row[i];
        const bool known = value == value;
        const double count = known ? count_[i] + 1 : 0;
        const double sum = count <= 1 ? value : sum_[i] + value;
        const double grown = average_[i] + alpha_ * (value - average_[i]);
        const double started = count == period_ ? sum / period_ : grown;
        average_[i] = count < period_ ? kMissing : started;
        sum_[i] = sum;
        count_[i] = count;
    }
    return average_;
}

}  // namespace jogeon::indicators
