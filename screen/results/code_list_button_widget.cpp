#include "screen/results/code_list_button_widget.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>
#include <functional>

#include "screen/palette/colors_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr int kVisibleRows = 14;
constexpr int kRowPadding = 4;    // pixels of a row beyond its text's height
constexpr int kSidePadding = 14;  // pixels beside the longest text

QString PopupStyle() {
    return QStringLiteral(
               "QListWidget { background: %1; color: %2; border: 1px solid %3; outline: 0; }"
               "QListWidget::item:selected, QListWidget::item:hover { background: %4; color: %2; }")
        .arg(ToQColor(Color::ControlFace).name(), ToQColor(Color::ControlText).name(),
             ToQColor(Color::ControlEdge).name(), ToQColor(Color::GridSelectedRow).name());
}

// A list that stands over everything until something in it is chosen.
class CodePopup : public QListWidget {
public:
    explicit CodePopup(QWidget* parent) : QListWidget(parent) {
        setWindowFlag(Qt::Popup);
        setAttribute(Qt::WA_DeleteOnClose);
        setObjectName(QStringLiteral("CodePopup"));
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setUniformItemSizes(true);
        setMouseTracking(true);
        setStyleSheet(PopupStyle());
    }

    // A line that can be chosen if `choosable`.
    void AddLine(const QString& text, bool choosable) {
        auto* line = new QListWidgetItem(text, this);
        line->setSizeHint({0, fontMetrics().height() + kRowPadding});
        widest_ = std::max(widest_, fontMetrics().horizontalAdvance(text));
        if (!choosable) line->setFlags(Qt::NoItemFlags);
    }

    // Under the button, as wide as its texts need, on the button's screen.
    void OpenAt(const QPushButton& button) {
        const int frame = 2 * frameWidth();
        const int width = widest_ + kSidePadding + verticalScrollBar()->sizeHint().width();
        const int rows = std::min(count(), kVisibleRows);
        resize(std::max(width + frame, button.width()), rows * sizeHintForRow(0) + frame);
        const QRect room = button.screen()->availableGeometry();
        QPoint place = button.mapToGlobal(QPoint(0, button.height()));
        place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - this->width())));
        if (place.y() + height() > room.bottom()) place.ry() -= button.height() + height();
        move(place);
        show();
        setFocus(Qt::PopupFocusReason);
    }

    std::function<void(int row)> onChosen;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Escape:
                close();
                return;
            case Qt::Key_Return:
            case Qt::Key_Enter:
                return Choose(currentItem());
            default:
                QListWidget::keyPressEvent(event);
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        QListWidget::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton) Choose(itemAt(event->pos()));
    }

private:
    void Choose(const QListWidgetItem* line) {
        if (!line || !(line->flags() & Qt::ItemIsEnabled)) return;
        const int chosen = row(line);
        close();
        onChosen(chosen);
    }

    int widest_ = 0;  // text, in pixels
};

}  // namespace

CodeListButton::CodeListButton(host::CodeLists& lists, QWidget* parent) : QPushButton(parent), names_(lists) {
    connect(this, &QPushButton::clicked, this, &CodeListButton::ShowCodes);
}

void CodeListButton::SetCodes(const std::string& title, const std::vector<std::string>& codes) {
    setText(ToQString(title));
    codes_ = codes;
}

void CodeListButton::ShowCodes() {
    names_.ForgetUnknown();
    auto* popup = new CodePopup(this);
    const std::size_t shown = std::min(codes_.size(), kMostShown);
    for (std::size_t i = 0; i < shown; ++i) {
        popup->AddLine(ToQString(codes_[i]) + QStringLiteral("   ") + names_.Of(codes_[i]), true);
    }
    if (codes_.empty()) popup->AddLine(QStringLiteral("종목이 없습니다."), false);
    if (shown < codes_.size()) {
        popup->AddLine(QStringLiteral("... 외 %1종목").arg(codes_.size() - shown), false);
    }
    // The published list may be another by the time a stock of this one is chosen.
    popup->onChosen = [this, codes = codes_](int row) {
        emit CodeChosen(codes[static_cast<std::size_t>(row)]);
    };
    popup->OpenAt(*this);
}

}  // namespace jogeon
