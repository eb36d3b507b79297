// The commands of the screen's controls: which button does what, and what only the screen itself can do.
#include <algorithm>
#include <utility>

#include "screen/expression/expression_check.h"
#include "screen/expression/expression_error_dialog.h"
#include "screen/expression/expression_help_dialog.h"
#include "screen/host/window_messages_qt.h"
#include "screen/shell/condition_screen_view.h"
#include "screen/shell/control_icons_qt.h"
#include "screen/shell/saved_wiring_qt.h"
#include "screen/target/target_dialog.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr const char* kScopes[] = {"전체검색", "결과내검색", "결과외검색", "순차검색"};

// Set, add, subtract, as the condition editor numbers them.
constexpr std::pair<int, int> kBarsAgoButtons[] = {
    {control::kBarsAgoSet, 0}, {control::kBarsAgoAdd, 1}, {control::kBarsAgoSubtract, 2}};

}  // namespace

void ConditionScreen::FillScopes() {
    QComboBox& scopes = form_.ComboAt(control::kScope);
    for (const char* scope : kScopes) scopes.addItem(QString::fromUtf8(scope));
}

void ConditionScreen::WireCommands() {
    WireSavedCommands(form_, saved_);
    WireLayoutCommands();
    form_.OnClick(control::kChangeTarget, [this] { ChangeTarget(); });
    form_.OnClick(control::kSearch, [this] { search_.Start(); });
    form_.OnClick(control::kNextPage, [this] { search_.NextPage(); });
    form_.OnClick(control::kClearResults, [this] { ClearResultsCommand(); });
    for (const auto& [button, mode] : kBarsAgoButtons) {
        form_.OnClick(button, [this, mode = mode] {
            editor_.ApplyBarsAgo(form_.NumberAt(control::kBarsAgoEdit), mode);
        });
    }
    form_.OnClick(control::kExpressionNot, [this] { expressionCommands_.OnExpressionNot(); });
    form_.OnClick(control::kParenthesize, [this] { expressionCommands_.OnExpressionParenthesize(); });
    form_.OnClick(control::kRemoveParenthesis,
                  [this] { expressionCommands_.OnExpressionRemoveParenthesis(); });
    form_.OnClick(control::kRemoveAll, [this] { expressionCommands_.OnExpressionRemoveAll(); });
    form_.OnClick(control::kExpressionHelp, [this] { OnExpressionHelp(*services_.questions); });
    form_.OnClick(control::kSaveConditionsAsSheet, [this] { SaveConditionsAsSheet(); });
    form_.OnClick(control::kLeftPaneToggle, [this] { ToggleLeftPane(); });
    connect(&expressionEdit_, &ExpressionEdit::Edited, this, [this] { OnExpressionChanged(); });
    connect(&resultTabs_, &QTabBar::currentChanged, this, [this](int tab) { results_.OnTabSelected(tab); });
    connect(&form_.ComboAt(control::kScope), &QComboBox::activated, this, [this](int scope) {
        if (scope != static_cast<int>(SearchScope::Sequential)) editor_.ResetSequence();
    });
}

void ConditionScreen::WireReplies() {
    channel_.SetHandler('T', [this](std::string_view reply) { results_.OnSearchReply(reply, false); });
    channel_.SetHandler('N', [this](std::string_view reply) { results_.OnSearchReply(reply, true); });
    saved_.WireReplies();
}

void ConditionScreen::OnPickIndex(const CIndexInfo& info, const FieldArray* fields) {
    picked_ = std::make_unique<CIndexInfo>(info);
    picked_->CopyFields(fields);
    panel_.ShowIndex(true, picked_.get(), PanelMode::New);
    panel_.setVisible(settings_.expandMode != kResultsOnly);
}

void ConditionScreen::OnPickSaved(std::shared_ptr<CSavedIndexInfo> saved) {
    saved_.LoadCondition(std::move(saved));
}

bool ConditionScreen::CheckExpression(const std::string& text) {
    const ExpressionCheck check = CheckExpressionText(text);
    if (check.valid) return true;
    ExpressionErrorDialog dialog(ExpressionErrorText(text, check.errorPosition));
    expressionQuestions_.Run("ExpressionErrorDialog", &dialog);
    return false;
}

// By hand or by a button: the text is no more what was saved or stepped through.
void ConditionScreen::OnExpressionChanged() {
    editor_.ResetSequence();
    editor_.SetDirty(true);
}

// Letters and descriptions of the list, with the expression as footer.
void ConditionScreen::SaveConditionsAsSheet() {
    conditionGrid_.Cells().SaveToExcelPartially(expressionEdit_.ExpressionText(), kColumnLetter,
                                                kColumnContent);
}

void ConditionScreen::ToggleLeftPane() {
    leftPaneClosed_ = !leftPaneClosed_;
    host::SendMessage(splitterWindow_, host::kLeftPaneShown, leftPaneClosed_ ? 0 : 1, 0);
    form_.ButtonAt(control::kLeftPaneToggle).setIcon(LeftPaneIcon(leftPaneClosed_));
}

void ConditionScreen::ChangeTarget() {
    saved_.ChangeTarget(
        [this](const SearchTarget& target) { return AskForTarget(services_, target, *this); });
}

void ConditionScreen::ClearResultsCommand() {
    results_.Clear();
    editor_.ResetSequence();
}

SearchInputs ConditionScreen::GatherSearchInputs() {
    SearchInputs inputs;
    inputs.window = handle_;
    inputs.scope = static_cast<SearchScope>(std::max(0, form_.ComboAt(control::kScope).currentIndex()));
    inputs.header = {userId_, saved_.CurrentSaved(), FromQString(form_.LabelAt(control::kNameLabel).text()),
                     BuySelected(), saved_.Target()};
    inputs.targetLabel = saved_.Target().m_strTargetLabel;
    inputs.conditions = editor_.Conditions();
    inputs.expressionText = expressionEdit_.ExpressionText();
    inputs.checkExpression = [this](const std::string& text) { return CheckExpression(text); };
    inputs.nextSequenceStep = [this] { return editor_.NextSequenceStep(); };
    return inputs;
}

}  // namespace jogeon
