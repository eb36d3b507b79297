#include "terminal/host_frame.h"

#include <algorithm>
#include <cstring>

#include "screen/files/data_paths.h"
#include "screen/host/window_messages_qt.h"
#include "screen/settings/screen_settings.h"

namespace jogeon::terminal {
namespace {

// The text under which the screen keeps its left pane's width.
constexpr char kLastDataScreen[] = "0150";
constexpr char kLastDataItem[] = "_LeftPane";

// The start-up query's block: its second 16-bit word says whether last data will be restored.
constexpr std::size_t kRestoreWordOffset = 2;

// What a size message is about.
enum SizeKind : std::uintptr_t { kResize = 0, kMinimum = 1, kMaximum = 2 };

constexpr char kTagSeparator = 0x1f;

// What screen 0150 needs before it has asked for a size, with its left pane at its first width.
constexpr int kFirstPane = 176;
constexpr QSize kFirstSize(kFirstPane + 585, 548);
constexpr QSize kFirstMaximum(764, 548);

const char* TextAt(std::intptr_t address) {
    return reinterpret_cast<const char*>(address);
}

QSize UnpackSize(std::intptr_t packed) {
    return {static_cast<int>((packed >> 16) & 0xffff), static_cast<int>(packed & 0xffff)};
}

}  // namespace

HostFrame::HostFrame(QWidget* parent)
    : QWidget(parent),
      handle_(host::RegisterWindow(*this, host::WindowKind::HostFrame)),
      wanted_(kFirstSize) {
    setMinimumSize(kFirstSize);
    setMaximumSize(kFirstMaximum);
    resize(kFirstSize);
}

HostFrame::~HostFrame() {
    Close();
}

bool HostFrame::Open(const ScreenModule& module) {
    if (module.CreateScreen(&frame_, &screen_, this, "0150", 0, "", handle_) != kScreenCreated) return false;
    module_ = &module;
    RestoreLastData();
    return true;
}

// A screen whose left pane gets another width asks for no other size then, though it needs one.
void HostFrame::RestoreLastData() {
    const QSize before = wanted_;
    module_->SetLastData(screen_, kLastDataScreen, kLastDataItem);
    host::LinkStore& links = *host::Installed().links;
    const int kept =
        SettingsFile(links, GetUserId(links)).LeftPaneWidth(std::string(kLastDataScreen) + kLastDataItem);
    const int extra = kept - kFirstPane;
    if (wanted_ != before || extra == 0) return;
    const QSize needed = wanted_ + QSize(extra, 0);
    OnSizeMessage(kMinimum, needed);
    OnSizeMessage(kMaximum, needed.expandedTo(kFirstMaximum));
    OnSizeMessage(kResize, needed);
}

void HostFrame::Close() {
    if (!module_) return;
    module_->GetLastData(screen_, kLastDataScreen, kLastDataItem);
    module_->DestroyScreen(frame_);
    module_ = nullptr;
}

host::WindowHandle HostFrame::ScreenHandle() const {
    return host::HandleOf(static_cast<QWidget*>(screen_));
}

bool HostFrame::event(QEvent* event) {
    const host::MessageEvent* message = host::AsMessage(event);
    if (!message) {
        if (module_ && event->type() == QEvent::ParentChange) {
            host::SendMessage(ScreenHandle(), host::kHostChanged, 0, handle_);
        }
        // The application's own event reaches windows only, and not the frame in one.
        if (module_ && event->type() == QEvent::PaletteChange) module_->SetColorChange(screen_);
        return QWidget::event(event);
    }
    OnMessage(*message);
    return true;
}

void HostFrame::OnMessage(const host::MessageEvent& message) {
    switch (message.number) {
        case host::kHostQuery: {
            const std::uint16_t willRestore = 1;
            std::memcpy(reinterpret_cast<char*>(message.lParam) + kRestoreWordOffset, &willRestore,
                        sizeof willRestore);
            return;
        }
        case host::kScreenSize:
            OnSizeMessage(message.wParam, UnpackSize(message.lParam));
            return;
        case host::kOpenScreen:
        case host::kOpenScreenLinked:
            emit ScreenAsked(QString::fromLatin1(TextAt(message.lParam)),
                             message.number == host::kOpenScreenLinked);
            return;
        case host::kTagChanged:
            TellTag(TextAt(message.lParam));
            return;
        case host::kResultDoubleClicked:
            emit ResultChosen();
            return;
        default:
            return;
    }
}

void HostFrame::OnSizeMessage(std::uintptr_t kind, QSize size) {
    if (kind == kMinimum) setMinimumSize(size);
    if (kind == kMaximum) setMaximumSize(size);
    if (kind != kResize) return;
    wanted_ = size;
    emit SizeAsked(size);
}

// A notify text is "0", main key and tag, with a separator between them.
void HostFrame::TellTag(const char* notify) {
    const QList<QByteArray> pieces = QByteArray(notify).split(kTagSeparator);
    if (pieces.size() == 3) emit TagChanged(pieces[1].toStdString(), pieces[2].toStdString());
}

}  // namespace jogeon::terminal
