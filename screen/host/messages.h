// The numbered private messages between the host, the screen and its windows.
#pragma once

#include <cstdint>

namespace jogeon::host {

using MessageNumber = std::uint32_t;

inline constexpr MessageNumber kInitialUpdate = 0x364;     // frame to both panes
inline constexpr MessageNumber kPanelAdd = 0x464;          // panel to screen: add the condition shown
inline constexpr MessageNumber kPanelReplace = 0x465;      // panel to screen: replace the selected condition
inline constexpr MessageNumber kOpenScreenLinked = 0x496;  // to main window: notify text and screen number
inline constexpr MessageNumber kExpressionChanged = 0x4ab;
inline constexpr MessageNumber kScreenSize = 0x4ce;  // splitter to host frame: 1 minimum, 2 maximum, 0 resize
inline constexpr MessageNumber kTagChanged = 0x4ea;  // to main window: lParam a notify text
inline constexpr MessageNumber kOpenScreen = 0x4eb;  // to main window: lParam the screen's number
inline constexpr MessageNumber kHostChanged = 0x5c2;    // host to screen, and on to controls and splitter
inline constexpr MessageNumber kLeftPaneWidth = 0x5df;  // to splitter: 1 save, 0 restore
inline constexpr MessageNumber kServerReply = 0x658;    // lParam: address of a std::string, the reply record
inline constexpr MessageNumber kHostQuery = 0x6bf;      // screen to host window: 24-byte block
inline constexpr MessageNumber kIgnored = 0x6c6;
inline constexpr MessageNumber kLeftPaneShown = 0x6df;   // screen to splitter: 0 hide, 1 show
inline constexpr MessageNumber kSettingsFill = 0x720;    // lParam: settings block
inline constexpr MessageNumber kSettingsTaken = 0x3021;  // second byte of wParam 3: lParam settings block
inline constexpr MessageNumber kResultDoubleClicked = 0x203;

}  // namespace jogeon::host
