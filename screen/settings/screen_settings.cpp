#include "screen/settings/screen_settings.h"

#include "screen/files/data_paths.h"
#include "screen/files/profile_text.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

constexpr char kLeftPaneSection[] = "0150_SCREEN";
constexpr char kGridSection[] = "0150_GridInfo";
constexpr char kInterestSection[] = "0150_PortInfo";
constexpr char kConditionSection[] = "SaveIndex";

constexpr std::size_t kShortNumber = 3;  // characters that a small number is read from
constexpr std::size_t kColorNumber = 9;

using Take = void (*)(ScreenSettings& settings, const std::string& text);
using Text = std::string (*)(const ScreenSettings& settings);

// One setting: where it stands, what it is without a file, where its text goes and comes from.
struct Setting {
    SettingGroup group;
    const char* section;
    const char* key;
    const char* defaultText;
    Take take;
    Text text;
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

template <auto Member>
std::string TextOf(const ScreenSettings& settings) {
    return Decimal(static_cast<int>(settings.*Member));
}

using S = ScreenSettings;
using enum SettingGroup;

constexpr Setting kSettings[] = {
    {Grid, kGridSection, "bChangeSize", "0", TakeFlag<&S::changeSize>, TextOf<&S::changeSize>},
    {Grid, kGridSection, "oddColor", "", TakeColor<&S::oddColor>, TextOf<&S::oddColor>},
    {Grid, kGridSection, "evenColor", "", TakeColor<&S::evenColor>, TextOf<&S::evenColor>},
    {Grid, kGridSection, "lineBorder", "0", TakeFlag<&S::lineBorder>, TextOf<&S::lineBorder>},
    {Grid, kGridSection, "bKeyArrow", "1", TakeFlagUnlessZero<&S::keyArrow>, TextOf<&S::keyArrow>},
    {Interest, kInterestSection, "RegLink", "0", TakeNumber<&S::regLink>, TextOf<&S::regLink>},
    {Interest, kInterestSection, "ConfirmOverwrite", "0", TakeNumber<&S::confirmOverwrite>,
     TextOf<&S::confirmOverwrite>},
    {Conditions, kConditionSection, "Confirm", "1", TakeShortNumber<&S::confirm>, TextOf<&S::confirm>},
    {Conditions, kConditionSection, "NameConfirm", "0", TakeShortNumber<&S::nameConfirm>,
     TextOf<&S::nameConfirm>},
    {Conditions, kConditionSection, "DelConfirm", "1", TakeShortNumber<&S::delConfirm>,
     TextOf<&S::delConfirm>},
    {Conditions, kConditionSection, "InitResult", "1", TakeShortNumber<&S::initResult>,
     TextOf<&S::initResult>},
    {Conditions, kConditionSection, "ShowSequence", "0", TakeShortNumber<&S::showSequence>,
     TextOf<&S::showSequence>},
    {Layout, kConditionSection, "Expand", "1", TakeShortNumber<&S::expandMode>, TextOf<&S::expandMode>},
};

void WriteSetting(const std::filesystem::path& file, const Setting& setting, const ScreenSettings& settings) {
    WriteProfileText(file, setting.section, setting.key, setting.text(settings));
}

}  // namespace

SettingsFile::SettingsFile(host::LinkStore& links, const std::string& userId)
    : path_(GetDataFilePath(links, kUserFolder, userId + "_SaveIndex0.dat")) {}

void SettingsFile::Read(SettingGroup group, ScreenSettings& settings) const {
    for (const Setting& setting : kSettings) {
        if (setting.group != group) continue;
        setting.take(settings, ReadProfileText(path_, setting.section, setting.key, setting.defaultText));
    }
}

void SettingsFile::Write(SettingGroup group, const ScreenSettings& settings) const {
    for (const Setting& setting : kSettings) {
        if (setting.group == group) WriteSetting(path_, setting, settings);
    }
}

void SettingsFile::WriteChanges(SettingGroup group, const ScreenSettings& before,
                                const ScreenSettings& after) const {
    for (const Setting& setting : kSettings) {
        const bool changed = setting.group == group && setting.text(before) != setting.text(after);
        if (changed) WriteSetting(path_, setting, after);
    }
}

int SettingsFile::LeftPaneWidth(const std::string& key) const {
    const int width = Atoi(ReadProfileText(path_, kLeftPaneSection, key).substr(0, kShortNumber));
    return width < kLeftPaneMinimum ? kLeftPaneWidth : width;
}

void SettingsFile::WriteLeftPaneWidth(const std::string& key, int width) const {
    WriteProfileText(path_, kLeftPaneSection, key, Decimal(width));
}

}  // namespace jogeon
