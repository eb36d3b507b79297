// Where a search on the command line takes its set of conditions from.
//
// Relies on the readers of the saved-condition files. A set of which a part can't be read is refused: a
// search for less than was written would be another search.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "screen/condition/catalogue.h"
#include "screen/condition/saved_index_info.h"

namespace jogeon {

// Why there is no set to search with, in one line of UTF-8.
class NoConditions : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The set of that name (UTF-8) among the user's, else among the firm's, else the user's of that number.
// Throws NoConditions.
std::shared_ptr<CSavedIndexInfo> FindSet(const std::filesystem::path& home, const std::string& user,
                                         const std::string& name, const Catalogue& catalogue);

// The only set of a file, or its first one. A section "Version" before it may be there or not. Throws
// NoConditions.
std::shared_ptr<CSavedIndexInfo> ReadConditionsFile(const std::filesystem::path& file,
                                                    const Catalogue& catalogue);

}  // namespace jogeon
