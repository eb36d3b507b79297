// The terminal's command line.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace jogeon::terminal {

struct Options {
    QString user;         // 1 to 8 of A-Z, a-z, 0-9 and _
    QString home;         // empty: the user's own data folder
    QString market;       // a market file; empty: the generated market
    QString store;        // the file of the users' condition sets; empty: in the home folder
    QString server;       // the address of a service to use; empty: one in this process
    QString openSet;      // a condition set to open at the start
    QString demonstrate;  // where to write the picture; empty: an ordinary start
    bool trace = false;
    QString lang;   // "ko" or "en"; empty: the user's choice
    QString theme;  // "auto", "light" or "dark" for this run; empty: the user's choice
};

// Reads the arguments, the program's name first. With nothing to start (help, version, a wrong option) it
// prints what there is to say and gives none; `*status` is then the exit status.
std::optional<Options> ReadOptions(const QStringList& arguments, int* status);

}  // namespace jogeon::terminal
