#include "tools/jogeond/import_progress.h"

#include <algorithm>
#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace jogeon {
namespace {

constexpr std::chrono::milliseconds kBetweenUpdates(100);

bool StandardErrorIsTerminal() {
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

ImportProgressLine::ImportProgressLine() : terminal_(StandardErrorIsTerminal()) {}

void ImportProgressLine::OnReject(const market::ImportReject& reject) {
    Clear();
    std::fprintf(stderr, "%s:%ld: rejected: %s\n", reject.file.c_str(), reject.line, reject.reason.c_str());
}

void ImportProgressLine::OnProgress(const market::ImportProgress& progress) {
    if (progress.bytesInAll == 0) return;
    const double part = static_cast<double>(progress.bytesRead) / static_cast<double>(progress.bytesInAll);
    const int percent = static_cast<int>(std::min(part, 1.0) * 100);
    if (terminal_) {
        const auto now = std::chrono::steady_clock::now();
        if (now < nextTime_) return;
        nextTime_ = now + kBetweenUpdates;
        std::fprintf(stderr, "\rreading %3d %%, %zu bars", percent, progress.bars);
        std::fflush(stderr);
        shown_ = true;
    } else if (percent / 10 > lastTenth_) {
        lastTenth_ = percent / 10;
        std::fprintf(stderr, "reading %d %%, %zu bars\n", percent, progress.bars);
    }
}

void ImportProgressLine::Say(const char* step) {
    Clear();
    std::fprintf(stderr, "%s%s", step, terminal_ ? "" : "\n");
    shown_ = terminal_;
}

void ImportProgressLine::Clear() {
    if (!shown_) return;
    std::fputs("\r\033[K", stderr);
    shown_ = false;
}

}  // namespace jogeon
