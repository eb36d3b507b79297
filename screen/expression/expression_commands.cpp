#include "screen/expression/expression_commands.h"

#include <utility>

#include "screen/expression/expression_characters.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

std::string Selected(const std::string& text, TextSelection selection) {
    return text.substr(static_cast<std::size_t>(selection.start),
                       static_cast<std::size_t>(selection.end - selection.start));
}

}  // namespace

ExpressionCommands::ExpressionCommands(ExpressionBox& box, host::Questions& questions,
                                       std::function<bool(const std::string&)> check,
                                       std::function<void()> changed)
    : box_(box), questions_(questions), check_(std::move(check)), changed_(std::move(changed)) {}

void ExpressionCommands::OnExpressionNot() {
    Run(ToggleNot);
}

void ExpressionCommands::OnExpressionParenthesize() {
    Run(Parenthesize);
}

void ExpressionCommands::OnExpressionRemoveParenthesis() {
    Run(RemoveParenthesis);
}

void ExpressionCommands::OnExpressionRemoveAll() {
    Run(RemoveAllMarks);
}

void ExpressionCommands::Run(SelectionEdit (*operation)(std::string_view, TextSelection)) {
    const std::string text = box_.ExpressionText();
    const TextSelection selection = box_.Selection();
    const SelectionEdit edit = operation(text, selection);
    switch (edit.outcome) {
        case SelectionEdit::Outcome::TooShort:
            questions_.Ask({"선택영역을 확인하십시요."_cp949, "조건검색"_cp949, host::Icon::Information,
                            host::Buttons::Ok});
            break;
        case SelectionEdit::Outcome::Refused:
            check_(Selected(text, selection));
            break;
        case SelectionEdit::Outcome::Changed:
            if (const auto refusal = RefuseLength(text, edit.text)) {
                questions_.Ask(*refusal);
            } else {
                Change(edit);
            }
            break;
        case SelectionEdit::Outcome::Nothing:
            break;
    }
}

void ExpressionCommands::Change(const SelectionEdit& edit) {
    box_.ReplaceSelection(Selected(edit.text, edit.selection));
    box_.Recolour();
    box_.TakeFocus();
    box_.Select(edit.selection);
    changed_();
}

}  // namespace jogeon
