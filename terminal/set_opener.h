// Opens the condition set that the terminal was started with. A set of the firm's is there at once, one of
// the user's own when the service has told them.
#pragma once

#include <QTimer>

#include "terminal/terminal.h"

namespace jogeon::terminal {

// Waits until `terminal`'s first questions are answered, with its events going on.
class SetOpener : public QObject {
public:
    // Prints one line on standard error if there is no such set. `terminal` outlives it.
    SetOpener(Terminal& terminal, const QString& set);

private:
    void Try();

    Terminal& terminal_;
    const QString set_;
    QTimer timer_;
};

}  // namespace jogeon::terminal
