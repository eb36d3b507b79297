#include "terminal/trace.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "screen/text/cp949.h"

namespace jogeon::terminal {
namespace {

constexpr std::size_t kBytesPerLine = 32;

// "%...": formatted text, of a form that always fits.
template <typename... Arguments>
std::string Format(const char* format, Arguments... arguments) {
    char text[160];
    std::snprintf(text, sizeof text, format, arguments...);
    return text;
}

std::string HexLine(std::string_view bytes, std::size_t offset) {
    std::string line = Format("  %6zu ", offset);
    for (const char byte : bytes) line += Format(" %02x", static_cast<unsigned char>(byte));
    return line + "\n";
}

}  // namespace

std::string Describe(const TracedPacket& packet, std::size_t limit) {
    const std::string_view shown = std::string_view(packet.payload).substr(0, limit);
    std::string text = Format("%s %s key %02x length %zu\n", packet.isReply ? "<-" : "->",
                              packet.transaction.c_str(), packet.key, packet.payload.size());
    for (std::size_t at = 0; at < shown.size(); at += kBytesPerLine) {
        text += HexLine(shown.substr(at, kBytesPerLine), at);
    }
    std::string readable = ToUtf8(shown);
    std::replace_if(
        readable.begin(), readable.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; }, '.');
    text += "  text [" + readable + "]\n";
    if (shown.size() < packet.payload.size()) {
        text += Format("  ... %zu more bytes\n", packet.payload.size() - shown.size());
    }
    return text;
}

}  // namespace jogeon::terminal
