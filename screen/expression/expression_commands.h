// The commands of the four buttons beside the expression box.
//
// Each works on what is selected there, tells the user when nothing fit for it is, and leaves the changed
// part selected with the focus on the box.
#pragma once

#include <functional>
#include <string>

#include "screen/expression/expression_operations.h"
#include "screen/host/services.h"

namespace jogeon {

// The box as the commands see it. Texts are CP949, positions count their bytes.
class ExpressionBox {
public:
    virtual ~ExpressionBox() = default;

    virtual std::string ExpressionText() const = 0;
    virtual TextSelection Selection() const = 0;
    virtual void ReplaceSelection(const std::string& text) = 0;  // leaves nothing to undo
    virtual void Recolour() = 0;
    virtual void TakeFocus() = 0;
    virtual void Select(TextSelection selection) = 0;
};

class ExpressionCommands {
public:
    // `check` says whether a text is an expression and shows the user where it isn't; `changed` is called
    // after each change. Box and questions outlive this object.
    ExpressionCommands(ExpressionBox& box, host::Questions& questions,
                       std::function<bool(const std::string&)> check, std::function<void()> changed);

    void OnExpressionNot();
    void OnExpressionParenthesize();
    void OnExpressionRemoveParenthesis();
    void OnExpressionRemoveAll();

private:
    void Run(SelectionEdit (*operation)(std::string_view text, TextSelection selection));
    void Change(const SelectionEdit& edit);

    ExpressionBox& box_;
    host::Questions& questions_;
    std::function<bool(const std::string&)> check_;
    std::function<void()> changed_;
};

}  // namespace jogeon
