#include "screen/shell/condition_screen_view.h"

#include <QEvent>
#include <algorithm>
#include <utility>

#include "screen/host/window_messages_qt.h"
#include "screen/palette/edges_qt.h"
#include "screen/palette/theme_qt.h"
#include "screen/panes/menu_tree_pane.h"
#include "screen/settings/settings_block.h"
#include "screen/shell/host_color_numbers.h"
#include "screen/shell/screen_keys_qt.h"
#include "screen/shell/screen_splitter_widget.h"
#include "screen/shell/screen_style_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

// The tooltip shows the text whole where the label cuts it, and as it is, whatever signs are in it.
void ShowText(QLabel& label, const std::string& text) {
    label.setText(ToQString(text));
    label.setToolTip(text.empty() ? QString() : "<p>" + label.text().toHtmlEscaped() + "</p>");
}

}  // namespace

ConditionScreen::ConditionScreen(host::WindowHandle hostWindow, QWidget* parent)
    : QWidget(parent),
      services_(host::Installed()),
      hostWindow_(hostWindow),
      handle_(host::RegisterWindow(*this)),
      form_(this),
      expressionEdit_(*services_.questions),
      expressionQuestions_(*services_.questions, expressionEdit_),
      codeListButton_(*services_.codeLists),
      conditionGrid_(control::kConditionGrid),
      resultGrid_(*services_.codeLists),
      panel_(handle_, *services_.questions, *services_.links),
      formWindows_(form_, panel_),
      layout_(formWindows_),
      channel_(*services_.communication, *services_.clock, *services_.questions, [this] { RefreshCursor(); }),
      conditionsPane_(conditionGrid_, expressionEdit_, panel_),
      editor_(conditionsPane_, *services_.questions, settings_),
      expressionCommands_(
          expressionEdit_, expressionQuestions_,
          [this](const std::string& text) { return CheckExpression(text); },
          [this] { OnExpressionChanged(); }),
      savedDialogs_(*this, *services_.questions),
      saved_({*this, savedDialogs_, editor_, channel_, *services_.questions, expressionQuestions_,
              *services_.links, settings_}),
      resultControls_(
          {*this, resultGrid_, resultTabs_, form_.ComboAt(control::kScope),
           form_.ButtonAt(control::kNextPage), codeListButton_, form_.LabelAt(control::kTotalCount),
           form_.LabelAt(control::kReceivedCount), progressBar_},
          *services_.questions, *services_.clock),
      results_(resultControls_, columns_, *services_.links, *services_.questions),
      search_(channel_, results_, columns_, *services_.questions, expressionQuestions_,
              [this] { return GatherSearchInputs(); }),
      resultLinks_({resultControls_, results_, services_, hostMainWindow_, settings_, handle_}) {
    conditionGrid_.LinkEditor(editor_);
    PlaceControls();
    WireCommands();
    WireLinks();
    WireReplies();
}

ConditionScreen::~ConditionScreen() {
    ShutDown();
}

void ConditionScreen::LinkPanes(ScreenSplitter& splitter, CMenuTreeView& tree) {
    splitterWindow_ = host::HandleOf(&splitter);
    treeView_ = &tree;
    WireScreenKeys(splitter, form_);
    WireScreenKey(splitter, Qt::CTRL | Qt::Key_E, [this] { SaveResultSheet(); });
    saved_.LinkTree(tree);
}

void ConditionScreen::PlaceControls() {
    form_.Place(panel_, control::kPanelArea, control::kPanelArea);
    panel_.hide();
    form_.Place(conditionGrid_, control::kConditionGridArea, control::kConditionGridArea);
    form_.Place(expressionEdit_, control::kExpression, control::kExpression);
    resultTabs_.setShape(QTabBar::RoundedSouth);
    form_.Place(resultTabs_, control::kResultTabs, control::kResultTabs);
    form_.Place(resultGrid_, control::kResultGrid, control::kResultGrid);
    form_.Place(codeListButton_, control::kCodeList, control::kCodeList);
    form_.Place(progressBar_, control::kProgress, control::kProgress);
    form_.OrderTabs();
    host::RegisterWindow(resultGrid_);
    host::RegisterWindow(codeListButton_);
}

// --- what the host asks for

void ConditionScreen::SaveLeftPaneWidth(const std::string& key) {
    host::SendMessage(splitterWindow_, host::kLeftPaneWidth, 1, reinterpret_cast<std::intptr_t>(key.c_str()));
}

