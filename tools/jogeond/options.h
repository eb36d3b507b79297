// The options of one command line: "--name value", "--name=value", flags, and words that belong to none.
//
// Relies on nothing. What isn't a known option is an error, never passed over.
#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon {

// What is wrong with a command line, in one line for the user.
class BadOptions : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct OptionSpec {
    std::string_view name;  // with its dashes
    bool takesValue = true;
};

class Options {
public:
    // Throws BadOptions for an unknown option, one given twice, one without its value, a flag with one, and
    // for more than `mostWords` words that belong to no option. `command` is named where help is offered.
    Options(const std::vector<std::string>& args, std::span<const OptionSpec> known, std::string_view command,
            std::size_t mostWords = 0);

    bool Has(std::string_view name) const { return values_.count(name) != 0; }

    // The value of an option, `missing` where it isn't given.
    std::string Get(std::string_view name, std::string_view missing = "") const;

    // The words that belong to no option, in order.
    const std::vector<std::string>& Words() const { return words_; }

private:
    std::vector<std::string> words_;
    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace jogeon
