// Runs the program itself, as a user does.
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace jogeon {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

struct Outcome {
    int exitCode;
    std::string output;  // standard output and standard error as they came
};

Outcome RunImport(const std::string& arguments) {
    const std::string command = std::string(JOGEOND) + " import " + arguments + " 2>&1";
    FILE* const pipe = popen(command.c_str(), "r");
    EXPECT_NE(pipe, nullptr);
    std::string output;
    std::array<char, 4096> buffer;
    while (const std::size_t read = fread(buffer.data(), 1, buffer.size(), pipe))
        output.append(buffer.data(), read);
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

class ImportCommand : public testing::Test {
protected:
    ImportCommand() {
        std::filesystem::create_directories(folder_);
        Write("bars.csv",
              "date,code,open,high,low,close,volume\n"
              "2024-03-04,000020,9350,9550,9330,9550,78661\n"
              "2024-03-05,000020,9350,9550,9330,9550,78662\n"
              "2024-03-05,000020,0,0,0,9550,0\n"
              "2024-03-06,000020,1,2,3,4,5\n");
    }
    ~ImportCommand() override { std::filesystem::remove_all(folder_); }

    std::string At(const std::string& name) const { return (folder_ / name).string(); }
    void Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder_ / name) << bytes;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("jogeon-import-command-" + std::to_string(getpid()));
};

TEST_F(ImportCommand, WrongUseGetsOneLineAndNoFile) {
    const std::string bars = At("bars.csv");
    const std::pair<std::string, const char*> cases[] = {
        {"", "--out FILE is missing"},
        {bars, "--out FILE is missing"},
        {"--out " + At("m"), "no input"},
        {bars + " --out", "--out needs a value"},
        {"--out " + At("m") + " --fast " + bars, "unknown option --fast"},
        {"--out " + At("m") + " --max-rejects -1 " + bars, "number from 0 up, not \"-1\""},
        {"--out " + At("m") + " --max-rejects=2x " + bars, "number from 0 up, not \"2x\""},
        {"--out " + At("m") + " --symbols " + At("none.csv") + " " + bars, "none.csv: can't be opened"},
        {"--out " + At("no/folder/m") + " " + bars, "can't be written"},
        {"--out " + bars + " " + bars, "one of the files to read"},
    };
    const std::string before = Read("bars.csv");
    for (const auto& [arguments, complaint] : cases) {
        const Outcome outcome = RunImport(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << arguments;
        EXPECT_THAT(outcome.output, HasSubstr("jogeond import: ")) << arguments;
        EXPECT_THAT(outcome.output, HasSubstr(complaint)) << arguments;
        EXPECT_FALSE(std::filesystem::exists(At("m"))) << arguments;
    }
    EXPECT_EQ(Read("bars.csv"), before);
}

TEST_F(ImportCommand, SaysWhatItDidAndWhatItLeftOut) {
    const Outcome outcome = RunImport("--out=" + At("m") + " " + At("bars.csv"));
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.output,
                AllOf(HasSubstr(At("bars.csv") + ":5: rejected: the high is below the low\n"),
                      HasSubstr(At("m") + ": 2 bars of 1 stocks on 2 trading days, 20240304 to 20240305\n"),
                      HasSubstr("  1 lines rejected\n"), HasSubstr("  1 halted days\n"),
                      HasSubstr("given more than once, the last one counts: 000020 on 20240305\n")));
    EXPECT_THAT(Read("m"), StartsWith("JOGEONM\n"));
    EXPECT_EQ(RunImport("--help").exitCode, 0);
}

TEST_F(ImportCommand, FailureLeavesTheOldFileAndNothingElse) {
    Write("m", "what was there");
    const Outcome outcome = RunImport("--max-rejects 0 --out " + At("m") + " " + At("bars.csv"));
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.output, HasSubstr("more than 0 lines were rejected; nothing was written"));
    EXPECT_EQ(Read("m"), "what was there");
    const std::filesystem::directory_iterator files(folder_);
    EXPECT_EQ(std::count_if(begin(files), end(files), [](const auto&) { return true; }), 2);
}

}  // namespace
}  // namespace jogeon
