#include "screen/files/ini_mem_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/files/atomic_file.h"
#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

using test::ReadBytes;
using test::WriteBytes;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class IniMemFileTest : public testing::Test {
protected:
    bool OnDisk() const { return std::filesystem::exists(path_); }

    // What a save of the object writes now.
    std::string Saved(CIniMemFile& file) const {
        const std::string copy = (folder_.Path() / "copy.dat").string();
        file.WriteInt("", "", 0, 0);  // writes nothing, marks it changed
        EXPECT_EQ(1, file.SaveIniFile(copy));
        return ReadBytes(copy);
    }

    test::TempFolder folder_;
    const std::string path_ = (folder_.Path() / "test.dat").string();
};

std::vector<std::string> Sections(const CIniMemFile& file) {
    std::vector<std::string> names = {"left over"};
    file.GetSections(names);
    return names;
}

std::vector<std::string> Keys(const CIniMemFile& file, std::string_view section) {
    std::vector<std::string> keys = {"left over"};
    file.GetKeys(section, keys);
    return keys;
}

TEST_F(IniMemFileTest, ReadsLinesByTheirForm) {
    const std::tuple<std::string_view, int, std::string_view> cases[] = {
        {"", 0, ""},
        {"a=1\n", 0, ""},
        {"; only\r\n;comments", 0, ""},
        {"[s]", 1, "[s]\r\n\r\n"},
        {"[]\na=1", 1, "[]\r\na=1\r\n\r\n"},
        {"[ s ]\n", 1, "[ s ]\r\n\r\n"},
        {"[s\na=1\n", 0, ""},
        {"[s]\na=1\n[t\nb=2\n[u]\nc=3", 1, "[s]\r\na=1\r\n\r\n[u]\r\nc=3\r\n\r\n"},
        {"[s]\n[s];x\na=1", 1, "[s]\r\n\r\n"},
        {"[s]\r\n=x\r\na\r\nb=\r\n", 1, "[s]\r\nb=\r\n\r\n"},
        {"\n\r\r\n [s] \t\n\t a=1 \v\n;b=2\n", 1, "[s]\r\na=1\r\n\r\n"},
        {"[s]\ra = b \rurl=x?y=1;z", 1, "[s]\r\na = b\r\nurl=x?y=1;z\r\n\r\n"},
        {"[s]\nz=1\na=2\nm=3\n", 1, "[s]\r\nz=1\r\na=2\r\nm=3\r\n\r\n"},
        {"[s]\na=1\nb=2\na=3\n", 1, "[s]\r\na=3\r\nb=2\r\na=3\r\n\r\n"},
        {"[s]\na=1\n[s]\nb=2\n", 1, "[s]\r\nb=2\r\n\r\n[s]\r\nb=2\r\n\r\n"},
        {std::string_view("[s]\na=1\0[t]\nb=2", 15), 1, "[s]\r\na=1\r\n\r\n"},
    };
    for (const auto& [read, result, saved] : cases) {
        SCOPED_TRACE(read);
        WriteBytes(path_, read);
        CIniMemFile file;
        EXPECT_EQ(result, file.LoadIniFile(path_, 1));
        if (saved.empty()) {
            EXPECT_THAT(Sections(file), IsEmpty());
        } else {
            EXPECT_EQ(saved, Saved(file));
        }
    }
}

TEST_F(IniMemFileTest, WithoutKeyOrderAKeyIsWrittenOnce) {
    WriteBytes(path_, "[s]\nz=1\na=2\nz=3\n[t]\n");
    CIniMemFile file(path_, 0);
    EXPECT_THAT(Keys(file, "s"), UnorderedElementsAre("a", "z"));
    file.WriteString("t", "k", "v");
    EXPECT_EQ(1, file.SaveIniFile());
    const std::string bytes = ReadBytes(path_);
    EXPECT_THAT(bytes, testing::AnyOf("[s]\r\na=2\r\nz=3\r\n\r\n[t]\r\nk=v\r\n\r\n",
                                      "[s]\r\nz=3\r\na=2\r\n\r\n[t]\r\nk=v\r\n\r\n"));
}

