#include "terminal/host/questions.h"

#include <cstdio>

#include "screen/text/cp949.h"

namespace jogeon::terminal {

host::Answer PrintedQuestions::Ask(const host::Box& box) {
    std::fprintf(stderr, "[%s] %s\n", ToUtf8(box.caption).c_str(), ToUtf8(box.text).c_str());
    if (box.buttons == host::Buttons::YesNoCancel) return host::Answer::Cancel;
    return box.buttons == host::Buttons::YesNo ? host::Answer::No : host::Answer::Ok;
}

bool PrintedQuestions::Run(const std::string& dialog, void*) {
    std::fprintf(stderr, "[%s]\n", dialog.c_str());
    return false;
}

std::optional<std::filesystem::path> PrintedQuestions::AskSavePath(const host::FileQuestion& question) {
    std::fprintf(stderr, "[%s]\n", ToUtf8(question.filterName).c_str());
    return std::nullopt;
}

}  // namespace jogeon::terminal
