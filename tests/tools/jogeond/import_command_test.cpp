// Runs the program itself, as a user does.
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/server/market/scratch_folder.h"
#include "tests/tools/jogeond/run_jogeond.h"

namespace jogeon {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

using test::Outcome;

Outcome RunImport(const std::string& arguments) {
    return test::RunJogeond("import " + arguments);
}

class ImportCommand : public testing::Test {
protected:
    ImportCommand() {
        folder_.Write("bars.csv",
                      "date,code,open,high,low,close,volume\n"
                      "2024-03-04,000020,9350,9550,9330,9550,78661\n"
                      "2024-03-05,000020,9350,9550,9330,9550,78662\n"
                      "2024-03-05,000020,0,0,0,9550,0\n"
                      "2024-03-06,000020,1,2,3,4,5\n");
    }

    std::string At(const std::string& name) const { return (folder_ / name).string(); }

    market::ScratchFolder folder_;
};

TEST_F(ImportCommand, WrongUseGetsOneLineAndNoFile) {
    const std::string bars = At("bars.csv");
    ASSERT_EQ(mkfifo(At("pipe").c_str(), 0600), 0);
    const std::pair<std::string, const char*> cases[] = {
        {"", "--out FILE is missing"},
        {bars, "--out FILE is missing"},
        {"--out " + At("m"), "no input"},
        {bars + " --out", "--out needs a value"},
        {"--out " + At("m") + " --fast " + bars, "unknown option --fast"},
        {"--out " + At("m") + " --max-rejects -1 " + bars, "number from 0 up, not \"-1\""},
        {"--out " + At("m") + " --max-rejects=2x " + bars, "number from 0 up, not \"2x\""},
        {"--out " + At("pipe") + " " + bars, "pipe: is no ordinary file"},
        {"--out " + At("m") + " --symbols " + At("none.csv") + " " + bars, "none.csv: can't be opened"},
        {"--out " + At("no/folder/m") + " " + bars, "can't be written"},
        {"--out " + bars + " " + bars, "one of the files to read"},
    };
    const std::string before = folder_.Read("bars.csv");
    for (const auto& [arguments, complaint] : cases) {
        const Outcome outcome = RunImport(arguments);
        EXPECT_EQ(outcome.code, 2) << arguments;
        EXPECT_THAT(outcome.out + outcome.err, HasSubstr("jogeond import: ")) << arguments;
        EXPECT_THAT(outcome.out + outcome.err, HasSubstr(complaint)) << arguments;
        EXPECT_FALSE(std::filesystem::exists(At("m"))) << arguments;
    }
    EXPECT_EQ(folder_.Read("bars.csv"), before);
}

TEST_F(ImportCommand, SaysWhatItDidAndWhatItLeftOut) {
    const Outcome outcome = RunImport("--out=" + At("m") + " " + At("bars.csv"));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.out + outcome.err,
                AllOf(HasSubstr(At("bars.csv") + ":5: rejected: the high is below the low\n"),
                      HasSubstr(At("m") + ": 2 bars of 1 stocks on 2 trading days, 20240304 to 20240305\n"),
                      HasSubstr("  1 lines rejected\n"), HasSubstr("  1 halted days\n"),
                      HasSubstr("given more than once, the last one counts: 000020 on 20240305\n")));
    EXPECT_THAT(folder_.Read("m"), StartsWith("JOGEONM\n"));
    EXPECT_EQ(RunImport("--help").code, 0);
}

TEST_F(ImportCommand, FailureLeavesTheOldFileAndNothingElse) {
    folder_.Write("m", "what was there");
    const Outcome outcome = RunImport("--max-rejects 0 --out " + At("m") + " " + At("bars.csv"));
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.out + outcome.err, HasSubstr("more than 0 lines were rejected; nothing was written"));
    EXPECT_EQ(folder_.Read("m"), "what was there");
    EXPECT_EQ(folder_.Names().size(), 2u);
}

TEST_F(ImportCommand, VerifyTellsAWholeFileFromADamagedOne) {
    ASSERT_EQ(RunImport("--out " + At("m") + " " + At("bars.csv")).code, 0);
    EXPECT_EQ(test::RunJogeond("verify " + At("m")).code, 0);

    std::string bytes = folder_.Read("m");
    bytes[bytes.size() - 64] ^= 1;  // the only stock's value in the last row, before its padding
    folder_.Write("m", bytes);
    const Outcome damaged = test::RunJogeond("verify " + At("m"));
    EXPECT_EQ(damaged.code, 2);
    EXPECT_THAT(damaged.err, StartsWith("jogeond verify: "));
    EXPECT_EQ(test::RunJogeond("verify").code, 2);
}

}  // namespace
}  // namespace jogeon
