#include "screen/condition/bbox_panel_pane.h"

#include <QKeyEvent>
#include <QPointer>
#include <QStyle>
#include <system_error>

#include "screen/condition/panel_commit.h"
#include "screen/files/data_paths.h"
#include "screen/host/window_messages_qt.h"
#include "screen/palette/colors.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr int kAddId = 31050;
constexpr int kModifyId = 31051;

constexpr QRect kAddPlace{490, 10, 64, 24};
constexpr QRect kModifyPlace{490, 40, 64, 24};
constexpr QSize kPanelSize{563, 96};

// Names come from a file: only a file of the folder itself can be meant, or its twin for dark windows where
// there is one.
FieldControlSet::PictureFile PicturesOf(host::LinkStore& links) {
    return [&links](const std::string& name) {
        const std::filesystem::path file = std::filesystem::path(ToUtf8(name)).filename();
        const std::filesystem::path dark = GetDataFilePath(links, "Image/Pattern/Dark", file);
        std::error_code error;
        const bool useDark = CurrentTheme() == Theme::Dark && std::filesystem::exists(dark, error);
        return useDark ? dark : GetDataFilePath(links, "Image/Pattern", file);
    };
}

}  // namespace

BBoxPanel::BBoxPanel(host::WindowHandle owner, host::Questions& questions, host::LinkStore& links,
                     QWidget* parent)
    : QWidget(parent),
      owner_(owner),
      questions_(questions),
      controls_(*this, PicturesOf(links), [this] { GreyUnusedFields(); }) {
    setAttribute(Qt::WA_StyledBackground);
    resize(kPanelSize);
    PlaceButtons();
    ApplyMode(PanelMode::Empty);
}

BBoxPanel::~BBoxPanel() {
    DestroyFields();
}

void BBoxPanel::PlaceButtons() {
    const auto place = [this](QPushButton& button, int id, const char* caption, const QRect& rect) {
        button.setParent(this);
        button.setObjectName(QString::number(id));
        button.setText(QString::fromUtf8(caption));
        button.setGeometry(rect);
    };
    place(add_, kAddId, "추  가", kAddPlace);
    place(modify_, kModifyId, "수  정", kModifyPlace);
    connect(&add_, &QPushButton::clicked, this, [this] { Press(host::kPanelAdd); });
    connect(&modify_, &QPushButton::clicked, this, [this] { Press(host::kPanelReplace); });
}

void BBoxPanel::ShowIndex(bool rebuild, const CIndexInfo* info, PanelMode mode) {
    ++showing_;
    setUpdatesEnabled(false);
    DestroyFields();
    m_pCurrent = nullptr;
    if (rebuild && info && info->m_pFields) {
        SetHead(*info);
        CreateFields(*info->m_pFields);
        GreyUnusedFields();
    }
    ApplyMode(mode);
    SetTabOrder();
    setUpdatesEnabled(true);
}

void BBoxPanel::OnAdded(const CIndexInfo& added) {
    m_pCurrent = &added;
    ApplyMode(PanelMode::Existing);
}

// A record of its own each time, since m_bHasSelector of an old one would stay set.
void BBoxPanel::SetHead(const CIndexInfo& info) {
    m_pIndex = std::make_unique<CIndexInfo>(info);
    m_pCurrent = &info;
}

void BBoxPanel::GetHead(CIndexInfo& info) const {
    const int shown = info.m_bShowValue, checked = info.m_bChecked;
    const char letter = info.m_chLetter;
    info = *m_pIndex;
    info.m_bShowValue = shown;
    info.m_bChecked = checked;
    info.m_chLetter = letter;
}

void BBoxPanel::UpdateValues(CIndexInfo& info) const {
    if (m_Fields) jogeon::UpdateValues(*m_Fields, info);
}

std::unique_ptr<CIndexInfo> BBoxPanel::TakeCondition() const {
    auto condition = std::make_unique<CIndexInfo>();
    GetHead(*condition);
    UpdateValues(*condition);
    return condition;
}

// While the box stands open something else may come to be shown: then the field is gone.
bool BBoxPanel::CommitFields() {
    const std::optional<CommitFault> fault = jogeon::CommitFields(*m_pIndex, m_Fields, m_strPreview);
    if (!fault) return true;
    const QPointer<BBoxPanel> self(this);
    const unsigned showing = showing_;
    questions_.Ask(fault->box);
    if (!self || showing != showing_) return false;
    if (FieldControl* entry = EntryOf(*fault->field)) entry->Focus();
    return false;
}

void BBoxPanel::Press(host::MessageNumber message) {
    if (CommitFields()) host::SendMessage(owner_, message, 0, 0);
}

// Enter presses the button that has the focus, else the one that is meant for what is shown.
void BBoxPanel::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat()) return;  // a key held down adds one condition
    (add_.hasFocus() ? add_ : *usual_).click();
}

void BBoxPanel::DestroyFields() {
    if (m_Fields) {
        for (const auto& field : *m_Fields) controls_.DestroyControl(*field);
    }
    m_Fields.reset();
}

void BBoxPanel::CreateFields(const FieldArray& source) {
    m_Fields = std::make_unique<FieldArray>();
    for (const auto& field : source) {
        m_Fields->push_back(std::make_unique<CIndexField>(*field));
        if (m_Fields->size() > 1) controls_.CreateControl(*m_Fields->back());  // the head record has none
    }
}

// The fields come in front of the buttons, behind whatever the Tab key reaches before the panel.
void BBoxPanel::SetTabOrder() {
    std::vector<QWidget*> stops = controls_.TabStops();
    stops.insert(stops.end(), {&add_, &modify_});
    QWidget* before = &add_;
    do {
        before = before->previousInFocusChain();
    } while (before != &add_ && (before->focusPolicy() == Qt::NoFocus || isAncestorOf(before)));
    for (QWidget* stop : stops) {
        setTabOrder(before, stop);
        before = stop;
    }
}

// The fields outside the chosen variant keep what they hold.
void BBoxPanel::GreyUnusedFields() {
    const CIndexField* selector = FindFieldByRole(*m_Fields, kRoleSelector, 1);
    if (!selector) return;
    const std::vector<bool> used = FieldsInUse(*m_Fields, ChosenOption(*selector));
    for (std::size_t i = 1; i < used.size(); ++i) controls_.SetEnabled(*(*m_Fields)[i], used[i]);
}

void BBoxPanel::ApplyMode(PanelMode mode) {
    usual_ = mode == PanelMode::Existing ? &modify_ : &add_;
    add_.setVisible(mode != PanelMode::Empty);
    modify_.setVisible(mode == PanelMode::Existing);
    for (QPushButton* button : {&add_, &modify_}) {
        button->setEnabled(m_Fields && mode != PanelMode::Empty);
        button->setProperty("usual", button == usual_);
        button->style()->polish(button);  // the style sheet knows the property
    }
}

}  // namespace jogeon
