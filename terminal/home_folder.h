// The home folder: the data files that the screen reads, the user's own files, and the configuration that
// tells the screen where they are.
#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>

namespace jogeon::terminal {

// What can't be prepared, in one line for the user.
class HomeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct HomeFolder {
    QString path;           // the home
    QString configuration;  // the folder of Norvik.ini, which names the home
    QStringList kept;       // data files of a chosen home that differ from the shipped ones
};

// Lays the shipped data files down in `chosen`, or in the user's own data folder if that is empty, and writes
// the configuration. In the user's own folder a shipped file that differs is replaced, as after an upgrade;
// in a chosen one it is left as it is and named in `kept`. Files in "User" are never touched. Throws
// HomeError.
HomeFolder PrepareHome(const QString& chosen);

}  // namespace jogeon::terminal
