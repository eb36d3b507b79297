// Runs the program itself, as a user does.
#pragma once

#include <cstdlib>
#include <string>

#include <sys/wait.h>

#include "tests/screen/support/condition_files.h"

namespace jogeon::test {

struct Outcome {
    int code = -1;  // exit status, -1 if it ended by a signal
    std::string out;
    std::string err;
};

// Runs jogeond with the words behind its name, through the shell.
inline Outcome RunJogeond(const std::string& words) {
    const TempFolder folder;
    const std::string out = (folder.Path() / "out").string(), err = (folder.Path() / "err").string();
    const int status = std::system((JOGEOND " " + words + " >" + out + " 2>" + err).c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadBytes(out), ReadBytes(err)};
}

}  // namespace jogeon::test