TEST_F(IniMemFileTest, AFailedLoadKeepsTheContentsAndTakesThePath) {
    CIniMemFile file;
    file.WriteString("s", "k", "v");
    EXPECT_EQ(0, file.LoadIniFile(folder_.Path().string(), 1));  // a folder can't be read
    EXPECT_EQ(0, file.LoadIniFile(path_, 1));
    EXPECT_EQ("v", file.GetString("s", "k", ""));
    EXPECT_EQ(1, file.SaveIniFile());
    EXPECT_EQ("[s]\r\nk=v\r\n\r\n", ReadBytes(path_));
}

TEST_F(IniMemFileTest, AFileBeyondAllMeasureCannotBeRead) {
    WriteBytes(path_, "[s]\n");
    std::error_code error;
    std::filesystem::resize_file(path_, std::uintmax_t{4} << 40, error);  // no disk is used for it
    if (error) GTEST_SKIP() << "this file system makes no such file: " << error.message();
    CIniMemFile file;
    EXPECT_EQ(0, file.LoadIniFile(path_, 1));
}

TEST_F(IniMemFileTest, ReadsValues) {
    WriteBytes(path_, "[s]\nn=42\nmixed=12abc\nword=abc\nhex=0x10\nblank= 12\nminus=-3\nd=2.5e1x\nempty=\n");
    const CIniMemFile file(path_, 1);
    for (const auto& [key, value] :
         {std::pair("n", 42), {"mixed", 12}, {"word", 0}, {"hex", 0}, {"blank", 12}, {"minus", -3}})
        EXPECT_EQ(value, static_cast<int>(file.GetInt("s", key, 7))) << key;
    EXPECT_EQ(25.0, file.GetDouble("s", "d", 7));
    EXPECT_EQ(12.0, file.GetDouble("s", "blank", 7));
    EXPECT_EQ(0.0, file.GetDouble("s", "word", 7));

    for (const auto& [section, key] : {std::pair("s", "empty"), {"s", "N"}, {"S", "n"}}) {
        EXPECT_EQ(7u, file.GetInt(section, key, 7)) << section << key;
        EXPECT_EQ(1.5, file.GetDouble(section, key, 1.5)) << section << key;
        std::string text = "old";
        file.GetString(section, key, "default", text);
        EXPECT_EQ("default", text) << section << key;
    }
}

TEST_F(IniMemFileTest, WritesValuesInTheirForms) {
    CIniMemFile file;
    file.WriteInt("n", "max", 2147483647);
    file.WriteInt("n", "min", -2147483647 - 1);
    file.WriteDouble("d", "six", 1234567.0);
    file.WriteDouble("d", "small", 0.00001);
    file.WriteDouble("d", "whole", 20.0);
    file.WriteDouble("d", "third", -1.0 / 3);
    file.WriteString("n", "max", "again");
    file.WriteString("n", "nul", std::string_view("a\0b", 3));
    EXPECT_EQ(
        "[n]\r\nmax=again\r\nmin=-2147483648\r\nnul=a\r\n\r\n"
        "[d]\r\nsix=1.23457e+06\r\nsmall=1e-05\r\nwhole=20\r\nthird=-0.333333\r\n\r\n",
        Saved(file));
}

TEST_F(IniMemFileTest, AValueThatIsTheDefaultIsNotWrittenButCountsAsAChange) {
    WriteBytes(path_, "[s]\nk=1\n");
    {
        CIniMemFile file(path_, 1);
        file.WriteInt("s", "k", 5, 5);
        file.WriteString("new", "k", "x", "x");
        file.WriteDouble("s", "d", 0.5, 0.25);
        file.WriteString("s", "t", "x", "");
    }
    EXPECT_EQ("[s]\r\nk=1\r\nd=0.5\r\nt=x\r\n\r\n", ReadBytes(path_));

    CIniMemFile empty(1);
    empty.LoadIniFile(path_, 1);
    empty.DeleteAllSections();
    empty.WriteInt("s", "k", 5, 5);
    EXPECT_EQ(1, empty.SaveIniFile());
    EXPECT_FALSE(OnDisk());
}

