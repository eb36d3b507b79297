// The place of one screen in the main window: it loads the screen into itself and does a host frame's part.
//
// It answers the screen's start-up query, obeys the sizes the screen asks for, passes on what the screen has
// for others, tells the screen of another main window or other colours, and restores and saves the screen's
// last data around a session.
#pragma once

#include <QWidget>
#include <string>

#include "screen/host/services.h"
#include "screen/host/window_messages_qt.h"
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

    // The size that the screen has asked for last. The frame's minimum and maximum size are the screen's too.
    QSize Wanted() const { return wanted_; }

signals:
    // The screen needs this client size; it must be granted before this returns.
    void SizeAsked(QSize size);

    // The screen asks for another one to open, with the stock that the shared tags name if `linked`.
    void ScreenAsked(const QString& number, bool linked);

    // The screen has changed a shared tag. Both are CP949 bytes.
    void TagChanged(const std::string& mainKey, const std::string& tag);

    // A row of results was double-clicked.
    void ResultChosen();

protected:
    bool event(QEvent* event) override;

private:
    host::WindowHandle ScreenHandle() const;
    void OnMessage(const host::MessageEvent& message);
    void OnSizeMessage(std::uintptr_t kind, QSize size);
    void TellTag(const char* notify);
    void RestoreLastData();

    const host::WindowHandle handle_;

    QSize wanted_;
    const ScreenModule* module_ = nullptr;
    void* frame_ = nullptr;
    void* screen_ = nullptr;
};

}  // namespace jogeon::terminal
