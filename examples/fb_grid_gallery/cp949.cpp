#include "cp949.h"

#include <cerrno>
#include <stdexcept>

#include <iconv.h>

namespace {

class Converter {
public:
    Converter() : handle_(iconv_open("CP949", "UTF-8")) {
        if (handle_ == reinterpret_cast<iconv_t>(-1)) throw std::runtime_error("iconv knows no CP949");
    }
    ~Converter() { iconv_close(handle_); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    std::string Convert(std::string_view utf8) const {
        std::string out;
        char* in = const_cast<char*>(utf8.data());  // iconv only reads it
        std::size_t left = utf8.size();
        while (left > 0) {
            char buffer[1024];
            char* to = buffer;
            std::size_t room = sizeof buffer;
            const bool failed = iconv(handle_, &in, &left, &to, &room) == static_cast<std::size_t>(-1);
            const bool full = failed && errno == E2BIG;
            out.append(buffer, sizeof buffer - room);
            if (!failed || full) continue;
            out += '?';
            SkipCharacter(in, left);
        }
        return out;
    }

private:
    static void SkipCharacter(char*& in, std::size_t& left) {
        do {
            ++in;
            --left;
        } while (left > 0 && (static_cast<unsigned char>(*in) & 0xC0) == 0x80);
    }

    iconv_t handle_;
};

}  // namespace

std::string Cp949(std::string_view utf8) {
    static const Converter converter;
    return converter.Convert(utf8);
}
