// Message boxes and dialogs of the screen, shown to the user.
#pragma once

#include <QWidget>

#include "screen/host/services.h"

namespace jogeon::terminal {

// Shows each box over the main window and waits for the answer.
class MessageBoxes : public host::Questions {
public:
    explicit MessageBoxes(QWidget& mainWindow) : mainWindow_(mainWindow) {}

    host::Answer Ask(const host::Box& box) override;
    bool Run(const std::string& dialog, void* object) override;

private:
    QWidget& mainWindow_;
};

// For a run without a user: prints what it is asked and takes the answer that changes least.
class PrintedQuestions : public host::Questions {
public:
    host::Answer Ask(const host::Box& box) override;
    bool Run(const std::string& dialog, void* object) override;
};

}  // namespace jogeon::terminal
