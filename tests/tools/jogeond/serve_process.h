// jogeond serve as a process of its own, which a test may end in any way.
#pragma once

#include <csignal>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace jogeon::test {

class ServeProcess {
public:
    // Starts it with the words behind "serve"; its standard error goes to `errors`. Returns when it listens,
    // throws when it ends before.
    ServeProcess(std::vector<std::string> words, const std::string& errors) {
        words.insert(words.begin(), {JOGEOND, "serve"});
        int pipe[2];
        if (pipe2(pipe, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(),
                                         O_WRONLY | O_CREAT | O_TRUNC, 0600);
        std::vector<char*> argv;
        for (std::string& word : words) argv.push_back(word.data());
        argv.push_back(nullptr);
        const int failed = posix_spawn(&id_, JOGEOND, &actions, nullptr, argv.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        close(pipe[1]);
        if (!failed) ReadAddress(pipe[0]);
        close(pipe[0]);
        if (!failed && address_.empty()) End(SIGKILL);
        if (address_.empty()) throw std::runtime_error("jogeond serve doesn't start");
    }

    ~ServeProcess() {
        if (!ended_) End(SIGKILL);
    }

    ServeProcess(const ServeProcess&) = delete;
    ServeProcess& operator=(const ServeProcess&) = delete;

    const std::string& Address() const { return address_; }

    // Its exit status; -1 when it ended by the signal.
    int End(int signal) {
        kill(id_, signal);
        int status = 0;
        waitpid(id_, &status, 0);
        ended_ = true;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    // The line that tells it, or as much of it as came before the process ended.
    void ReadAddress(int from) {
        const std::string before = "listening on ";
        std::string line;
        for (char c = 0; read(from, &c, 1) == 1 && c != '\n';) line += c;
        if (line.starts_with(before)) address_ = line.substr(before.size());
    }

    pid_t id_ = 0;
    bool ended_ = false;
    std::string address_;
};

}  // namespace jogeon::test
