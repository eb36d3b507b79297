#include "terminal/options.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace jogeon::terminal {
namespace {

struct Outcome {
    std::optional<Options> options;
    int status = 0;
    std::string said;
};

Outcome Read(const QStringList& arguments) {
    Outcome outcome;
    testing::internal::CaptureStderr();
    outcome.options = ReadOptions(QStringList("jogeon") + arguments, &outcome.status);
    outcome.said = testing::internal::GetCapturedStderr();
    return outcome;
}

TEST(OptionsTest, WrongUseIsToldInOneLine) {
    for (const QStringList& wrong : {QStringList{"--user", "too_long_9"},
                                     {"--user", "a b"},
                                     {"--user", "../x"},
                                     {"--market", "/no/such/file"},
                                     {"--server", "10.0.0.1:50150"},
                                     {"--server", "127.0.0.1:0"},
                                     {"--server", "127.0.0.1:50150", "--store", "s.sqlite"},
                                     {"--server", "127.0.0.1:50150", "--market", __FILE__},
                                     {"--lang", "fr"},
                                     {"--theme", "pink"},
                                     {"--colour"},
                                     {"stray"}}) {
        const Outcome outcome = Read(wrong);
        EXPECT_FALSE(outcome.options) << wrong.join(' ').toStdString();
        EXPECT_EQ(2, outcome.status);
        EXPECT_EQ(1, std::count(outcome.said.begin(), outcome.said.end(), '\n')) << outcome.said;
    }
}

TEST(OptionsTest, GoodOptionsAreTaken) {
    QTemporaryFile market;
    ASSERT_TRUE(market.open());
    const Outcome outcome =
        Read({"--user", "kim_7", "--home", "h", "--market", market.fileName(), "--store", "s.sqlite",
              "--open", "정배열", "--trace", "--lang", "en", "--theme", "dark"});
    ASSERT_TRUE(outcome.options) << outcome.said;
    EXPECT_EQ("kim_7", outcome.options->user);
    EXPECT_EQ("정배열", outcome.options->openSet);
    EXPECT_EQ(market.fileName(), outcome.options->market);
    EXPECT_EQ("s.sqlite", outcome.options->store);
    EXPECT_TRUE(outcome.options->trace);
    EXPECT_EQ("en", outcome.options->lang);
    EXPECT_EQ("dark", outcome.options->theme);
    EXPECT_EQ("guest", Read({}).options->user);
    EXPECT_EQ("127.0.0.1:50150", Read({"--server", "127.0.0.1:50150"}).options->server);
}

}  // namespace
}  // namespace jogeon::terminal
