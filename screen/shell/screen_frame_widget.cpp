#include "screen/shell/screen_frame_widget.h"

#include <QEvent>

#include "screen/host/window_messages_qt.h"
#include "screen/palette/theme_qt.h"
#include "screen/panes/menu_tree_pane.h"
#include "screen/shell/condition_screen_view.h"

namespace jogeon {

ScreenFrame::ScreenFrame(QWidget& parent, host::WindowHandle hostWindow) : QWidget(&parent), splitter_(this) {
    setGeometry(parent.rect());
    parent.installEventFilter(this);
    SetTheme(ApplicationTheme());

    auto* tree = new CMenuTreeView(&splitter_);
    screen_ = new ConditionScreen(hostWindow, &splitter_);
    splitter_.SetPanes(*tree, *screen_);
    screen_->LinkPanes(splitter_, *tree);
    tree->LinkScreen(*screen_);

    show();
    host::SendMessage(host::HandleOf(tree), host::kInitialUpdate, 0, 0);
    host::SendMessage(host::HandleOf(screen_), host::kInitialUpdate, 0, 0);
}

// The screen goes before the tree, whose catalogue and saved conditions it uses until its last step.
ScreenFrame::~ScreenFrame() {
    delete screen_;
}

void ScreenFrame::resizeEvent(QResizeEvent*) {
    splitter_.setGeometry(rect());
}

bool ScreenFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

}  // namespace jogeon
