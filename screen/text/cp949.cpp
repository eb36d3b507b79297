#include "screen/text/cp949.h"

#include <cerrno>
#include <memory>
#include <stdexcept>

#include <iconv.h>

namespace jogeon {
namespace {

struct IconvCloser {
    using pointer = iconv_t;
    void operator()(iconv_t handle) const { iconv_close(handle); }
};

// One conversion in one direction. iconv keeps state in its handle, so each thread has its own.
class Converter {
public:
    Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {
        if (handle_.get() == reinterpret_cast<iconv_t>(-1)) {
            static_cast<void>(handle_.release());
            throw std::runtime_error(std::string("this system's iconv does not know ") + from + " or " + to);
        }
    }

    // Converts all of `text`. What can't be converted is handed to `replace(rest)`, which returns the number
    // of bytes to skip after having put its own text in `out`, or 0 to give up.
    template <typename Replace>
    bool Run(std::string_view text, std::string& out, Replace replace) {
        iconv(handle_.get(), nullptr, nullptr, nullptr, nullptr);
        char* in = const_cast<char*>(text.data());
        std::size_t left = text.size();
        while (left > 0) {
            char buffer[4096];
            char* to = buffer;
            std::size_t room = sizeof buffer;
            const std::size_t result = iconv(handle_.get(), &in, &left, &to, &room);
            const int error = errno;
            out.append(buffer, sizeof buffer - room);
            if (result != static_cast<std::size_t>(-1) || error == E2BIG) continue;
            const std::size_t skip = replace(std::string_view(in, left));
            if (skip == 0) return false;
            in += skip;
            left -= skip;
        }
        return true;
    }

private:
    std::unique_ptr<void, IconvCloser> handle_;
};

Converter& Encoder() {
    thread_local Converter converter("CP949", "UTF-8");
    return converter;
}

// Bytes of the UTF-8 character that `rest` begins with; 1 for a stray byte.
std::size_t Utf8Length(std::string_view rest) {
    std::size_t length = 1;
    if (static_cast<unsigned char>(rest.front()) < 0xC0) return length;
    while (length < rest.size() && (static_cast<unsigned char>(rest[length]) & 0xC0) == 0x80) ++length;
    return length;
}

}  // namespace

std::optional<std::string> TryToCp949(std::string_view utf8) {
    std::string out;
    if (!Encoder().Run(utf8, out, [](std::string_view) { return std::size_t{0}; })) return std::nullopt;
    return out;
}

std::string ToCp949(std::string_view utf8) {
    std::string out;
    Encoder().Run(utf8, out, [&](std::string_view rest) {
        out += '?';
        return Utf8Length(rest);
    });
    return out;
}

std::string ToUtf8(std::string_view cp949) {
    thread_local Converter decoder("UTF-8", "CP949");
    std::string out;
    decoder.Run(cp949, out, [&](std::string_view) {
        out += "\xEF\xBF\xBD";
        return std::size_t{1};
    });
    return out;
}

std::string operator""_cp949(const char* utf8, std::size_t length) {
    return ToCp949(std::string_view(utf8, length));
}

std::size_t CharacterLength(std::string_view cp949, std::size_t at) {
    return static_cast<unsigned char>(cp949[at]) >= 0x81 && at + 1 < cp949.size() ? 2 : 1;
}

std::string_view CutToBytes(std::string_view cp949, std::size_t bytes) {
    if (cp949.size() <= bytes) return cp949;
    std::size_t end = 0;
    while (end < bytes) {
        const std::size_t next = end + CharacterLength(cp949, end);
        if (next > bytes) break;
        end = next;
    }
    return cp949.substr(0, end);
}

}  // namespace jogeon
