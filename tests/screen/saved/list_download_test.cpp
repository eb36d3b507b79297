#include "screen/saved/list_download.h"

#include <gtest/gtest.h>

#include "screen/files/atomic_file.h"
#include "tests/screen/support/saved_screen.h"

namespace jogeon::test {
namespace {

using namespace std::chrono_literals;

// A packet of the download. `more` is the number to go on from; empty in the last one.
std::string Packet(const std::string& records, int count, const std::string& more = "",
                   const std::string& version = "000.009") {
    return std::string("VD") + (more.empty() ? "0" : "1") + std::string(8, ' ') +
           (more.empty() ? "  " : more) + version + ZeroPadded(count, 4) + records;
}

constexpr std::uint8_t kFirst = 0xa1;

class ListDownloadTest : public testing::Test {
protected:
    ListDownloadTest() : screen_("[Version]\r\nver=000.001\r\n\r\n" + SavedSection("07", "옛것")) {
        screen_.saved.RequestList();
    }

    std::string Versions() const { return ReadVersion(screen_.file); }

    SavedScreen screen_;
};

TEST_F(ListDownloadTest, OnePacketRebuildsFileAndTreeAndSkipsBadRecords) {
    EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.001");
    EXPECT_EQ(screen_.LastSent().requestKey, kFirst);
    const std::string unknown = StoredRecord("01", "모름", "T01A999999011" + std::string(58, ' '));
    screen_.Reply(Packet(StoredRecord("00", "하나") + unknown + StoredRecord("02", "둘"), 3), kFirst);
    EXPECT_EQ(screen_.tree.Shown(), "00 하나, 02 둘");
    EXPECT_EQ(screen_.OnDisk().substr(0, 49),
              "[Version]\r\nver=000.009\r\n\r\n[00]\r\nName=하나\r\nTypePo"_cp949);
    EXPECT_NE(ReadBytes(screen_.file.string() + ".bak").find("옛것"_cp949), std::string::npos);
    EXPECT_NE(screen_.OnDisk().find("00=0101010008;A;1;0;40^2|60^5|30^1;\r\n"), std::string::npos);
    screen_.saved.RequestList();
    EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.009");
    screen_.Reply(Packet("", 0, "", "000.010"), kFirst);
    EXPECT_EQ(screen_.OnDisk(), "[Version]\r\nver=000.010\r\n\r\n") << "no sets at all";
}

TEST_F(ListDownloadTest, AChainIsWrittenWithItsLastPacket) {
    const std::string before = screen_.OnDisk();
    screen_.Reply(Packet(StoredRecord("00", "하나") + StoredRecord("01", "둘"), 2, " 2"), kFirst);
    EXPECT_EQ(screen_.LastPayload(), "V1trader   2000.009");
    EXPECT_EQ(screen_.LastSent().requestKey, 0x22);
    EXPECT_TRUE(screen_.clock.Runs(258));
    EXPECT_EQ(screen_.OnDisk(), before);

    screen_.clock.Advance(20000ms);  // the next packet is late, and counts all the same
    EXPECT_EQ(screen_.questions.boxes.size(), 1u);
    screen_.Reply(Packet(StoredRecord("02", "셋"), 1, "03"), 0x22);
    EXPECT_EQ(screen_.LastSent().requestKey, 0x23);
    screen_.Reply(Packet(StoredRecord("03", "넷"), 1), 0x23);
    EXPECT_EQ(screen_.tree.Shown(), "00 하나, 01 둘, 02 셋, 03 넷");
    EXPECT_EQ(Versions(), "000.009");
}

TEST_F(ListDownloadTest, PiecesOfTwoDownloadsNeverMix) {
    screen_.Reply(Packet(StoredRecord("00", "하나"), 1, "01"), kFirst);
    screen_.Reply(Packet(StoredRecord("00", "하나"), 1, "01"), kFirst);  // doubled
    EXPECT_EQ(screen_.payloads.size(), 2u);
    screen_.saved.RequestList();
    screen_.Reply(Packet(StoredRecord("01", "둘"), 1), 0x21);  // the end of the chain that was given up
    EXPECT_EQ(screen_.tree.Shown(), "07 옛것");
    screen_.Reply(Packet(StoredRecord("05", "새것"), 1), kFirst);
    EXPECT_EQ(screen_.tree.Shown(), "05 새것");
    screen_.Reply(Packet(StoredRecord("06", "뒤늦은"), 1), kFirst);
    EXPECT_EQ(screen_.tree.Shown(), "05 새것") << "nothing was asked";
}

TEST_F(ListDownloadTest, SetsThatChangeDuringAChainLeaveTheFileBehind) {
    screen_.Reply(Packet(StoredRecord("00", "하나"), 1, "01", "000.008"), kFirst);
    screen_.Reply(Packet(StoredRecord("01", "둘"), 1, "", "000.009"), 0x21);
    EXPECT_EQ(Versions(), "000.008") << "the next version check brings them anew";
}

TEST_F(ListDownloadTest, DamageLeavesFileVersionAndTree) {
    const std::string before = screen_.OnDisk();
    const std::string record = StoredRecord("00", "하나");
    const std::string damaged[] = {
        Packet(record.substr(0, record.size() - 1), 1),  // cut
        Packet(record, 2),                               // fewer than it says
        Packet(record + record, 1),                      // more
        Packet(record, 1).replace(20, 4, "    "),        // no count
        Packet(record, 1).replace(20, 4, "-001"),
        Packet(StoredRecord("x0", "하나"), 1),
    };
    for (const std::string& packet : damaged) {
        screen_.questions.boxes.clear();
        screen_.Reply(packet, kFirst);
        EXPECT_EQ(screen_.OnDisk(), before) << packet.substr(0, 30);
        EXPECT_EQ(screen_.questions.boxes.size(), 1u);
        screen_.saved.RequestList();
        EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.001");
    }
    const std::string whole = Packet(record, 1);
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        screen_.Reply(whole.substr(0, length), kFirst);
        EXPECT_EQ(screen_.OnDisk(), before) << length;
        screen_.saved.RequestList();
    }
}

TEST_F(ListDownloadTest, AChainWithoutEndIsGivenUp) {
    for (const std::string& records : {std::string(), StoredRecord("00", "하나")}) {
        screen_.questions.boxes.clear();
        screen_.saved.RequestList();
        const std::size_t before = screen_.payloads.size();
        for (int packet = 0; packet < 1000; ++packet) {
            screen_.Reply(Packet(records, records.empty() ? 0 : 1, "00"), screen_.LastSent().requestKey);
        }
        EXPECT_LE(screen_.payloads.size(), before + 100);
        EXPECT_EQ(screen_.questions.boxes.size(), 1u);
        EXPECT_EQ(screen_.tree.Shown(), "07 옛것");
    }
}

TEST_F(ListDownloadTest, VersionAnswersShowTheFileAsItIs) {
    screen_.tree.sets.clear();
    screen_.Reply("VE");
    EXPECT_EQ(screen_.tree.Shown(), "07 옛것");
    screen_.Reply("VZ           000.02");  // cut
    screen_.saved.RequestList();
    EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.001");
    screen_.Reply("VZ           000.020");
    screen_.saved.RequestList();
    EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.020");
    screen_.tree.sets.clear();
    screen_.clock.Advance(20000ms);
    EXPECT_EQ(screen_.tree.Shown(), "07 옛것") << "a server that doesn't answer";
}

TEST_F(ListDownloadTest, AFileThatCannotBeWrittenKeepsItsVersion) {
    const std::string before = screen_.OnDisk();
    {
        const FileFault fault(FileStep::Write, 100);
        screen_.Reply(Packet(StoredRecord("00", "하나"), 1), kFirst);
    }
    EXPECT_EQ(screen_.OnDisk(), before);
    EXPECT_EQ(screen_.tree.Shown(), "07 옛것");
    EXPECT_EQ(screen_.questions.boxes.size(), 1u);
    screen_.saved.RequestList();
    EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.001");
}

// The set on the screen is the one with its number in the new list, or a new one.
TEST_F(ListDownloadTest, TheCurrentSetFollowsItsNumber) {
    screen_.saved.LoadCondition(screen_.tree.sets.at(0));
    screen_.Reply(Packet(StoredRecord("07", "새이름"), 1), kFirst);
    EXPECT_EQ(screen_.saved.CurrentSaved(), screen_.tree.sets.at(0).get());
    EXPECT_EQ(ToUtf8(screen_.view.name), "새이름");
    EXPECT_FALSE(screen_.editor.Dirty()) << "the screen shows what is stored";
    screen_.saved.RequestList();
    screen_.Reply(Packet(StoredRecord("08", "다른것"), 1), kFirst);
    EXPECT_EQ(screen_.saved.CurrentSaved(), nullptr);
    EXPECT_FALSE(screen_.view.commandsEnabled);
    EXPECT_TRUE(screen_.editor.Dirty()) << "what the screen shows is stored nowhere";
}

}  // namespace
}  // namespace jogeon::test
