// The settings file: defaults, what is written, and the block that others are told the settings by.
#include "screen/settings/screen_settings.h"

#include <array>

#include <gtest/gtest.h>

#include "screen/settings/settings_block.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::test {
namespace {

class SettingsFileTest : public testing::Test {
protected:
    SettingsFileTest() {
        links.configurationFolder = folder.Path().string();
        WriteBytes(folder.Path() / "Norvik.ini", "[Path]\r\nHTSPATH=" + folder.Path().string() + "\r\n");
    }

    ScreenSettings Read(const std::string& text) {
        WriteBytes(folder.Path() / "User/me_SaveIndex0.dat", text);
        ScreenSettings settings;
        for (const SettingGroup group :
             {SettingGroup::Grid, SettingGroup::Interest, SettingGroup::Conditions, SettingGroup::Layout}) {
            SettingsFile(links, "me").Read(group, settings);
        }
        return settings;
    }

    std::string Text() { return ReadBytes(folder.Path() / "User/me_SaveIndex0.dat"); }

    TempFolder folder;
    RecordingLinkStore links;
};

TEST_F(SettingsFileTest, EachValueReadsByItsOwnRule) {
    EXPECT_EQ(ScreenSettings(), Read(""));
    ScreenSettings odd;
    odd.oddColor = 12345678;
    odd.confirm = 100;
    odd.nameConfirm = odd.initResult = 0;
    odd.delConfirm = 2;
    odd.regLink = 12345;
    EXPECT_EQ(odd, Read("[0150_GridInfo]\nbChangeSize=yes\noddColor=12345678\nlineBorder=0\nbKeyArrow=x\n"
                        "[0150_PortInfo]\nRegLink=12345\n"
                        "[SaveIndex]\nConfirm=1000\nDelConfirm= 2 \nInitResult=no\n"));
}

TEST_F(SettingsFileTest, ArrowKeysSendNothingOnlyWhereTheFileSaysZero) {
    for (const auto& [text, on] : {std::pair("0", false), {"01", false}, {"1", true}, {"", true}}) {
        EXPECT_EQ(on, Read(std::string("[0150_GridInfo]\nbKeyArrow=") + text + "\n").keyArrow) << text;
    }
}

TEST_F(SettingsFileTest, OnlyWhatChangedIsWrittenAndTheRestOfTheFileStays) {
    const ScreenSettings before = Read("; mine\r\n[SaveIndex]\r\nConfirm=7\r\nOther=1\r\n");
    ScreenSettings after = before;
    after.delConfirm = 2;
    after.lineBorder = true;
    after.evenColor = 0xf0e0d0;
    const SettingsFile file(links, "me");
    file.WriteChanges(SettingGroup::Conditions, before, after);
    file.WriteChanges(SettingGroup::Grid, before, after);
    EXPECT_EQ(
        "; mine\r\n[SaveIndex]\r\nConfirm=7\r\nOther=1\r\nDelConfirm=2\r\n"
        "[0150_GridInfo]\r\nevenColor=15786192\r\nlineBorder=1\r\n",
        Text());
    EXPECT_EQ(after, Read(Text()));
}

TEST(SettingsBlockTest, EveryFieldStandsAtItsOffset) {
    ScreenSettings settings;
    settings.changeSize = settings.lineBorder = true;
    settings.oddColor = 0x112233;
    settings.evenColor = 0x445566;
    settings.regLink = 2;
    settings.confirmOverwrite = 3;
    std::array<std::byte, settings_block::kSize> block{};
    FillSettingsBlock(settings, block.data());

    std::array<std::byte, settings_block::kSize> expected{};
    const auto put = [&](std::size_t offset, std::initializer_list<int> bytes) {
        for (const int byte : bytes) expected[offset++] = static_cast<std::byte>(byte);
    };
    put(0x6c, {1});
    put(0x78, {1});
    put(0x7c, {1});
    put(0x8c, {0x33, 0x22, 0x11});
    put(0x90, {0x66, 0x55, 0x44});
    put(0x12c, {2});
    put(0x130, {3});
    EXPECT_EQ(expected, block);

    ScreenSettings taken;
    TakeSettingsBlock(block.data(), taken);
    ScreenSettings options;
    options.regLink = 2;
    options.confirmOverwrite = 3;
    EXPECT_EQ(options, taken) << "the options of the interest-group save alone";
}

}  // namespace
}  // namespace jogeon::test
