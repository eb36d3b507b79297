#include "screen/files/profile_text.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "screen/files/atomic_file.h"
#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

class ProfileTextTest : public testing::Test {
protected:
    std::string Read(std::string_view section, std::string_view key) const {
        return ReadProfileText(file_, section, key, "default");
    }

    test::TempFolder folder_;
    std::filesystem::path file_ = folder_.Path() / "settings.dat";
};

TEST_F(ProfileTextTest, ReadsOneValue) {
    EXPECT_EQ(Read("A", "x"), "default");
    test::WriteBytes(file_,
                     "x=none\n;[A]\n [a ] \r\n;x=comment\r\n X = 1 = 2 \r\ny=\nnothing\n"
                     "[B]\nx=3\n[A]\nz=4\nlast=5");
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"A", "x", "1 = 2"},   {"a", "X", "1 = 2"},    {"A", "y", ""},
        {"b", "x", "3"},       {"A", "z", "default"},  {"A", "nothing", "default"},
        {"C", "x", "default"}, {"A", ";x", "default"}, {"", "x", "default"}};
    for (const auto& [section, key, value] : cases)
        EXPECT_EQ(Read(section, key), value) << section << " " << key;
}

TEST_F(ProfileTextTest, WritesOneValueAndKeepsTheRest) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "[S]\r\nkey=v\r\n"},
        {"no end", "no end\r\n[S]\r\nkey=v\r\n"},
        {"; c\n[s]\nother = 1\nKEY = old\n\n[t]\nkey=t\n", "; c\n[s]\nother = 1\nkey=v\r\n\n[t]\nkey=t\n"},
        {"[s]\r\na=1\r\n\r\n[t]\r\n", "[s]\r\na=1\r\nkey=v\r\n\r\n[t]\r\n"},
        {"[s]", "[s]\r\nkey=v\r\n"},
        {"[t]\nkey=1\n", "[t]\nkey=1\n[S]\r\nkey=v\r\n"},
    };
    for (const auto& [before, after] : cases) {
        test::WriteBytes(file_, before);
        EXPECT_TRUE(WriteProfileText(file_, "S", "key", "v"));
        EXPECT_EQ(test::ReadBytes(file_), after) << before;
        EXPECT_EQ(Read("S", "key"), "v");
    }
}

TEST_F(ProfileTextTest, APipeIsNeitherWaitedForNorReplaced) {
    ASSERT_EQ(0, mkfifo(file_.c_str(), 0600));
    EXPECT_EQ(Read("A", "x"), "default");
    EXPECT_FALSE(WriteProfileText(file_, "A", "x", "1"));
    EXPECT_TRUE(std::filesystem::is_fifo(file_));
}

TEST_F(ProfileTextTest, MakesTheFileAndItsFolder) {
    file_ = folder_.Path() / "User" / "settings.dat";
    EXPECT_TRUE(WriteProfileText(file_, "S", "key", ""));
    EXPECT_EQ(test::ReadBytes(file_), "[S]\r\nkey=\r\n");
    EXPECT_EQ(Read("S", "key"), "");
}

TEST_F(ProfileTextTest, RefusesWhatItCouldNotReadBack) {
    test::WriteBytes(file_, "[S]\nkey=old\n");
    EXPECT_FALSE(WriteProfileText(file_, "S", "key", "a\n[T]"));
    EXPECT_FALSE(WriteProfileText(file_, "S", "a=b", "v"));
    EXPECT_FALSE(WriteProfileText(file_, "S]", "key", "v"));
    for (const char* key : {"", " ", ";key", "[key"}) EXPECT_FALSE(WriteProfileText(file_, "S", key, "v"));
    {
        const FileFault fault(FileStep::Rename);
        EXPECT_FALSE(WriteProfileText(file_, "S", "key", "new"));
    }
    EXPECT_FALSE(WriteProfileText(folder_.Path(), "S", "key", "v"));  // a folder is no file
    EXPECT_EQ(test::ReadBytes(file_), "[S]\nkey=old\n");
}

}  // namespace
}  // namespace jogeon
