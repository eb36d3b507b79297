#include "tools/jogeond/options.h"

#include <algorithm>

namespace jogeon {
namespace {

const OptionSpec& Find(std::span<const OptionSpec> known, const std::string& name, std::string_view command) {
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&name](const OptionSpec& option) { return option.name == name; });
    if (found == known.end())
        throw BadOptions("unknown option " + name + "; \"" + std::string(command) + " --help\" lists them");
    return *found;
}

}  // namespace

Options::Options(const std::vector<std::string>& args, std::span<const OptionSpec> known,
                 std::string_view command, std::size_t mostWords) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (!args[i].starts_with("--") && words_.size() < mostWords) {
            words_.push_back(args[i]);
            continue;
        }
        if (!args[i].starts_with("--"))
            throw BadOptions("\"" + args[i] + "\" belongs to no option; \"" + std::string(command) +
                             " --help\" lists them");
        const std::size_t equals = args[i].find('=');
        const std::string name = args[i].substr(0, equals);
        const OptionSpec& option = Find(known, name, command);
        std::string value;
        if (equals != std::string::npos) {
            if (!option.takesValue) throw BadOptions(name + " takes no value");
            value = args[i].substr(equals + 1);
        } else if (option.takesValue) {
            if (i + 1 == args.size()) throw BadOptions(name + " needs a value behind it");
            value = args[++i];
        }
        if (!values_.emplace(name, std::move(value)).second) throw BadOptions(name + " is given twice");
    }
}

std::string Options::Get(std::string_view name, std::string_view missing) const {
    const auto found = values_.find(name);
    return found == values_.end() ? std::string(missing) : found->second;
}

}  // namespace jogeon
