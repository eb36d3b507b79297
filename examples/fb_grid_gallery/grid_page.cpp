#include "grid_page.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

const char* NameOf(int code) {
    switch (code) {
        case FBGridNotify::kDeleteKey:
            return "kDeleteKey";
        case FBGridNotify::kEnterKey:
            return "kEnterKey";
        case FBGridNotify::kChildCommand:
            return "kChildCommand";
        case FBGridNotify::kCheckToggled:
            return "kCheckToggled";
        case FBGridNotify::kButtonPressed:
            return "kButtonPressed";
        case FBGridNotify::kHeaderPressed:
            return "kHeaderPressed";
        case FBGridNotify::kCellPressed:
            return "kCellPressed";
        case FBGridNotify::kRightPressed:
            return "kRightPressed";
        case FBGridNotify::kDoubleClicked:
            return "kDoubleClicked";
        case FBGridNotify::kRowDropped:
            return "kRowDropped";
    }
    return "unknown";
}

// What the two fields say; a code that sets none is about the focused cell.
QString FieldsOf(const FBGridNotify& notify) {
    const CCellID focused = notify.grid.GetFocusedCellID();
    switch (notify.code) {
        case FBGridNotify::kDoubleClicked:
            return QString("x %1, y %2").arg(notify.row).arg(notify.col);
        case FBGridNotify::kRowDropped:
            return QString("to row %1, from row %2").arg(notify.row).arg(notify.col);
        case FBGridNotify::kDeleteKey:
        case FBGridNotify::kEnterKey:
        case FBGridNotify::kChildCommand:
        case FBGridNotify::kCheckToggled:
            return QString("(focus: %1, %2)").arg(focused.row).arg(focused.col);
        default:
            return QString("row %1, col %2").arg(notify.row).arg(notify.col);
    }
}

QString LineOf(const FBGridNotify& notify) {
    return QString("%1 %2 %3").arg(notify.code, 2).arg(NameOf(notify.code), -15).arg(FieldsOf(notify));
}

}  // namespace

GridPage::GridPage(const QString& title, const QString& hint, const QString& file)
    : title_(title), file_(file), grid_(*new CFBGrid(this)), controls_(*new QHBoxLayout) {
    auto* heading = new QLabel(title);
    QFont large = heading->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    heading->setFont(large);
    auto* text = new QLabel(hint);
    text->setWordWrap(true);

    // As high as the desktop's font needs, and in the desktop's colours, light or dark.
    grid_.SetDefRowHeight(fontMetrics().height() + 6);
    grid_.SetFixedCellColor(fbcolour::kButtonFace);
    grid_.SetGridLine(fbcolour::kInactiveBorder);
    grid_.setFrameShape(QFrame::StyledPanel);
    grid_.setAccessibleName(title);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(heading);
    column->addWidget(text);
    column->addWidget(&grid_, 1);
    column->addLayout(&controls_);
    controls_.addStretch();
}

void GridPage::AddControl(QWidget& control) {
    controls_.insertWidget(controls_.count() - 1, &control);
}

void GridPage::FocusFirstCell() {
    grid_.SetFocusedCellID({grid_.GetFixedRowCnt(), 0});
    grid_.viewport()->update();
}

QWidgetList GridPage::TabStops() const {
    QWidgetList stops{&grid_};
    for (int i = 0; i < controls_.count(); ++i) {
        QWidget* control = controls_.itemAt(i)->widget();
        if (control && control->focusPolicy() != Qt::NoFocus) stops.append(control);
    }
    return stops;
}

QPushButton& GridPage::AddButton(const QString& text, const std::function<void()>& pressed) {
    auto* button = new QPushButton(text);
    connect(button, &QPushButton::clicked, this, pressed);
    AddControl(*button);
    return *button;
}

bool GridPage::event(QEvent* event) {
    if (event->type() != FBGridNotify::EventType()) return QWidget::event(event);
    const auto& notify = static_cast<const FBGridNotify&>(*event);
    emit Told(LineOf(notify));
    OnNotify(notify);
    return true;
}
