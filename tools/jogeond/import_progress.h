// How an import shows on standard error: each rejected line, and how far it is. On a terminal that is one
// line that changes; elsewhere a line for every tenth of the way.
#pragma once

#include <chrono>

#include "server/market/import.h"

namespace jogeon {

class ImportProgressLine : public market::ImportListener {
public:
    ImportProgressLine();

    void OnReject(const market::ImportReject& reject) override;
    void OnProgress(const market::ImportProgress& progress) override;

    // Shows another step of the way that has no measure.
    void Say(const char* step);

    // Takes the changing line away, so that other output can follow.
    void Clear();

private:
    bool terminal_;
    bool shown_ = false;
    int lastTenth_ = 0;
    std::chrono::steady_clock::time_point nextTime_;
};

}  // namespace jogeon
