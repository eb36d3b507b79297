// What the screen asks in a run that no user watches.
#pragma once

#include "screen/host/services.h"

namespace jogeon::terminal {

// For a run without a user: prints what it is asked and takes the answer that changes least.
class PrintedQuestions : public host::Questions {
public:
    host::Answer Ask(const host::Box& box) override;
    bool Run(const std::string& dialog, void* object) override;
    std::optional<std::filesystem::path> AskSavePath(const host::FileQuestion& question) override;
};

}  // namespace jogeon::terminal
