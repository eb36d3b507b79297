// The outermost window of the screen: a plain frame that fills its parent and holds the splitter.
//
// Building it builds both panes, links them, and sends them their first update, the left pane first.
#pragma once

#include <QWidget>

#include "screen/host/services.h"
#include "screen/shell/screen_splitter_widget.h"

namespace jogeon {

class CMenuTreeView;
class ConditionScreen;

class ScreenFrame : public QWidget {
    Q_OBJECT

public:
    ScreenFrame(QWidget& parent, host::WindowHandle hostWindow);
    ~ScreenFrame() override;

    ConditionScreen* Screen() const { return screen_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ConditionScreen* screen_ = nullptr;  // a pane of the splitter, which owns it
    ScreenSplitter splitter_;
};

}  // namespace jogeon
