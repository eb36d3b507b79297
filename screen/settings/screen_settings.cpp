#include "screen/settings/screen_settings.h"

#include <span>

#include "screen/files/data_paths.h"
#include "screen/files/profile_text.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

constexpr char kLeftPaneSection[] = "0150_SCREEN";
constexpr char kGridSection[] = "0150_GridInfo";
constexpr char kInterestSection[] = "0150_PortInfo";
constexpr char kConditionSection[] = "SaveIndex";

constexpr char kLeftPaneDefault[] = "176";
constexpr std::size_t kShortNumber = 3;  // characters that a small number is read from
constexpr std::size_t kColorNumber = 9;

using Take = void (*)(ScreenSettings& settings, const std::string& text);

// One setting: where it stands, what it is without a file, and where its text goes.
struct Setting {
    const char* section;
    const char* key;
    const char* defaultText;
    Take take;
};

template <bool ScreenSettings::*Flag>
void TakeFlag(ScreenSettings& settings, const std::string& text) {
    settings.*Flag = text.starts_with('1');
}

template <bool ScreenSettings::*Flag>
void TakeFlagUnlessZero(ScreenSettings& settings, const std::string& text) {
    settings.*Flag = !text.starts_with('0');
}

template <std::uint32_t ScreenSettings::*Color>
void TakeColor(ScreenSettings& settings, const std::string& text) {
    settings.*Color = static_cast<std::uint32_t>(Atoi(text.substr(0, kColorNumber)));
}

template <int ScreenSettings::*Number>
void TakeShortNumber(ScreenSettings& settings, const std::string& text) {
    settings.*Number = Atoi(text.substr(0, kShortNumber));
}

template <int ScreenSettings::*Number>
void TakeNumber(ScreenSettings& settings, const std::string& text) {
    settings.*Number = Atoi(text);
}

constexpr Setting kGridSettings[] = {
    {kGridSection, "bChangeSize", "0", TakeFlag<&ScreenSettings::changeSize>},
    {kGridSection, "oddColor", "", TakeColor<&ScreenSettings::oddColor>},
    {kGridSection, "evenColor", "", TakeColor<&ScreenSettings::evenColor>},
    {kGridSection, "lineBorder", "0", TakeFlag<&ScreenSettings::lineBorder>},
    {kGridSection, "bKeyArrow", "1", TakeFlagUnlessZero<&ScreenSettings::keyArrow>},
    {kInterestSection, "RegLink", "0", TakeNumber<&ScreenSettings::regLink>},
    {kInterestSection, "ConfirmOverwrite", "0", TakeNumber<&ScreenSettings::confirmOverwrite>},
};

constexpr Setting kConditionSettings[] = {
    {kConditionSection, "Confirm", "1", TakeShortNumber<&ScreenSettings::confirm>},
    {kConditionSection, "NameConfirm", "0", TakeShortNumber<&ScreenSettings::nameConfirm>},
    {kConditionSection, "DelConfirm", "1", TakeShortNumber<&ScreenSettings::delConfirm>},
    {kConditionSection, "InitResult", "1", TakeShortNumber<&ScreenSettings::initResult>},
    {kConditionSection, "ShowSequence", "0", TakeShortNumber<&ScreenSettings::showSequence>},
    {kConditionSection, "Expand", "1", TakeShortNumber<&ScreenSettings::expandMode>},
};

void ReadAll(const std::filesystem::path& file, std::span<const Setting> table, ScreenSettings& settings) {
    for (const Setting& setting : table) {
        setting.take(settings, ReadProfileText(file, setting.section, setting.key, setting.defaultText));
    }
}

}  // namespace

SettingsFile::SettingsFile(host::LinkStore& links, const std::string& userId)
    : path_(GetDataFilePath(links, kUserFolder, userId + "_SaveIndex0.dat")) {}

void SettingsFile::ReadGridSettings(ScreenSettings& settings) const {
    ReadAll(path_, kGridSettings, settings);
}

void SettingsFile::ReadConditionSettings(ScreenSettings& settings) const {
    ReadAll(path_, kConditionSettings, settings);
}

// A file that can't be written loses the setting, without a message.
void SettingsFile::WriteInterestSettings(const ScreenSettings& settings) const {
    WriteProfileText(path_, kInterestSection, "RegLink", Decimal(settings.regLink));
    WriteProfileText(path_, kInterestSection, "ConfirmOverwrite", Decimal(settings.confirmOverwrite));
}

int SettingsFile::LeftPaneWidth(const std::string& key) const {
    return Atoi(ReadProfileText(path_, kLeftPaneSection, key, kLeftPaneDefault).substr(0, kShortNumber));
}

void SettingsFile::WriteLeftPaneWidth(const std::string& key, int width) const {
    WriteProfileText(path_, kLeftPaneSection, key, Decimal(width));
}

}  // namespace jogeon
