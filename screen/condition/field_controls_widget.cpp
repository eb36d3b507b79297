#include "screen/condition/field_controls_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "screen/condition/live_controls_widget.h"
#include "screen/condition/panel_commit.h"
#include "screen/condition/spin_box_widget.h"
#include "screen/condition/token_list.h"
#include "screen/palette/edges_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr std::size_t kMostControls = 200;  // more would lie on top of one another
constexpr int kOptionIdFactor = 100;

QLabel* MakeLabel(const CIndexField& field, QWidget* panel) {
    auto* label = new QLabel(ToQString(field.m_strValue), panel);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLineEdit* MakeEdit(const CIndexField& field, QWidget* panel) {
    auto* edit = new QLineEdit(ToQString(field.m_strValue), panel);
    edit->setAlignment(Qt::AlignRight);
    return edit;
}

}  // namespace

FieldControlSet::FieldControlSet(QWidget& panel, PictureFile pictureFile, std::function<void()> onChoice)
    : panel_(panel), pictureFile_(std::move(pictureFile)), onChoice_(std::move(onChoice)) {}

FieldControlSet::~FieldControlSet() = default;

void FieldControlSet::CreateControl(CIndexField& field) {
    if (field.m_bCreated) return;
    field.m_bCreated = 1;
    ChooseInitialOption(field);
    if (!Full()) MakeControls(field);
}

void FieldControlSet::DestroyControl(CIndexField& field) {
    const auto found = made_.find(&field);
    if (found != made_.end()) {
        for (const auto& control : found->second.controls) std::erase(tabStops_, &control->Widget());
        count_ -= found->second.controls.size();
        made_.erase(found);
    }
    static_cast<FieldControls&>(field) = FieldControls();
}

bool FieldControlSet::Full() const {
    return count_ >= kMostControls;
}

void FieldControlSet::SetEnabled(const CIndexField& field, bool enabled) {
    const auto found = made_.find(&field);
    if (found == made_.end()) return;
    for (const auto& control : found->second.controls) control->Widget().setEnabled(enabled);
}

// Takes the widget over and puts it in its place. Null, and no widget, where the place is empty.
template <typename Control, typename WidgetType>
FieldControl* FieldControlSet::Add(const CIndexField& field, const PanelRect& rect, WidgetType* widget) {
    auto control = std::make_unique<Control>(widget);
    if (IsEmpty(rect) || Full()) return nullptr;
    ++count_;
    widget->setObjectName(QString::number(field.m_nId));
    widget->setGeometry(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    widget->show();
    if (widget->focusPolicy() != Qt::NoFocus) {
        widget->setPalette(EdgePalette());
        tabStops_.push_back(widget);
    }
    return made_[&field].controls.emplace_back(std::move(control)).get();
}

void FieldControlSet::MakeControls(CIndexField& field) {
    const PanelRect rect = ControlRect(field);
    switch (field.m_nType) {
        case kFieldEdit:
            field.m_pEdit = Add<EntryControl<QLineEdit>>(field, rect, MakeEdit(field, &panel_));
            break;
        case kFieldSpin:
            MakeSpin(field);
            break;
        case kFieldList:
        case kFieldSectorList:
            MakeCombo(field, false);
            break;
        case kFieldFreeCombo:
            MakeCombo(field, true);
            break;
        case kFieldButton:
            field.m_pButton =
                Add<ButtonControl>(field, rect, new QPushButton(ToQString(field.m_strValue), &panel_));
            break;
        case kFieldCheck:
            field.m_pCheck =
                Add<ButtonControl>(field, rect, new QCheckBox(ToQString(field.m_strValue), &panel_));
            break;
        case kFieldRadios:
        case kFieldRadioRows:
            MakeRadios(field);
            break;
        case kFieldPicture:
            MakePicture(field);
            break;
        default:
            field.m_pStatic = Add<LabelControl>(field, rect, MakeLabel(field, &panel_));
            break;
    }
}

void FieldControlSet::MakeSpin(CIndexField& field) {
    auto* spin = new SpinBox(&panel_);
    static_cast<SpinSteps&>(*spin) = StepsOf(field);
    spin->SetText(QString::fromStdString(SpinText(*spin, field)));
    field.m_pEdit = field.m_pSpin = Add<EntryControl<SpinBox>>(field, ControlRect(field), spin);
}

void FieldControlSet::MakeCombo(CIndexField& field, bool editable) {
    auto* combo = new QComboBox(&panel_);
    combo->setEditable(editable);
    combo->setInsertPolicy(QComboBox::NoInsert);
    const CTokenList items(field.m_strItems, '|');
    for (const std::string& item : items.Tokens()) combo->addItem(ToQString(item));
    combo->setCurrentIndex(field.m_nSelected);
    if (editable && field.m_nSelected == -1) combo->setEditText(ToQString(field.m_strValue));
    if (field.m_nRole == kRoleSelector) QObject::connect(combo, &QComboBox::activated, combo, onChoice_);
    field.m_pCombo = Add<ComboControl>(field, ControlRect(field), combo);
}

void FieldControlSet::MakeRadios(CIndexField& field) {
    const std::vector<std::string> texts = CTokenList(field.m_strItems, '|').Tokens();
    const std::vector<PanelRect> rects = OptionRects(field, texts);
    const std::size_t count = std::min(texts.size(), kMostControls);
    auto group = std::make_unique<QButtonGroup>();
    for (std::size_t i = 0; i < count; ++i) {
        auto* radio = new QRadioButton(ToQString(texts[i]), &panel_);
        group->addButton(radio);
        radio->setChecked(static_cast<int>(i) == field.m_nSelected);
        if (field.m_nRole == kRoleSelector) {
            QObject::connect(radio, &QAbstractButton::clicked, radio, onChoice_);
        }
        field.m_pRadios.push_back(Add<ButtonControl>(field, rects[i], radio));
        if (!field.m_pRadios.back()) continue;
        radio->setObjectName(QString::number(field.m_nId * kOptionIdFactor + static_cast<int>(i)));
    }
    field.m_nRadioCount = static_cast<int>(count);
    if (made_.contains(&field)) made_[&field].group = std::move(group);
}

// A picture that can't be loaded leaves the control blank.
void FieldControlSet::MakePicture(CIndexField& field) {
    auto* label = new PictureLabel(&panel_);
    field.m_pStatic = Add<PictureControl>(field, ControlRect(field), label);
    auto* control = static_cast<PictureControl*>(field.m_pStatic);
    if (!control) return;
    LoadPicture(field, *control);
    if (!control->picture.isNull()) field.m_hBitmap = &control->picture;
}

void FieldControlSet::LoadPicture(const CIndexField& field, PictureControl& control) const {
    control.picture.load(QString::fromStdString(pictureFile_(field.m_strItems).string()));
    control.Show();
}

void FieldControlSet::RefreshPictures() {
    for (const auto& [field, made] : made_) {
        if (field->m_nType != kFieldPicture) continue;
        for (const auto& control : made.controls) LoadPicture(*field, static_cast<PictureControl&>(*control));
    }
}

}  // namespace jogeon
