#include "screen/files/data_paths.h"

#include <gtest/gtest.h>

#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

TEST(DataPathsTest, FindsTheHomeOfTheInstallation) {
    const test::TempFolder folder;
    test::RecordingLinkStore links;
    links.configurationFolder = folder.Path().string();
    EXPECT_EQ(GetHomePath(links), "");

    test::WriteBytes(folder.Path() / "Norvik.ini", "[path]\nHtsPath = /opt/big home \nMINIPATH=/opt/mini/\n");
    EXPECT_EQ(GetHomePath(links), "/opt/big home");
    EXPECT_EQ(GetDataFilePath(links, kUserFolder, "a.dat"), "/opt/big home/User/a.dat");
    EXPECT_EQ(GetDataFilePath(links, kSystemFolder), "/opt/big home/System");
    links.installationKind = "44";
    EXPECT_EQ(GetDataFilePath(links, "User", "a.dat"), "/opt/mini/User/a.dat");
}

TEST(DataPathsTest, TakesOnlyIdsThatCanNameAFile) {
    test::RecordingLinkStore links;
    EXPECT_EQ(GetUserId(links), "nv3787");
    for (const char* id : {"", "../x", "a b", "ninechars", "a/b", "아이디", "a.dat"}) {
        links.NVLink_SetLinkTagData({"SharedMainKey", "USER_ID", id});
        EXPECT_EQ(GetUserId(links), "nv3787") << id;
    }
    for (const char* id : {"a", "User_123"}) {
        links.NVLink_SetLinkTagData({"SharedMainKey", "USER_ID", id});
        EXPECT_EQ(GetUserId(links), id);
    }
}

}  // namespace
}  // namespace jogeon
