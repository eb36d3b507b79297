// The place of one screen in the main window: it loads the screen into itself and does a host frame's part.
//
// It answers the screen's start-up query, obeys the sizes the screen asks for, tells the screen of another
// main window or other colours, and restores and saves the screen's last data around a session.
#pragma once

#include <QWidget>

#include "screen/host/services.h"
#include "terminal/screen_module.h"

namespace jogeon::terminal {

class HostFrame : public QWidget {
    Q_OBJECT

public:
    explicit HostFrame(QWidget* parent = nullptr);
    ~HostFrame() override;

    // Builds the module's screen in here. The module outlives this frame. False if the screen refuses.
    bool Open(const ScreenModule& module);

    // Saves the screen's last data and destroys it. Nothing if none is open.
    void Close();

    host::WindowHandle Handle() const { return handle_; }

signals:
    // The screen needs this client size; it must be granted before this returns.
    void SizeAsked(QSize size);

protected:
    bool event(QEvent* event) override;

private:
    const host::WindowHandle handle_;
    host::WindowHandle ScreenHandle() const;

    const ScreenModule* module_ = nullptr;
    void* frame_ = nullptr;
    void* screen_ = nullptr;
};

}  // namespace jogeon::terminal
