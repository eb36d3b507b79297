#include "terminal/home_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "screen/files/atomic_file.h"

namespace jogeon::terminal {
namespace {

QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Write(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

TEST(HomeFolderTest, AChosenHomeIsFilledButWhatIsThereStays) {
    QTemporaryDir folder;
    const QString home = folder.path() + "/a/b";
    const HomeFolder first = PrepareHome(home);
    EXPECT_EQ("[Path]\r\nHTSPATH=" + home.toLocal8Bit() + "\r\n",
              Content(first.configuration + "/Norvik.ini"));
    EXPECT_TRUE(QDir(home + "/User").exists());
    EXPECT_FALSE(Content(home + "/Screen/Dlg/0150TempGrid.dlg").isEmpty());
    EXPECT_TRUE(Content(home + "/Image/Pattern/doji.bmp").startsWith("BM"));

    Write(home + "/System/XcsFid.dat", "mine");
    Write(home + "/User/x_SaveIndex0.dat", "mine too");
    QFile::remove(home + "/System/S4TreeList.dat");
    EXPECT_EQ(QStringList(home + "/System/XcsFid.dat"), PrepareHome(home).kept);
    EXPECT_EQ("mine", Content(home + "/System/XcsFid.dat"));
    EXPECT_EQ("mine too", Content(home + "/User/x_SaveIndex0.dat"));
    EXPECT_FALSE(Content(home + "/System/S4TreeList.dat").isEmpty());
}

TEST(HomeFolderTest, AFullDiskLeavesNoHalfFile) {
    QTemporaryDir folder;
    const HomeFolder home = PrepareHome(folder.path());
    const QByteArray before = Content(home.configuration + "/Norvik.ini");
    QFile::remove(home.path + "/System/S4TreeList.dat");
    const FileFault full(FileStep::Write, 10);
    EXPECT_THROW(PrepareHome(folder.path()), HomeError);
    EXPECT_FALSE(QFile::exists(home.path + "/System/S4TreeList.dat"));
    EXPECT_EQ(before, Content(home.configuration + "/Norvik.ini"));
}

TEST(HomeFolderTest, AHomeThatCantBeMadeIsNamed) {
    QTemporaryDir folder;
    Write(folder.path() + "/file", "");
    try {
        PrepareHome(folder.path() + "/file/home");
        FAIL() << "a file was taken for a folder";
    } catch (const HomeError& error) {
        EXPECT_NE(std::string::npos, std::string(error.what()).find("/file/home"));
    }
}

}  // namespace
}  // namespace jogeon::terminal
