#include "tools/jogeond/sets_command.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>

#include "screen/files/atomic_file.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/condition_header.h"
#include "server/store/condition_store.h"
#include "tools/jogeond/sets_arguments.h"
#include "tools/jogeond/sets_reader.h"
#include "tools/jogeond/sets_writer.h"

namespace jogeon {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 2;
constexpr char kStandardInput[] = "standard input";

using store::ConditionStore;

// What ends the command, in one line of UTF-8.
class SetsFailed : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

void LoadCatalogue(const SetsArguments& arguments, Catalogue& catalogue) {
    catalogue.Load(arguments.home / "System", {});
    if (catalogue.Indexes().empty())
        throw SetsFailed("no catalogue in " + (arguments.home / "System").string() +
                         "; --home DIR names the folder that has System in it");
}

// Looking at a store must not make one.
void DemandStore(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        throw SetsFailed(file.string() + ": no such store; --store FILE or --home DIR tells where it is");
}

void PrintList(const SetsArguments& arguments) {
    const store::Listing listing = ConditionStore(arguments.store).ListAll(arguments.user);
    std::cout << arguments.user << ": " << listing.sets.size() << " sets, version " << listing.version
              << '\n';
    for (const store::StoredSet& set : listing.sets)
        std::cout << ZeroPadded(set.number, 2) << "  "
                  << ToUtf8(TrimRight(Read(set.record, condition_header::kName))) << "  ("
                  << ReadNumber(set.record, condition_header::kCount) << ")\n";
}

void Export(const SetsArguments& arguments) {
    Catalogue catalogue;
    LoadCatalogue(arguments, catalogue);
    const sets_text::ConditionLines conditions(catalogue);
    const std::string text =
        sets_text::WriteSets(ConditionStore(arguments.store).ListAll(arguments.user).sets, conditions);
    if (arguments.file.empty())
        std::cout << text;
    else if (!WriteFileAtomically(arguments.file, text))
        throw SetsFailed(arguments.file.string() + ": can't be written");
}

std::string ReadWhole(const std::filesystem::path& file) {
    std::ostringstream text;
    if (file.empty()) {
        text << std::cin.rdbuf();
        return text.str();
    }
    std::ifstream stream(file, std::ios::binary);
    if (!stream || std::filesystem::is_directory(file)) throw SetsFailed(file.string() + ": can't be read");
    if (stream.peek() != std::ifstream::traits_type::eof()) text << stream.rdbuf();
    return text.str();
}

void Import(const SetsArguments& arguments) {
    Catalogue catalogue;
    LoadCatalogue(arguments, catalogue);
    const sets_text::ConditionLines conditions(catalogue);
    const std::string file = arguments.file.empty() ? kStandardInput : arguments.file.string();
    const sets_text::SetsOfText text = sets_text::ReadSets(ReadWhole(arguments.file), file, conditions);
    for (const std::string& warning : text.warnings)
        std::cerr << "jogeond sets: warning: " << warning << '\n';

    ConditionStore store(arguments.store);
    const store::Listing present = store.ListAll(arguments.user);
    const MergeResult merged = MergeSets(arguments.mode, present.sets, text.sets, file);
    std::string version = present.version;
    if (merged.sets != present.sets) {
        const store::Change change = store.ReplaceAll(arguments.user, version, merged.sets);
        if (change.outcome != store::Outcome::Done)
            throw SetsFailed("the user's sets were changed at the same moment; try again");
        version = change.version;
    }
    std::cout << arguments.user << ": " << merged.added << " added, " << merged.replaced << " replaced, "
              << merged.removed << " removed, version " << version << '\n';
}

void Run(const SetsArguments& arguments) {
    if (arguments.action != SetsAction::Import) DemandStore(arguments.store);
    switch (arguments.action) {
        case SetsAction::List:
            return PrintList(arguments);
        case SetsAction::Export:
            return Export(arguments);
        case SetsAction::Import:
            return Import(arguments);
    }
}

void PrintFault(const std::string& lines) {
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) std::cerr << "jogeond sets: " << line << '\n';
}

}  // namespace

int RunSets(const std::vector<std::string>& args) {
    try {
        const SetsArguments arguments = ParseSetsArguments(args);
        if (arguments.help)
            std::cout << kSetsHelp;
        else
            Run(arguments);
        if (!std::cout.flush()) throw SetsFailed("the output can't be written");
        return kDone;
    } catch (const std::exception& error) {
        PrintFault(error.what());
        return kFailed;
    }
}

}  // namespace jogeon
