#include "tools/jogeond/sets_words.h"

#include <algorithm>

#include "screen/text/bytes.h"

namespace jogeon::sets_text {

std::string Quote(std::string_view text) {
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

bool Scanner::Take(char c) {
    if (!rest_.starts_with(c)) return false;
    rest_.remove_prefix(1);
    SkipBlanks();
    return true;
}

std::string_view Scanner::UpTo(std::string_view ends) {
    const std::string_view piece = rest_.substr(0, rest_.find_first_of(ends));
    rest_.remove_prefix(piece.size());
    return Trim(piece);
}

std::string Scanner::TakeQuoted() {
    if (!AtQuote()) throw BadText("a text in quotation marks must stand here");
    std::string text;
    for (std::size_t i = 1; i < rest_.size(); ++i) {
        if (rest_[i] == '"') {
            rest_.remove_prefix(i + 1);
            SkipBlanks();
            return text;
        }
        if (rest_[i] == '\\' && ++i == rest_.size()) break;
        text += rest_[i];
    }
    throw BadText("a quotation mark is missing at the end");
}

void Scanner::SkipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
}

}  // namespace jogeon::sets_text
