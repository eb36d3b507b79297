// Message boxes and dialogs shown to the user by Qt: what a host with a display installs as its Questions.
#pragma once

#include <QCoreApplication>

#include "screen/host/export.h"
#include "screen/host/services.h"

class QWidget;

namespace jogeon::host {

// Shows each box over a window, which outlives this object, and waits for the answer.
class JOGEON_HOST_API MessageBoxes : public Questions {
    Q_DECLARE_TR_FUNCTIONS(jogeon::host::MessageBoxes)  // its buttons speak the host's language

public:
    explicit MessageBoxes(QWidget& window) : window_(window) {}

    Answer Ask(const Box& box) override;
    bool Run(const std::string& dialog, void* object) override;
    std::optional<std::filesystem::path> AskSavePath(const FileQuestion& question) override;

private:
    QWidget& window_;
};

}  // namespace jogeon::host