void ConditionScreen::RestoreLeftPaneWidth(const std::string& key) {
    if (std::exchange(lastDataApplied_, true)) return;
    host::SendMessage(splitterWindow_, host::kLeftPaneWidth, 0, reinterpret_cast<std::intptr_t>(key.c_str()));
}

int ConditionScreen::ChangeEnvironment(int value) {
    resultGrid_.Redraw();
    return value;
}

// The theme comes first: all that follow paint in it.
void ConditionScreen::ReadHostColors() {
    SetTheme(ApplicationTheme());
    MakeBackBrush();
    setStyleSheet(ScreenStyle(backBrush_.color()));
    BuildConditionGrid();
    const QColor radio = ToQColor(services_.colors->GetColor(kRadioColor, 0));
    const QString sheet = QStringLiteral("QRadioButton { background: %1; }").arg(radio.name());
    for (const int id : {control::kBuy, control::kSell}) {
        // Under a style sheet a palette would have no effect. What shows through needs neither.
        form_.At(id).setStyleSheet(radio == backBrush_.color() ? QString() : sheet);
    }
    ShowEdges(form_);
    conditionGrid_.RefreshColors();
    expressionEdit_.RefreshColors();
    panel_.RefreshColors();
    resultGrid_.RefreshColors();
    resultTabs_.RefreshColors();
    treeView_->RefreshColors();
}

void ConditionScreen::FocusResultGrid() {
    resultGrid_.setFocus();
}

bool ConditionScreen::event(QEvent* event) {
    host::MessageEvent* message = host::AsMessage(event);
    if (!message) return QWidget::event(event);
    switch (message->number) {
        case host::kInitialUpdate:
            StartUp();
            break;
        case host::kServerReply: {
            const auto* block = reinterpret_cast<const std::string*>(message->lParam);
            channel_.OnReply(message->wParam, block ? std::string_view(*block) : std::string_view());
            break;
        }
        case host::kHostChanged:
            ChangeHost(static_cast<host::WindowHandle>(message->lParam));
            break;
        case host::kPanelAdd:
            editor_.Add();
            message->result = 1;
            break;
        case host::kPanelReplace:
            editor_.Replace();
            message->result = 1;
            break;
        case host::kExpressionChanged:
            OnExpressionChanged();
            message->result = 1;
            break;
        case host::kSettingsFill:
            FillSettingsBlock(settings_, reinterpret_cast<std::byte*>(message->lParam));
            message->result = 1;
            break;
        case host::kSettingsTaken:
            if (((message->wParam >> 8) & 0xff) == settings_block::kAgreed) {
                TakeSettingsBlock(reinterpret_cast<const std::byte*>(message->lParam), settings_);
            }
            message->result = 1;
            break;
        case host::kIgnored:
            message->result = 1;
            break;
        default:
            break;
    }
    return true;
}

void ConditionScreen::resizeEvent(QResizeEvent*) {
    form_.resize(std::max(width(), kFormWidth), std::max(height(), kFormHeight));
    FitResultGrid();
}

void ConditionScreen::ChangeHost(host::WindowHandle mainWindow) {
    hostMainWindow_.Attach(mainWindow);
    for (const QWidget* told :
         {static_cast<QWidget*>(&codeListButton_), static_cast<QWidget*>(&resultGrid_)}) {
        host::SendMessage(host::HandleOf(told), host::kHostChanged, 0,
                          static_cast<std::intptr_t>(mainWindow));
    }
    host::SendMessage(splitterWindow_, host::kHostChanged, 0, 0);
}

void ConditionScreen::RefreshCursor() {
    if (channel_.Busy()) {
        setCursor(Qt::WaitCursor);
    } else {
        unsetCursor();
    }
}

// --- SavedConditionView

void ConditionScreen::ShowName(const std::string& name) {
    ShowText(form_.LabelAt(control::kNameLabel), name);
}

bool ConditionScreen::BuySelected() const {
    return form_.ButtonAt(control::kBuy).isChecked();
}

void ConditionScreen::SelectBuy(bool buy) {
    form_.ButtonAt(buy ? control::kBuy : control::kSell).setChecked(true);
}

void ConditionScreen::ShowTarget(const SearchTarget& target) {
    ShowText(form_.LabelAt(control::kTargetLabel), target.m_strTargetLabel);
}

void ConditionScreen::EnableSavedCommands(bool enabled) {
    for (const int id : {control::kDeleteSaved, control::kRenameSaved, control::kSaveAs}) {
        form_.EnableCommand(id, enabled);
    }
}

}  // namespace jogeon
