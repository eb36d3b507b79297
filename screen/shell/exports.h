// The functions that the module exports, with C linkage; a host finds them by name.
//
// The host installs its services (screen/host/services.h) before it calls CreateScreen, keeps them until
// DestroyScreen has returned, and calls everything on the user-interface thread.
#pragma once

#include <cstdint>

#include "screen/host/services.h"

class QWidget;

#if defined(_WIN32)
#define JOGEON_SCREEN_EXPORT extern "C" __declspec(dllexport)
#else
#define JOGEON_SCREEN_EXPORT extern "C" __attribute__((visibility("default")))
#endif

// What CreateScreen gives back.
inline constexpr std::int32_t kScreenCreated = 0;
inline constexpr std::int32_t kScreenFailed = static_cast<std::int32_t>(0x80004005);

// Builds the screen inside `parent`, over the whole of it. Writes the frame and the screen, addresses of
// QWidgets, on success only.
// The texts and the value are kept and never read. `hostWindow` is asked once, by the message 0x6bf.
JOGEON_SCREEN_EXPORT std::int32_t CreateScreen(void** frame, void** screen, QWidget* parent,
                                               const char* firstText, std::int32_t value,
                                               const char* secondText, jogeon::host::WindowHandle hostWindow);

// Destroys the frame and all that is in it. 0.
JOGEON_SCREEN_EXPORT std::int32_t DestroyScreen(void* frame);

// Save and restore the left pane's width under the key that the two texts make together; restoring works
// once for each screen.
JOGEON_SCREEN_EXPORT void GetLastData(void* screen, const char* a, const char* b);
JOGEON_SCREEN_EXPORT void SetLastData(void* screen, const char* a, const char* b);

// Hands the value to the result grid, which draws itself anew; its answer is the result.
JOGEON_SCREEN_EXPORT std::int32_t SetEnvChange(void* screen, std::int32_t value);

// Reads the host's colours again.
JOGEON_SCREEN_EXPORT void SetColorChange(void* screen);

// Gives the result grid the keyboard focus.
JOGEON_SCREEN_EXPORT void SetFocusCombo(void* screen);

// Every screen of the host has these; this one takes no function table, follows no font or grid-size change,
// prints no page and gives out no link data.
JOGEON_SCREEN_EXPORT std::int16_t SetGlobalFunc(void* table);
JOGEON_SCREEN_EXPORT void SetFontChange(void* font);
JOGEON_SCREEN_EXPORT void SetScreenMXN(std::int32_t rows);
JOGEON_SCREEN_EXPORT std::int16_t OnPrint(void* page);
JOGEON_SCREEN_EXPORT void GetLinkTagData(void* ignored, const char* tag);
