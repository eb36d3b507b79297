// The terminal's main window: screen 0150 in the middle, docks around it, a menu, and the line at the foot.
//
// Screen 0150 has the size that it asks for and no more. What is left goes to the docks; where there are
// none it stays empty.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

#include "terminal/host_frame.h"
#include "terminal/window/screen_bed.h"
#include "terminal/window/status_line.h"

namespace jogeon::terminal {

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // `server` is the address of the service, empty for the one of this process.
    MainWindow(const QString& user, const QString& server, const service::MarketSummary& market);

    HostFrame& Frame() { return frame_; }
    StatusLine& Foot() { return foot_; }

    // Where the window may lie.
    QRect Desktop() const;

    // A dock has been shown in an area where there was none; the window grows from `before` by the size that
    // the dock wants. On a desktop without room for both the dock floats.
    void GiveRoom(QDockWidget& dock, const QSize& wanted, const QRect& before);

    // The last dock of an area has been closed, which had this size.
    void TakeRoomBack(QDockWidget& dock, const QSize& had);

    // Docks have come, gone or moved.
    void MindDocks();

    // The window as on the first day, as large as screen 0150 needs.
    void ResetSize();

signals:
    void Moved();    // or sized
    void Closing();  // everything is still there
    void DesktopColorsChanged();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // What lies around the screen, and the least room that it takes.
    struct Docked {
        bool beside = false;
        bool aboveOrBelow = false;
        QSize least{0, 0};
    };

    void GrantSize(QSize frameSize);
    Docked DockedOnes() const;
    bool Resizable() const { return !isMaximized() && !isFullScreen(); }
    QSize Chrome() const;
    QSize RoomOf(QDockWidget& dock, const QSize& size) const;

    ScreenBed bed_;
    HostFrame frame_;  // goes before its bed
    StatusLine& foot_;
};

}  // namespace jogeon::terminal
