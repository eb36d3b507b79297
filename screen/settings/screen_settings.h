// The user's settings of the screen: one table of key, type and default over <id>_SaveIndex0.dat.
//
// The file is profile text read and written one value at a time; it need not exist. A number reads by the
// rules of atoi, so text that is none reads as 0.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "screen/host/services.h"

namespace jogeon {

struct ScreenSettings {
    bool changeSize = false;     // the user may size the result grid's columns
    std::uint32_t oddColor = 0;  // row colours; 0 keeps the grid's own
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
    int expandMode = 1;
};

// The settings file of one user.
class SettingsFile {
public:
    SettingsFile(host::LinkStore& links, const std::string& userId);

    void ReadGridSettings(ScreenSettings& settings) const;       // grid and interest-group keys
    void ReadConditionSettings(ScreenSettings& settings) const;  // confirmations, results, layout
    void WriteInterestSettings(const ScreenSettings& settings) const;

    // Pixels of the left pane, kept under a key of the host's making; 176 where there is none.
    int LeftPaneWidth(const std::string& key) const;
    void WriteLeftPaneWidth(const std::string& key, int width) const;

private:
    std::filesystem::path path_;
};

}  // namespace jogeon
