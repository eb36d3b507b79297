#include "screen/transactions/packet_writer.h"

#include <cstdarg>
#include <cstdio>
#include <new>
#include <stdexcept>
#include <utility>

#include "screen/text/bytes.h"

namespace jogeon {
namespace {

constexpr std::size_t kLengthModulus = 65536;  // lengths and widths are 16-bit numbers

// Runs an append that leaves the string untouched when it fails; 1 or 0.
template <typename Append>
int Try(Append append) {
    try {
        append();
        return 1;
    } catch (const std::bad_alloc&) {
        return 0;
    } catch (const std::length_error&) {
        return 0;
    }
}

}  // namespace

int PacketWriter::PutFill(char byte, std::size_t count) {
    return Try([&] { data_.append(count, byte); });
}

int PacketWriter::PutBytes(const char* bytes, std::size_t length) {
    return Try([&] { data_.append(bytes, length % kLengthModulus); });
}

int PacketWriter::PutField(std::string_view text, std::size_t width) {
    const std::string_view terminated = text.substr(0, text.find('\0'));
    return Try([&] { data_ += LeftIn(terminated, width % kLengthModulus); });
}

int PacketWriter::PutChar(char byte) {
    return Try([&] { data_.push_back(byte); });
}

int PacketWriter::PutFormat(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    const int done = length < 0 ? 0 : Try([&] {
        std::string text(static_cast<std::size_t>(length) + 1, '\0');
        std::vsnprintf(text.data(), text.size(), format, arguments);
        data_.append(text, 0, static_cast<std::size_t>(length));
    });
    va_end(arguments);
    return done;
}

std::string PacketWriter::Detach() {
    return std::exchange(data_, {});
}

}  // namespace jogeon