// Each change on a file in memory, and whether the object's end then writes the file.
TEST_F(IniMemFileTest, KnowsWhatCountsAsAChange) {
    constexpr std::string_view kOriginal = "[s]\na=1\nb=2\n[e]\n",
                               kSaved = "[s]\r\na=1\r\nb=2\r\n\r\n[e]\r\n\r\n";
    const std::pair<void (*)(CIniMemFile&), std::string_view> cases[] = {
        {[](auto& file) { file.GetString("s", "a", ""); }, kOriginal},
        {[](auto& file) { file.SortSections(); }, kOriginal},
        {[](auto& file) {
             CMemFile out;
             file.GetMemFile(&out);
         },
         kOriginal},
        {[](auto& file) { file.DeleteSection("x"), file.ClearSection("x"), file.DeleteKey("x", "a"); },
         kOriginal},
        {[](auto& file) { file.ClearSection("e"); }, kOriginal},
        {[](auto& file) { file.ClearSection("s"); }, "[s]\r\n\r\n[e]\r\n\r\n"},
        {[](auto& file) { file.DeleteSection("s"); }, "[e]\r\n\r\n"},
        {[](auto& file) { file.DeleteKey("s", "a"); }, "[s]\r\nb=2\r\n\r\n[e]\r\n\r\n"},
        {[](auto& file) { file.DeleteKey("s", "x"); }, kSaved},
        {[](auto& file) { file.WriteInt("s", "a", 1); }, kSaved},
    };
    for (const auto& [change, after] : cases) {
        WriteBytes(path_, kOriginal);
        {
            CIniMemFile file(path_, 1);
            change(file);
        }
        EXPECT_EQ(after, ReadBytes(path_));
    }
}

TEST_F(IniMemFileTest, ASaveClearsTheChangeAndALoadDoesNot) {
    WriteBytes(path_, "[s]\na=1\n");
    CIniMemFile file(path_, 1);
    file.WriteInt("s", "a", 2);
    EXPECT_EQ(1, file.SaveIniFile());
    WriteBytes(path_, "changed by another");
    EXPECT_EQ(1, file.SaveIniFile());
    EXPECT_EQ("changed by another", ReadBytes(path_));

    file.WriteInt("s", "a", 3);
    WriteBytes(path_, "[t]\nb=1\n");
    EXPECT_EQ(1, file.LoadIniFile(path_, 1));
    EXPECT_EQ(1, file.SaveIniFile());
    EXPECT_EQ("[t]\r\nb=1\r\n\r\n", ReadBytes(path_));
}

TEST_F(IniMemFileTest, ASaveThatFailsKeepsTheOldFileAndIsNotTriedAgain) {
    for (const int keyOrder : {0, 1}) {
        WriteBytes(path_, "[s]\na=1\n");
        {
            CIniMemFile file(path_, keyOrder);
            file.WriteInt("s", "a", 2);
            const FileFault fault(FileStep::Open);
            EXPECT_EQ(0, file.SaveIniFile());
        }
        EXPECT_EQ("[s]\na=1\n", ReadBytes(path_));
    }
}

TEST_F(IniMemFileTest, ASaveWithNoSectionRemovesTheFile) {
    for (const auto& [keyOrder, changed, removed] :
         {std::tuple(1, false, true), {1, true, true}, {0, false, false}, {0, true, true}}) {
        WriteBytes(path_, "; nothing\n");
        CIniMemFile file(path_, keyOrder);
        if (changed) file.DeleteAllSections();
        EXPECT_EQ(1, file.SaveIniFile());
        EXPECT_EQ(removed, !OnDisk()) << keyOrder << changed;
    }
    CIniMemFile nowhere;
    nowhere.WriteInt("s", "a", 1);
    EXPECT_EQ(1, nowhere.SaveIniFile());
    EXPECT_EQ(0, nowhere.SaveIniFile(""));
}

TEST_F(IniMemFileTest, SavingUnderAPathLooksForAChangeOnlyInKeyOrder) {
    WriteBytes(path_, "[s]\na=1\n");
    const std::string other = (folder_.Path() / "other.dat").string();
    CIniMemFile ordered(path_, 1);
    EXPECT_EQ(1, ordered.SaveIniFile(other));
    EXPECT_FALSE(std::filesystem::exists(other));
    CIniMemFile unordered(path_, 0);
    EXPECT_EQ(1, unordered.SaveIniFile(other));
    EXPECT_EQ("[s]\r\na=1\r\n\r\n", ReadBytes(other));

    // The change is still one, and goes to the new path.
    unordered.WriteInt("s", "a", 2);
    EXPECT_EQ(1, unordered.SaveIniFile(other));
    WriteBytes(other, "x");
    EXPECT_EQ(1, unordered.SaveIniFile());
    EXPECT_EQ("[s]\r\na=2\r\n\r\n", ReadBytes(other));
    EXPECT_EQ("[s]\na=1\n", ReadBytes(path_));
}

