#include "screen/shell/exports.h"

#include <memory>
#include <string>

#include "screen/shell/condition_screen_view.h"
#include "screen/shell/screen_frame_widget.h"

using jogeon::ConditionScreen;
using jogeon::ScreenFrame;

namespace {

// What the host passed last. Only the host window is ever read.
struct CreationValues {
    std::string firstText;
    std::int32_t value = 0;
    std::string secondText;
    jogeon::host::WindowHandle hostWindow = 0;
};

CreationValues& Values() {
    static CreationValues values;
    return values;
}

std::string TextOf(const char* text) {
    return text ? text : "";
}

// Frame and screen leave the module as the addresses of their QWidget.
ConditionScreen& AsScreen(void* screen) {
    return *static_cast<ConditionScreen*>(static_cast<QWidget*>(screen));
}

}  // namespace

std::int32_t CreateScreen(void** frame, void** screen, QWidget* parent, const char* firstText,
                          std::int32_t value, const char* secondText, jogeon::host::WindowHandle hostWindow) {
    Values() = {TextOf(firstText), value, TextOf(secondText), hostWindow};
    if (!parent) return kScreenFailed;
    auto created = std::make_unique<ScreenFrame>(*parent, Values().hostWindow);
    *screen = static_cast<QWidget*>(created->Screen());
    *frame = static_cast<QWidget*>(created.release());
    return kScreenCreated;
}

std::int32_t DestroyScreen(void* frame) {
    const std::unique_ptr<ScreenFrame> owned(static_cast<ScreenFrame*>(static_cast<QWidget*>(frame)));
    return 0;
}

void GetLastData(void* screen, const char* a, const char* b) {
    AsScreen(screen).SaveLeftPaneWidth(TextOf(a) + TextOf(b));
}

void SetLastData(void* screen, const char* a, const char* b) {
    AsScreen(screen).RestoreLeftPaneWidth(TextOf(a) + TextOf(b));
}

std::int32_t SetEnvChange(void* screen, std::int32_t value) {
    return AsScreen(screen).ChangeEnvironment(value);
}

void SetColorChange(void* screen) {
    AsScreen(screen).ReadHostColors();
}

void SetFocusCombo(void* screen) {
    AsScreen(screen).FocusResultGrid();
}

std::int16_t SetGlobalFunc(void*) {
    return 0;
}

void SetFontChange(void*) {}

void SetScreenMXN(std::int32_t) {}

std::int16_t OnPrint(void*) {
    return 1;
}

void GetLinkTagData(void*, const char*) {}
