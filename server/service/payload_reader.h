// A cursor over the bytes of a payload that never leaves them.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace jogeon::service {

// A payload that isn't what its layout says, or holds what can't be; in one line of UTF-8.
class BadRequest : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Everything throws BadRequest where the bytes are not as they must be.
class PayloadReader {
public:
    explicit PayloadReader(std::string_view payload) : rest_(payload) {}

    std::string_view Take(std::size_t width);

    // Digits and nothing else; no field is so wide that they don't fit an int.
    int TakeNumber(std::size_t width);

    // The width of `count` elements, refused before anything is built for a count that can't be true.
    std::string_view TakeList(int count, std::size_t width) {
        return Take(static_cast<std::size_t>(count) * width);
    }

    // There is nothing more.
    void End() const;

private:
    std::string_view rest_;
};

}  // namespace jogeon::service