TEST_F(IniMemFileTest, DumpsToTheMemoryFilesPosition) {
    CIniMemFile file(1);
    file.WriteInt("t", "k", 1);
    file.WriteString("u", "", "");
    CMemFile memory("0123456789abcdefghijklmn");
    memory.Seek(2);
    EXPECT_EQ(24, file.GetMemFile(&memory));
    EXPECT_EQ("01[t]\r\nk=1\r\n[u]\r\n=\r\nklmn", memory.Bytes());
    EXPECT_EQ(38, file.GetMemFile(&memory));
    EXPECT_EQ("=\r\n[t]\r\nk=1\r\n[u]\r\n=\r\n", memory.Bytes().substr(17));
}

TEST_F(IniMemFileTest, LoadingFromMemoryEmptiesItAndForgetsThePath) {
    WriteBytes(path_, "[old]\n");
    CIniMemFile file(path_, 1);
    CMemFile memory("[s]\r\nb=1\r\na=2\r\n");
    EXPECT_EQ(1, file.LoadIniFile(&memory, 1));
    EXPECT_EQ(0u, memory.GetLength());
    EXPECT_EQ(0u, memory.GetPosition());
    EXPECT_THAT(Keys(file, "s"), ElementsAre("b", "a"));
    file.WriteInt("s", "c", 3);
    EXPECT_EQ(1, file.SaveIniFile());
    EXPECT_EQ("[old]\n", ReadBytes(path_));
}

TEST_F(IniMemFileTest, Enumerates) {
    WriteBytes(path_, "[t]\nz=1\ny=1\nz=2\n[s]\nb=1\nB=1\na=1\n[t2]\n");
    const CIniMemFile file(path_, 1);
    EXPECT_THAT(Sections(file), ElementsAre("t", "s", "t2"));
    EXPECT_THAT(Keys(file, "t"), ElementsAre("z", "y", "z"));
    EXPECT_THAT(Keys(file, "none"), IsEmpty());
    std::vector<std::string> keys = {"left over"};
    file.GetSortedKeys("s", keys);
    EXPECT_THAT(keys, ElementsAre("B", "a", "b"));
    file.GetAllKeys(keys);
    EXPECT_THAT(keys, UnorderedElementsAre("z", "y", "z", "b", "B", "a"));
}

TEST_F(IniMemFileTest, SortsSectionsButKeepsALeadingVersion) {
    const std::pair<std::string_view, std::vector<std::string>> cases[] = {
        {"[B]\n[Version]\n[A]", {"A", "B", "Version"}},
        {"[Version]\n[B]\n[A]", {"Version", "A", "B"}},
        {"[10]\n[9]\n[a]\n[\xB0\xA1]\n[Z]", {"10", "9", "Z", "a", "\xB0\xA1"}},
        {"", {}},
    };
    for (const auto& [text, sorted] : cases) {
        WriteBytes(path_, text);
        CIniMemFile file(path_, 1);
        file.SortSections();
        EXPECT_EQ(sorted, Sections(file));
    }
}

TEST_F(IniMemFileTest, DeletesTheFirstOfARepeatedName) {
    WriteBytes(path_, "[s]\na=1\n[t]\nk=1\nm=2\nk=3\n[s]\na=2\n");
    CIniMemFile file(path_, 1);
    file.DeleteSection("s");
    EXPECT_THAT(Sections(file), ElementsAre("t", "s"));
    EXPECT_EQ("", file.GetString("s", "a", ""));
    file.DeleteKey("t", "k");
    EXPECT_THAT(Keys(file, "t"), ElementsAre("m", "k"));
    EXPECT_EQ("[t]\r\nm=2\r\nk=\r\n\r\n[s]\r\n\r\n", Saved(file));
}

}  // namespace
}  // namespace jogeon
