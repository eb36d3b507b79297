// Works the screen as a user's hand would: it finds controls by their number and clicks them.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

namespace jogeon::terminal {

class ScreenDriver {
public:
    explicit ScreenDriver(QWidget& window) : window_(window) {}

    // Double-clicks the condition set with this name in the left pane. False if there is none.
    bool OpenSet(const QString& name);

    // The names of the sets in the left pane, from the top.
    QStringList SetNames() const;

    void Search() { Click(21039); }

    // The first rows of the result grid as it shows them, the header first; hidden columns are left out.
    QList<QStringList> Rows(int count) const;

private:
    void Click(int control);

    QWidget& window_;
};

}  // namespace jogeon::terminal
