// The buffer in which request payloads are composed: text in fixed-width fields, one behind the other.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#if defined(__GNUC__)
#define JOGEON_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define JOGEON_PRINTF(text, first)
#endif

namespace jogeon {

// Every Put gives 1, or 0 with the writer untouched when memory can't be had.
class PacketWriter {
public:
    explicit PacketWriter(int blockHint) : blockHint_(blockHint) {}
    virtual ~PacketWriter() = default;

    // `count` copies of `byte`.
    int PutFill(char byte, std::size_t count);

    // `length` bytes from `bytes`. The length is a 16-bit number: 65536 writes nothing.
    int PutBytes(const char* bytes, std::size_t length);

    // `text` up to its first NUL, cut to `width` bytes or followed by blanks to them. The width is a 16-bit
    // number likewise.
    int PutField(std::string_view text, std::size_t width);

    int PutChar(char byte);

    // printf's text, as long as it is: nothing is filled or cut.
    JOGEON_PRINTF(2, 3) int PutFormat(const char* format, ...);

    // Bytes written since construction or the last Detach.
    std::size_t TotalLength() const { return data_.size(); }

    // Gives the bytes away; the writer is empty afterwards. TotalLength is read before this call.
    std::string Detach();

    int BlockHint() const { return blockHint_; }

private:
    std::string data_;
    int blockHint_;
};

// The block hint that every payload of the screen is opened with.
inline constexpr int kPayloadBlockHint = 3;

}  // namespace jogeon
