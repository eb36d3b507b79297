// What goes wrong between this terminal and its server, and that it goes well again, told to the trader.
//
// Every trouble is a line on standard error, and a signal with a sentence for the window. All may be told on
// any thread; the signals reach a window on the window's own.
#pragma once

#include <QObject>
#include <QString>

#include "server/remote/remote_service.h"

namespace jogeon::terminal {

class RemoteTroubles : public QObject {
    Q_OBJECT

public:
    void Tell(const remote::Trouble& trouble);
    void TellLoss() { emit Lost(); }
    void TellRecovery() { emit Recovered(); }

signals:
    void Told(const QString& sentence);
    void Lost();       // the server can't be reached or understood
    void Recovered();  // it answers again
};

}  // namespace jogeon::terminal
