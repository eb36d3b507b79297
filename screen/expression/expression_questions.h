// Questions about the expression: whoever has been told what is wrong with it finds the focus in its box.
//
// Relies on the host's questions, which it passes everything on to.
#pragma once

#include "screen/expression/expression_commands.h"
#include "screen/host/services.h"

namespace jogeon {

class ExpressionQuestions final : public host::Questions {
public:
    // Both outlive this object.
    ExpressionQuestions(host::Questions& questions, ExpressionBox& box) : questions_(questions), box_(box) {}

    host::Answer Ask(const host::Box& box) override {
        const host::Answer answer = questions_.Ask(box);
        box_.TakeFocus();
        return answer;
    }

    bool Run(const std::string& dialog, void* object) override {
        const bool agreed = questions_.Run(dialog, object);
        box_.TakeFocus();
        return agreed;
    }

    std::optional<std::filesystem::path> AskSavePath(const host::FileQuestion& question) override {
        return questions_.AskSavePath(question);
    }

private:
    host::Questions& questions_;
    ExpressionBox& box_;
};

}  // namespace jogeon
