#include "server/store/condition_store.h"

#include <algorithm>
#include <csignal>
#include <functional>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "tests/server/market/scratch_folder.h"

namespace jogeon::store {
namespace {

using market::ScratchFolder;

class ConditionStoreTest : public testing::Test {
protected:
    // The user's sets as "number record", joined by commas, behind their version.
    std::string Sets(const std::string& user = "kim") {
        const Listing listing = store.ListAll(user);
        std::string text = listing.version;
        for (const StoredSet& set : listing.sets)
            text += ", " + std::to_string(set.number) + " " + set.record;
        return text;
    }

    ScratchFolder folder;
    const std::filesystem::path file = folder / "deep/sets.sqlite";
    ConditionStore store{file};
};

TEST_F(ConditionStoreTest, EachChangeGivesTheNextVersion) {
    EXPECT_EQ(Sets(), "000.000");
    const Change added = store.Add("kim", "000.000", "a");
    EXPECT_EQ(added.outcome, Outcome::Done);
    EXPECT_EQ(added.version, "000.001");
    EXPECT_EQ(added.number, 0);
    store.Put("kim", "000.001", {7, "b"});
    store.Put("kim", "000.002", {0, "c"});
    EXPECT_EQ(Sets(), "000.003, 0 c, 7 b");
    EXPECT_EQ(store.Add("kim", "000.003", "d").number, 1);
    EXPECT_EQ(store.Remove("kim", "000.004", 0).outcome, Outcome::Done);
    EXPECT_EQ(store.Add("kim", "000.005", "e").number, 0) << "the lowest free number";
    EXPECT_EQ(Sets(), "000.006, 0 e, 1 d, 7 b");
    EXPECT_EQ(store.Reorder("kim", "000.006", {7, 0, 1}).version, "000.007");
    EXPECT_EQ(Sets(), "000.007, 0 b, 1 e, 2 d");
    store.ReplaceAll("kim", "000.007", {{98, "x"}, {3, "y"}});
    EXPECT_EQ(Sets(), "000.008, 3 y, 98 x");
    EXPECT_EQ(Sets("lee"), "000.000") << "another user's sets are his own";
}

TEST_F(ConditionStoreTest, RefusedCommandsChangeNothing) {
    store.ReplaceAll("kim", "000.000", {{0, "a"}, {5, "b"}});
    struct Case {
        Outcome outcome;
        std::function<Change()> command;
    };
    const Case cases[] = {
        {Outcome::WrongVersion, [&] { return store.Add("kim", "000.000", "x"); }},
        {Outcome::WrongVersion,
         [&] {
             return store.Put("kim", "000.002", {0, "x"});
         }},
        {Outcome::WrongVersion, [&] { return store.Remove("kim", "", 0); }},
        {Outcome::WrongVersion,
         [&] {
             return store.Reorder("kim", "x", {5, 0});
         }},
        {Outcome::WrongVersion, [&] { return store.ReplaceAll("kim", "000.000", {}); }},
        {Outcome::NoSuchSet, [&] { return store.Remove("kim", "000.001", 1); }},
        {Outcome::NoSuchSet, [&] { return store.Remove("lee", "000.000", 0); }},
        {Outcome::NotEverySet, [&] { return store.Reorder("kim", "000.001", {0}); }},
        {Outcome::NotEverySet,
         [&] {
             return store.Reorder("kim", "000.001", {0, 0});
         }},
        {Outcome::NotEverySet,
         [&] {
             return store.Reorder("kim", "000.001", {0, 5, 5});
         }},
        {Outcome::NotEverySet,
         [&] {
             return store.Reorder("kim", "000.001", {0, 4});
         }},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.command().outcome, c.outcome) << &c - cases;
        EXPECT_EQ(Sets(), "000.001, 0 a, 5 b") << &c - cases;
    }
    EXPECT_THROW(store.Put("kim", "000.001", {99, "x"}), StoreError);
    EXPECT_EQ(Sets(), "000.001, 0 a, 5 b");
}

TEST_F(ConditionStoreTest, A100thSetFindsNoNumber) {
    std::vector<StoredSet> sets;
    for (int number = 0; number < 99; ++number) sets.push_back({number, "r"});
    store.ReplaceAll("kim", "000.000", sets);
    EXPECT_EQ(store.Add("kim", "000.001", "x").outcome, Outcome::NoFreeNumber);
    EXPECT_EQ(store.Put("kim", "000.001", {98, "x"}).outcome, Outcome::Done);
    EXPECT_EQ(store.ListAll("kim").sets.size(), 99u);
}

TEST_F(ConditionStoreTest, AListIsCutBehindTheBytesAskedFor) {
    store.ReplaceAll("kim", "000.000", {{1, "aaaa"}, {2, "bbbb"}, {4, "cccccccc"}});
    const auto part = [&](int from, std::size_t bytes) {
        const Listing listing = store.List("kim", from, bytes);
        std::string text;
        for (const StoredSet& set : listing.sets) text += std::to_string(set.number);
        return text + (listing.more ? "+" : "");
    };
    EXPECT_EQ(part(0, 8), "12+");
    EXPECT_EQ(part(0, 7), "1+");
    EXPECT_EQ(part(0, 0), "1+") << "one at least";
    EXPECT_EQ(part(3, 0), "4");
    EXPECT_EQ(part(0, 16), "124");
    EXPECT_EQ(part(5, 16), "");
}

TEST_F(ConditionStoreTest, TheLastVersionIsFollowedByTheFirstThatSomebodyHas) {
    store.Add("kim", "000.000", "a");
    Database(file).Run("UPDATE users SET version = 999998");
    EXPECT_EQ(store.Put("kim", "999.998", {0, "b"}).version, "999.999");
    EXPECT_EQ(store.Put("kim", "999.999", {0, "c"}).version, "000.001");
}

TEST(StoreVersionTest, IsThreeDigitsAPointAndThreeDigits) {
    EXPECT_TRUE(IsVersion("000.000"));
    EXPECT_TRUE(IsVersion("123.999"));
    for (const char* wrong : {"", "000.00", "000.0000", "0000000", "00a.000", "000.-01", " 00.000"})
        EXPECT_FALSE(IsVersion(wrong)) << wrong;
}

// What opening the file is refused with; empty if it is opened.
std::string Refusal(const std::filesystem::path& file) {
    try {
        ConditionStore store(file);
    } catch (const StoreError& error) {
        return error.what();
    }
    return {};
}

TEST(StoreFileTest, AnEmptyFileBecomesAStoreAndAStoreStaysOne) {
    const ScratchFolder folder;
    const std::filesystem::path file = folder.Write("sets.sqlite", "");
    EXPECT_EQ(ConditionStore(file).Add("kim", "000.000", "a").version, "000.001");
    EXPECT_EQ(ConditionStore(file).ListAll("kim").sets, (std::vector<StoredSet>{{0, "a"}}));
    EXPECT_EQ(folder.Names(), std::set<std::string>{"sets.sqlite"})
        << "nothing is left beside a closed store";
}

TEST(StoreFileTest, WhatIsNoStoreIsRefusedInOneLine) {
    const ScratchFolder folder;
    const auto expectRefusal = [&](const std::filesystem::path& file, const std::string& words) {
        const std::string said = Refusal(file);
        EXPECT_TRUE(said.starts_with(file.string() + ": ")) << said;
        EXPECT_NE(said.find(words), said.npos) << said;
        EXPECT_EQ(said.find('\n'), said.npos) << said;
    };
    expectRefusal(folder.Write("text", std::string(5000, 'x')), "no condition store, or is damaged");
    expectRefusal(folder / "", "can't be opened");
    EXPECT_NE(Refusal(folder / "text/sets").find("text: can't be made a folder"), std::string::npos);

    Database(folder / "other").Run("CREATE TABLE notes (text)");
    expectRefusal(folder / "other", "another program");
    ConditionStore(folder / "newer").Add("kim", "000.000", "a");
    Database(folder / "newer").Run("PRAGMA user_version = 3");
    expectRefusal(folder / "newer", "newer jogeon (form 3; this one knows 2)");
    if (geteuid() != 0) {  // who may do everything
        ConditionStore(folder / "readonly").Add("kim", "000.000", "a");
        std::filesystem::permissions(folder / "readonly", std::filesystem::perms::owner_read);
        expectRefusal(folder / "readonly", "may not be written");
    }
}

TEST(StoreFileTest, ADamagedPageIsFoundWhenTheFileIsOpened) {
    const ScratchFolder folder;
    {
        ConditionStore store(folder / "sets");
        for (int i = 0; i < 40; ++i) store.Put("kim", store.Version("kim"), {i, std::string(2000, 'r')});
    }
    std::string bytes = folder.Read("sets");
    for (std::size_t at = 4096; at < bytes.size(); at += 4096) bytes.replace(at, 100, 100, '\x5a');
    folder.Write("sets", bytes);
    EXPECT_NE(Refusal(folder / "sets").find("sets: is damaged"), std::string::npos)
        << Refusal(folder / "sets");
}

TEST(StoreFileTest, NothingIsWrittenToAFileThatIsGone) {
    const ScratchFolder folder;
    ConditionStore(folder / "backup").Add("kim", "000.000", "old");
    ConditionStore store(folder / "sets");
    store.Add("kim", "000.000", "a");
    std::filesystem::rename(folder / "backup", folder / "sets");
    EXPECT_THROW(store.Add("kim", "000.001", "b"), StoreError);
    std::filesystem::remove(folder / "sets");
    EXPECT_THROW(store.Remove("kim", "000.001", 0), StoreError);
}

// Runs `work` in a process of its own.
pid_t Fork(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    return child;
}

TEST(StoreProcessesTest, AnAnsweredChangeSurvivesAKill) {
    const ScratchFolder folder;
    int pipe[2];
    ASSERT_EQ(::pipe(pipe), 0);
    const pid_t child = Fork([&] {
        ConditionStore store(folder / "sets");
        for (int i = 0;; ++i) {
            const std::string version = store.Put("kim", store.Version("kim"), {i % 99, "r"}).version;
            if (write(pipe[1], version.data(), 7) != 7) return;
        }
    });
    close(pipe[1]);
    char version[8] = {};
    for (int i = 0; i < 50; ++i) ASSERT_EQ(read(pipe[0], version, 7), 7);
    kill(child, SIGKILL);
    while (read(pipe[0], version, 7) == 7) continue;
    close(pipe[0]);
    waitpid(child, nullptr, 0);
    EXPECT_GE(ConditionStore(folder / "sets").Version("kim"), version);
}

TEST(StoreProcessesTest, SeveralProcessesLoseNoChangeOfEachOther) {
    const ScratchFolder folder;
    constexpr int kChanges = 25;
    const auto work = [&](int first) {
        ConditionStore store(folder / "sets");
        for (int done = 0; done < kChanges;) {
            const StoredSet set{first + done, std::to_string(first + done)};
            if (store.Put("kim", store.Version("kim"), set).outcome == Outcome::Done) ++done;
        }
    };
    std::vector<pid_t> children;
    for (int child = 0; child < 3; ++child) children.push_back(Fork([&] { work(child * kChanges); }));
    for (pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    const Listing listing = ConditionStore(folder / "sets").ListAll("kim");
    EXPECT_EQ(listing.version, "000.075");
    ASSERT_EQ(listing.sets.size(), 75u);
    for (const StoredSet& set : listing.sets) EXPECT_EQ(set.record, std::to_string(set.number));
}

}  // namespace
}  // namespace jogeon::store
