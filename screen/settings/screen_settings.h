// The user's settings of the screen: one table of key, type and default over <id>_SaveIndex0.dat.
//
// The file is profile text read and written one value at a time; it need not exist. A number reads by the
// rules of atoi, so text that is none reads as 0. A file that can't be written loses the setting in silence.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "screen/host/services.h"

namespace jogeon {

// The screen's layouts, as expandMode numbers them.
inline constexpr int kLargeConditions = 0;
inline constexpr int kNormalLayout = 1;
inline constexpr int kResultsOnly = 2;

// Pixels of the left pane: at first, and the least that it is shown with.
inline constexpr int kLeftPaneWidth = 176;
inline constexpr int kLeftPaneMinimum = 30;

struct ScreenSettings {
    bool changeSize = false;     // the user may size the result grid's columns
    std::uint32_t oddColor = 0;  // row colours, red in the low byte; 0 keeps the grid's own
    std::uint32_t evenColor = 0;
    bool lineBorder = false;  // no grid lines
    bool keyArrow = true;     // arrow keys in the result grid send links
    int regLink = 0;
    int confirmOverwrite = 0;
    int confirm = 1;       // ask before an unsaved condition is lost
    int nameConfirm = 0;   // ask before a plain save
    int delConfirm = 1;    // 0 never ask, 1 ask before deleting all, 2 before deleting each
    int initResult = 1;    // loading a saved condition clears the results
    int showSequence = 0;  // saved conditions show their numbers in the tree
    int expandMode = kNormalLayout;

    friend bool operator==(const ScreenSettings&, const ScreenSettings&) = default;
};

// Settings that are read and written at the same moment.
enum class SettingGroup {
    Grid,        // looks and keys of the result grid
    Interest,    // options of the interest-group save
    Conditions,  // confirmations, results, numbers in the tree
    Layout
};

// The settings file of one user.
class SettingsFile {
public:
    SettingsFile(host::LinkStore& links, const std::string& userId);

    // The group's values; one that isn't in the file gets its default.
    void Read(SettingGroup group, ScreenSettings& settings) const;

    // Every value of the group.
    void Write(SettingGroup group, const ScreenSettings& settings) const;

    // The group's values that differ.
    void WriteChanges(SettingGroup group, const ScreenSettings& before, const ScreenSettings& after) const;

    // Pixels of the left pane, kept under a key of the host's making; those at first where there is none, or
    // one that is too narrow to be shown.
    int LeftPaneWidth(const std::string& key) const;
    void WriteLeftPaneWidth(const std::string& key, int width) const;

private:
    std::filesystem::path path_;
};

}  // namespace jogeon
