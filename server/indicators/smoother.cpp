#include "server/indicators/smoother.h"

namespace jogeon::indicators {

Smoother::Smoother(std::size_t instruments, int n, double alpha)
    : period_(n), alpha_(alpha), count_(instruments), level_(instruments, kMissing) {}

void Smoother::Add(std::span<const double> row) {
    // Every row adds weight * (value - anchor) to a base: in a run's first n values that sums them up, later
    // it is the recursion. Operands are chosen, never results, the counts go first, and no store can change
    // the local copies: then compilers work on several instruments at once, which a branch would prevent.
    const double period = period_;
    const double alpha = alpha_;
    double* const counts = count_.data();
    double* const levels = level_.data();
    for (std::size_t i = 0; i < row.size(); ++i) {
        const double known = row[i] == row[i] ? 1 : 0;
        counts[i] = known * (counts[i] + 1);
    }
    for (std::size_t i = 0; i < row.size(); ++i) {
        const double base = counts[i] > 1 ? levels[i] : 0;
        const double anchor = counts[i] > period ? levels[i] : 0;
        const double weight = counts[i] > period ? alpha : 1;
        const double divisor = counts[i] == period ? period : 1;
        levels[i] = (base + weight * (row[i] - anchor)) / divisor;
    }
}

Column Smoother::Averages() const {
    Column averages(level_);
    for (std::size_t i = 0; i < averages.size(); ++i)
        averages[i] = count_[i] < period_ ? kMissing : averages[i];
    return averages;
}

}  // namespace jogeon::indicators
