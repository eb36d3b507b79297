// The two orders of the screen's life: what start-up does, and what shut-down does.
#include <array>
#include <cstring>

#include "screen/files/data_paths.h"
#include "screen/host/window_messages_qt.h"
#include "screen/palette/colors_qt.h"
#include "screen/palette/edges_qt.h"
#include "screen/panes/menu_tree_pane.h"
#include "screen/saved/saved_condition_file.h"
#include "screen/shell/condition_screen_view.h"
#include "screen/shell/host_color_numbers.h"
#include "screen/shell/screen_style_qt.h"

namespace jogeon {
namespace {

// The block of the start-up query: its second 16-bit word matters.
constexpr std::size_t kQueryBlockSize = 24;
constexpr std::size_t kQueryWordOffset = 2;

}  // namespace

void ConditionScreen::StartUp() {
    FindHostMainWindow();
    ReadUserId();
    TakeMajorId();
    QueryHost();
    ReadGridSettings();
    MakeBackBrush();
    SetUpControls();
    BuildConditionGrid();
    BuildResultGrid();
    PlacePanel();
    ReadFileVersion();
    RequestConditionList();
    ReadConditionSettings();
    TakeResultGridRect();
}

void ConditionScreen::ShutDown() {
    ReleaseSearch();
    SendClosingMessage();
    GiveMajorIdBack();
    DropConditions();
    DropResults();
    WriteSettings();
}

void ConditionScreen::FindHostMainWindow() {
    hostMainWindow_.Attach(host::NearestHostFrame(*this));
}

void ConditionScreen::ReadUserId() {
    userId_ = GetUserId(*services_.links);
}

void ConditionScreen::TakeMajorId() {
    channel_.Attach(handle_, services_.links->NVLink_GetNewMajorID(handle_));
}

// A host that will not restore last data has none for us to wait for.
void ConditionScreen::QueryHost() {
    if (!hostWindow_) return;
    std::array<std::byte, kQueryBlockSize> block{};
    host::SendMessage(hostWindow_, host::kHostQuery, 0, reinterpret_cast<std::intptr_t>(block.data()));
    std::uint16_t word = 0;
    std::memcpy(&word, block.data() + kQueryWordOffset, sizeof word);
    if (word == 0) lastDataApplied_ = true;
}

void ConditionScreen::ReadGridSettings() {
    const SettingsFile file(*services_.links, userId_);
    file.Read(SettingGroup::Grid, settings_);
    file.Read(SettingGroup::Interest, settings_);
}

void ConditionScreen::MakeBackBrush() {
    backBrush_ = QBrush(ToQColor(services_.colors->GetColor(kBackgroundColor, 0)));
}

void ConditionScreen::SetUpControls() {
    setStyleSheet(ScreenStyle(backBrush_.color()));
    ShowEdges(form_);
    form_.SetCaptions();
    ShowTarget(saved_.Target());
    EnableSavedCommands(false);
    SelectBuy(true);
    FillScopes();
    form_.ButtonAt(control::kNextPage).setEnabled(false);
    host::SendMessage(host::HandleOf(&codeListButton_), host::kHostChanged, 0,
                      static_cast<std::intptr_t>(hostMainWindow_.Handle()));
}

void ConditionScreen::BuildConditionGrid() {
    conditionGrid_.SetLineColor(services_.colors->GetColor(kGridLineColor, 0));
}

void ConditionScreen::PlacePanel() {
    constexpr int kInset = 2;
    panel_.setGeometry(panel_.geometry().adjusted(kInset, kInset, -kInset, -kInset));
}

void ConditionScreen::ReadFileVersion() {
    saved_.Open(SavedConditionPath(GetHomePath(*services_.links), userId_), userId_);
}

void ConditionScreen::RequestConditionList() {
    saved_.RequestList();
}

void ConditionScreen::ReadConditionSettings() {
    const SettingsFile file(*services_.links, userId_);
    file.Read(SettingGroup::Conditions, settings_);
    file.Read(SettingGroup::Layout, settings_);
    treeView_->ShowNumbers(settings_.showSequence != 0);
    layout_.Start(settings_.expandMode);
    TakeLayoutMode();
}

void ConditionScreen::TakeResultGridRect() {
    resultGridRect_ = resultGrid_.geometry();
}

void ConditionScreen::ReleaseSearch() {
    search_.Release();
}

void ConditionScreen::SendClosingMessage() {
    channel_.SendClosing();
}

void ConditionScreen::GiveMajorIdBack() {
    services_.links->NVLink_DeleteMajorID(channel_.MajorId());
}

void ConditionScreen::DropConditions() {
    editor_.Clear();
}

void ConditionScreen::DropResults() {
    results_.Clear();
}

// To the file they were read from, though the user may have logged off by now.
void ConditionScreen::WriteSettings() {
    SettingsFile(*services_.links, userId_).Write(SettingGroup::Interest, settings_);
    if (columnChoice_.Changed()) SaveResultLayout();
}

}  // namespace jogeon
