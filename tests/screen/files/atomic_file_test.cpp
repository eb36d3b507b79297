#include "screen/files/atomic_file.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::WriteBytes;

class AtomicFileTest : public testing::Test {
protected:
    long FilesInFolder() const {
        return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
    }

    test::TempFolder folder_;
    const fs::path path_ = folder_.Path() / "file.dat";
};

TEST_F(AtomicFileTest, MakesAndReplacesAFile) {
    const std::string bytes("\0\r\n\xFF", 4);
    EXPECT_TRUE(WriteFileAtomically(path_, "a longer old text"));
    EXPECT_TRUE(WriteFileAtomically(path_, bytes));
    EXPECT_EQ(bytes, ReadBytes(path_));
    EXPECT_TRUE(WriteFileAtomically(path_, ""));
    EXPECT_EQ(0u, fs::file_size(path_));
    EXPECT_EQ(1, FilesInFolder());
}

TEST_F(AtomicFileTest, AFailureAtAnyStepLeavesTheOldFileAlone) {
    for (const FileStep step : {FileStep::Open, FileStep::Write, FileStep::Flush, FileStep::Rename}) {
        for (const bool exists : {true, false}) {
            fs::remove(path_);
            if (exists) WriteBytes(path_, "old");
            {
                const FileFault fault(step, 2);
                EXPECT_FALSE(WriteFileAtomically(path_, "new text"));
            }
            EXPECT_EQ(exists ? "old" : "", ReadBytes(path_));
            EXPECT_EQ(exists ? 1 : 0, FilesInFolder());
        }
    }
    EXPECT_TRUE(WriteFileAtomically(path_, "new text"));
    EXPECT_EQ("new text", ReadBytes(path_));
}

TEST_F(AtomicFileTest, RefusesWhatIsNoFile) {
    EXPECT_FALSE(WriteFileAtomically(folder_.Path() / "missing" / "file.dat", "x"));
    EXPECT_FALSE(WriteFileAtomically(folder_.Path(), "x"));
    EXPECT_TRUE(fs::is_directory(folder_.Path()));
}

TEST_F(AtomicFileTest, KeepsPermissionsAndLinks) {
    WriteBytes(path_, "old");
    fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write);
    const fs::path link = folder_.Path() / "link.dat";
    fs::create_symlink("file.dat", link);
    EXPECT_TRUE(WriteFileAtomically(link, "new"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ("new", ReadBytes(path_));
    EXPECT_EQ(fs::perms::owner_read | fs::perms::owner_write, fs::status(path_).permissions());
}

}  // namespace
}  // namespace jogeon
