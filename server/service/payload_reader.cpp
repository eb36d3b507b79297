#include "server/service/payload_reader.h"

#include <algorithm>

#include "screen/text/bytes.h"
#include "server/engine/universe.h"

namespace jogeon::service {

std::string_view PayloadReader::Take(std::size_t width) {
    if (rest_.size() < width) throw BadRequest("the request ends too early");
    const std::string_view field = rest_.substr(0, width);
    rest_.remove_prefix(width);
    return field;
}

int PayloadReader::TakeNumber(std::size_t width) {
    const std::string_view digits = Take(width);
    const bool ok = std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!ok) throw BadRequest(engine::Quoted(digits) + " is no number");
    return Atoi(digits);
}

void PayloadReader::End() const {
    if (!rest_.empty()) throw BadRequest("the request goes on behind its end");
}

}  // namespace jogeon::service
