// A host for a whole screen in a test: a home folder with small data files, a host frame, recording services,
// and one journal of everything that the host sees, in its order.
#pragma once

#include <QApplication>
#include <QWidget>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "screen/host/window_messages_qt.h"
#include "screen/shell/condition_screen_view.h"
#include "screen/shell/screen_frame_widget.h"
#include "screen/transactions/reply_record.h"
#include "screen/transactions/request_record.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/link_journal.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::test {

// The window of the host: it notes the messages that reach it.
class RecordingFrame : public QWidget {
public:
    explicit RecordingFrame(Journal& journal)
        : handle(host::RegisterWindow(*this, host::WindowKind::HostFrame)), journal_(journal) {}

    struct Received {
        host::MessageNumber number;
        std::uintptr_t wParam;
        std::intptr_t lParam;
    };

    const host::WindowHandle handle;
    std::vector<Received> received;
    std::uint16_t queryAnswer = 1;  // second 16-bit word of the start-up query's block

protected:
    bool event(QEvent* event) override {
        const host::MessageEvent* message = host::AsMessage(event);
        if (!message) return QWidget::event(event);
        received.push_back({message->number, message->wParam, message->lParam});
        if (message->number == host::kHostQuery) {
            std::memcpy(reinterpret_cast<char*>(message->lParam) + 2, &queryAnswer, sizeof queryAnswer);
        }
        const std::string entry = DescribeMessage(message->number, message->wParam, message->lParam);
        if (!entry.empty()) journal_.push_back(entry);
        return true;
    }

private:
    Journal& journal_;
};

class JournalCommunication : public RecordingCommunication {
public:
    explicit JournalCommunication(Journal& journal) : journal_(journal) {}

    int CommRequestData(host::WindowHandle window, std::vector<std::string> records, int a, int b, int c,
                        int wantReply) override {
        const auto record = ParseRequestRecord(records.at(0));
        journal_.push_back("send " + record->transaction + " " + record->payload.substr(0, 1));
        return RecordingCommunication::CommRequestData(window, std::move(records), a, b, c, wantReply);
    }

    // The payload of the last request, empty if there was none.
    std::string LastPayload() const {
        return sent.empty() ? std::string() : ParseRequestRecord(sent.back().records.at(0))->payload;
    }

private:
    Journal& journal_;
};

class JournalColors : public host::ColorMap {
public:
    explicit JournalColors(Journal& journal) : journal_(journal) {}

    std::uint32_t GetColor(int index, int) override {
        journal_.push_back("color " + std::to_string(index));
        const auto found = byIndex.find(index);
        return found == byIndex.end() ? 0xf0f0f0 : found->second;
    }

    std::map<int, std::uint32_t> byIndex;  // colours that are not the usual one

private:
    Journal& journal_;
};

class NoCodeLists : public host::CodeLists {
public:
    bool Fill(std::map<std::string, std::vector<std::string>>&) override { return false; }
    std::string StockName(const std::string&) override { return {}; }
};

inline constexpr std::string_view kColumnText =
    "[Basic_Fid]\r\n9001=종목명;12\r\n9003=현재가;8\r\n[Extend_Fid]\r\n9503=A값;8\r\n";
inline constexpr std::string_view kLayoutText =
    "[1]\r\nNumber=1\r\nFid=9001\r\nHeader=종목명\r\nWidth=100\r\n"
    "[2]\r\nNumber=2\r\nFid=9003\r\nHeader=현재가\r\nWidth=80\r\nFormat=price\r\n"
    "[3]\r\nNumber=3\r\nFid=\r\nHeader=\r\nWidth=80\r\n";
inline constexpr std::string_view kVendorText =
    "[00]\r\nName=돌파\r\nExp=A&!B\r\nCount=2\r\n"
    "00=0101010008;A;1;0;40^1|60^20|30^0;\r\n01=0601010008;B;1;0;;\r\n";

// Builds all of it, installs the services, and creates the screen on demand.
class TestHost {
public:
    TestHost() : communication(journal), links(journal), colors(journal), frame(journal) {
        const std::string home = folder.Path().string();
        WriteBytes(folder.Path() / "Norvik.ini", "[Path]\r\nHTSPATH=" + home + "\r\n");
        WriteCatalogue(folder.Path() / "System");
        WriteText(folder.Path() / "System/XcsFid.dat", kColumnText);
        WriteText(folder.Path() / "System/NorvikSaveIndex.dat", kVendorText);
        WriteText(folder.Path() / "Screen/Dlg/0150TempGrid.dlg", kLayoutText);
        std::filesystem::create_directories(folder.Path() / "User");
        links.configurationFolder = home;
        links.tags[{"SharedMainKey", "USER_ID"}] = "trader";
        host::Install({&communication, &links, &codeLists, &colors, &questions, &clock, &settings, &interests,
                       &sheets});
        frame.resize(176 + 585, 548);
        frame.show();
    }
    ~TestHost() { Close(); }

    void Open() { screenFrame = std::make_unique<ScreenFrame>(frame, frame.handle); }
    void Close() { screenFrame.reset(); }

    ConditionScreen& Screen() { return *screenFrame->Screen(); }
    std::filesystem::path SettingsFile() const { return folder.Path() / "User/trader_SaveIndex0.dat"; }

    // The control with this number.
    template <typename Widget>
    Widget& Control(int id) {
        return *frame.findChild<Widget*>(QString::number(id));
    }

    // What the server would send.
    void Reply(const std::string& data, std::uintptr_t key = 1) {
        const std::string block = BuildReplyRecord(data);
        host::SendMessage(host::HandleOf(&Screen()), host::kServerReply, key,
                          reinterpret_cast<std::intptr_t>(&block));
    }

    Journal journal;
    TempFolder folder;
    JournalCommunication communication;
    JournalLinks links;
    JournalColors colors;
    NoCodeLists codeLists;
    ScriptedQuestions questions;
    ManualClock clock;
    RecordingSettings settings;
    RecordingInterests interests;
    RecordingSheets sheets;
    RecordingFrame frame;
    std::unique_ptr<ScreenFrame> screenFrame;
};

}  // namespace jogeon::test
