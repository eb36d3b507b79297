#include "screen/expression/expression_commands.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/screen/support/marked_text.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

// A box without looks that notes what is done to it.
class RecordingBox : public ExpressionBox {
public:
    void Set(const char* marked) {
        const test::MarkedText parts(marked);
        text = parts.text;
        selection = parts.selection;
        done.clear();
    }
    std::string Marked() const { return test::WithMarks(text, selection); }

    std::string ExpressionText() const override { return text; }
    TextSelection Selection() const override { return selection; }
    void ReplaceSelection(const std::string& replacement) override {
        const auto start = static_cast<std::size_t>(selection.start);
        text.replace(start, static_cast<std::size_t>(selection.end) - start, replacement);
        selection.start = selection.end = static_cast<int>(start + replacement.size());
        done += "replace ";
    }
    void Recolour() override { done += "recolour "; }
    void TakeFocus() override { done += "focus "; }
    void Select(TextSelection wanted) override {
        selection = wanted;
        done += "select ";
    }

    std::string text;
    TextSelection selection;
    std::string done;
};

class ExpressionCommandsTest : public testing::Test {
protected:
    RecordingBox box;
    test::ScriptedQuestions questions;
    std::vector<std::string> refused;
    ExpressionCommands commands{box, questions,
                                [this](const std::string& text) {
                                    refused.push_back(text);
                                    return false;
                                },
                                [this] { box.done += "changed"; }};
};

TEST_F(ExpressionCommandsTest, EachButtonChangesWhatIsSelectedAndLeavesItSelected) {
    const std::tuple<void (ExpressionCommands::*)(), const char*, const char*> cases[] = {
        {&ExpressionCommands::OnExpressionNot, "A and [B or C]", "A and [!(B or C)]"},
        {&ExpressionCommands::OnExpressionParenthesize, "A and [B or C]", "A and [(B or C)]"},
        {&ExpressionCommands::OnExpressionRemoveParenthesis, "[!(A)] and (B)", "[!A] and (B)"},
        {&ExpressionCommands::OnExpressionRemoveAll, "[!(A) and] (B)", "[A and] (B)"},
    };
    for (const auto& [command, before, after] : cases) {
        box.Set(before);
        (commands.*command)();
        EXPECT_EQ(after, box.Marked());
        EXPECT_EQ("replace recolour focus select changed", box.done);
    }
    EXPECT_TRUE(questions.boxes.empty());
    EXPECT_TRUE(refused.empty());
}

TEST_F(ExpressionCommandsTest, NothingIsDoneWithoutAFitSelection) {
    box.Set("[(]A)");
    commands.OnExpressionRemoveParenthesis();
    commands.OnExpressionRemoveAll();
    ASSERT_EQ(2u, questions.boxes.size());
    EXPECT_EQ("선택영역을 확인하십시요.", ToUtf8(questions.boxes[0].text));
    EXPECT_EQ("조건검색", ToUtf8(questions.boxes[0].caption));
    EXPECT_EQ(host::Icon::Information, questions.boxes[0].icon);

    box.Set("[A and B]");
    commands.OnExpressionRemoveParenthesis();
    box.Set("(A and [B) or] C");
    commands.OnExpressionNot();
    commands.OnExpressionParenthesize();
    commands.OnExpressionRemoveParenthesis();
    EXPECT_EQ(std::vector<std::string>(3, "B) or"), refused);
    EXPECT_EQ(2u, questions.boxes.size());
    EXPECT_EQ("(A and [B) or] C", box.Marked());
    EXPECT_EQ("", box.done);
}

TEST_F(ExpressionCommandsTest, BracketsThatNoRequestCanCarryAreRefused) {
    const std::string full = std::string(98, '!') + "[A]";
    box.Set(full.c_str());
    commands.OnExpressionParenthesize();
    EXPECT_EQ(full, box.Marked());
    ASSERT_EQ(1u, questions.boxes.size());
    EXPECT_NE(std::string::npos, ToUtf8(questions.boxes[0].text).find("101자"));
}

}  // namespace
}  // namespace jogeon
