// The place of one own screen in the main window: a dock that stays when its screen is closed, so that the
// screen opens again where it was.
#pragma once

#include <QDockWidget>

#include "terminal/screens/own_screen.h"

namespace jogeon::terminal {

class ScreenDock : public QDockWidget {
    Q_OBJECT

public:
    ScreenDock(const QString& number, const QString& name, QWidget* window);

    const QString& Number() const { return number_; }
    const QString& Name() const { return name_; }

    // The screen that is open here, if any.
    OwnScreen* Screen() const { return screen_; }

    // Takes the screen in. Showing the dock is the caller's.
    void Take(OwnScreen& screen);

    // Destroys the screen, which isn't the one that is calling, and hides.
    void Drop();

    // The size that the screen wants, or had when it was closed.
    QSize WantedSize() const;

signals:
    // The user closes the screen, which is still there.
    void CloseAsked();
    void Renamed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void ShowTitle();

    const QString number_;
    const QString name_;
    OwnScreen* screen_ = nullptr;
    QSize lastSize_;
};

}  // namespace jogeon::terminal
