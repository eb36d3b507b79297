#include "screen/shell/screen_form_widget.h"

#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <algorithm>
#include <vector>

#include "screen/shell/control_icons_qt.h"

namespace jogeon {
namespace {

constexpr int kMaxBarsAgo = 99;

// The class that a dialog template names for the control, for whoever tells controls apart by it.
const char* ClassNameOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::Button:
        case ControlKind::Toggle:
        case ControlKind::CodeList:
            return "CNVButton";
        case ControlKind::Label:
        case ControlKind::Value:
            return "CNVLabel";
        case ControlKind::Radio:
            return "CNVRadio";
        case ControlKind::Combo:
            return "CNVCombo";
        case ControlKind::Tabs:
            return "CNVTab";
        default:
            return "";
    }
}

QLabel* MakeLabel(bool value, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    if (value) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QSpinBox* MakeBarsAgo(QWidget* parent) {
    auto* edit = new QSpinBox(parent);
    edit->setRange(0, kMaxBarsAgo);
    edit->setAlignment(Qt::AlignRight);
    return edit;
}

QPushButton* MakeButton(int id, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setIcon(ControlIcon(id));
    button->setEnabled(false);
    return button;
}

}  // namespace

ScreenForm::ScreenForm(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_StyledBackground);
    resize(kFormWidth, kFormHeight);
    for (const Control& control : ScreenControls()) {
        if (QWidget* made = Make(control)) Place(*made, control.id, control.id);
    }
}

void ScreenForm::Place(QWidget& window, int placeId, int id) {
    for (const Control& control : ScreenControls()) {
        if (control.id != placeId) continue;
        window.setParent(this);
        window.setGeometry(control.place.left, control.place.top, control.place.width, control.place.height);
        window.setProperty("controlClass", ClassNameOf(control.kind));
    }
    window.setObjectName(QString::number(id));
    window.show();
    controls_[id] = &window;
}

void ScreenForm::OrderTabs() {
    std::vector<QWidget*> stops;
    for (const auto& [id, control] : controls_) {
        // One that hands the focus on is a stop itself: elsewhere in the chain it would lead back to its
        // part.
        const bool isStop = control->focusPolicy() & Qt::TabFocus || control->focusProxy();
        if (isStop) {
            stops.push_back(control);
            continue;
        }
        for (QWidget* part : control->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            const bool ownStop = control->focusPolicy() == Qt::NoFocus && part->focusPolicy() & Qt::TabFocus;
            if (ownStop) stops.push_back(part);
        }
    }
    const auto place = [this](const QWidget* stop) {
        const QPoint at = stop->mapTo(this, QPoint());
        return std::pair(at.y(), at.x());
    };
    std::stable_sort(stops.begin(), stops.end(), [&](auto* a, auto* b) { return place(a) < place(b); });
    for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void ScreenForm::SetCaptions() {
    for (const Control& control : ScreenControls()) {
        const auto found = controls_.find(control.id);
        if (found == controls_.end()) continue;
        if (*control.tooltip) found->second->setToolTip(QString::fromUtf8(control.tooltip));
        if (!*control.caption) continue;
        const QString caption = QString::fromUtf8(control.caption);
        if (auto* button = qobject_cast<QAbstractButton*>(found->second)) button->setText(caption);
        if (auto* label = qobject_cast<QLabel*>(found->second)) label->setText(caption);
    }
}

void ScreenForm::OnClick(int id, std::function<void()> command) {
    QAbstractButton& button = ButtonAt(id);
    button.setEnabled(true);
    commands_.insert(id);
    connect(&button, &QAbstractButton::clicked, this, [command = std::move(command)] { command(); });
}

void ScreenForm::EnableCommand(int id, bool enabled) {
    ButtonAt(id).setEnabled(enabled && commands_.contains(id));
}

QWidget* ScreenForm::Make(const Control& control) {
    switch (control.kind) {
        case ControlKind::Button:
        case ControlKind::Toggle:
            return MakeButton(control.id, this);
        case ControlKind::Label:
            return MakeLabel(false, this);
        case ControlKind::Value:
            return MakeLabel(true, this);
        case ControlKind::Radio:
            return new QRadioButton(this);
        case ControlKind::Combo:
            return new QComboBox(this);
        case ControlKind::NumberEdit:
            return MakeBarsAgo(this);
        default:
            return nullptr;
    }
}

}  // namespace jogeon
