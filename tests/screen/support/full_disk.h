// Makes writing fail as on a full disk while it lives.
#pragma once

#include <csignal>

#include <sys/resource.h>

namespace jogeon::test {

class FullDisk {
public:
    // No file of this process may become longer than `bytes`.
    explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*signal_)(int);
    rlimit before_{};
};

}  // namespace jogeon::test
