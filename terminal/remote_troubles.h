// What goes wrong between this terminal and its server, told to the trader.
//
// Every trouble is a line on standard error, and a signal with a sentence for the window. It may be told on
// any thread; the signal reaches a window on the window's own.
#pragma once

#include <QObject>
#include <QString>

#include "server/remote/remote_service.h"

namespace jogeon::terminal {

class RemoteTroubles : public QObject {
    Q_OBJECT

public:
    void Tell(const remote::Trouble& trouble);

signals:
    void Told(const QString& sentence);
};

}  // namespace jogeon::terminal
