// Runs the program itself, as a user does.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace jogeon::test {

struct Outcome {
    int code = -1;  // exit status, -1 if it ended by a signal
    std::string out;
    std::string err;
};

inline std::string ReadAll(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

// Runs jogeond with the words behind its name, through the shell.
inline Outcome RunJogeond(const std::string& words) {
    const std::string base =
        (std::filesystem::temp_directory_path() / ("jogeond-run-" + std::to_string(getpid()))).string();
    const std::string command = std::string(JOGEOND) + " " + words + " >" + base + ".out 2>" + base + ".err";
    const int status = std::system(command.c_str());
    Outcome outcome{WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(base + ".out"),
                    ReadAll(base + ".err")};
    std::filesystem::remove(base + ".out");
    std::filesystem::remove(base + ".err");
    return outcome;
}

}  // namespace jogeon::test
