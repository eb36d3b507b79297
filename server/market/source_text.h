// The encoding of a source: UTF-8, or the CP949 that the exchange's own files are written in.
#pragma once

#include <string>
#include <string_view>

namespace jogeon::market {

// Whether `bytes` are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

// Turns the texts of one file into UTF-8. The first text that isn't plain ASCII, normally the header's,
// decides for the whole file: a short CP949 text can look like UTF-8 by chance.
class SourceText {
public:
    std::string Decode(std::string_view bytes);

    // The same in quotes for a message: control characters become '?', a long text is cut.
    std::string Quote(std::string_view bytes);

private:
    enum class Encoding { Undecided, Utf8, Cp949 };
    Encoding encoding_ = Encoding::Undecided;
};

}  // namespace jogeon::market
