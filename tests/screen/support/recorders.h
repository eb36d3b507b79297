// Host services that note what they are asked and answer what the test has told them.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "screen/host/services.h"

namespace jogeon::test {

class RecordingCommunication : public host::Communication {
public:
    struct Sent {
        host::WindowHandle window = 0;
        std::vector<std::string> records;
        std::vector<int> numbers;  // the three that are always 0, 0, -1
        int wantReply = 0;
    };

    int CommRequestData(host::WindowHandle window, std::vector<std::string> records, int a, int b, int c,
                        int wantReply) override {
        sent.push_back({window, std::move(records), {a, b, c}, wantReply});
        if (onSend) onSend();
        return 0;
    }

    int CommRemoveBrod(host::WindowHandle window) override {
        removed.push_back(window);
        return 0;
    }

    std::vector<Sent> sent;
    std::vector<host::WindowHandle> removed;
    std::function<void()> onSend;
};

class RecordingLinkStore : public host::LinkStore {
public:
    struct Published {
        std::string title;
        std::vector<std::string> codes;
    };

    std::string NVLink_GetLinkTagData(const std::string& mainKey, const std::string& tag,
                                      int* found) override {
        const auto entry = tags.find({mainKey, tag});
        if (found) *found = entry != tags.end() ? 1 : 0;
        return entry != tags.end() ? entry->second : std::string();
    }
    void NVLink_SetLinkTagData(const CNVLinkInfoItem& item) override {
        tags[{item.m_strMainKey, item.m_strTag}] = item.m_strValue;
        setOrder.push_back(item.m_strMainKey + "/" + item.m_strTag);
    }
    void NVLink_SetMultiCodeLinkTagData(const std::string& title,
                                        const std::vector<std::string>& codes) override {
        published.push_back({title, codes});
    }
    std::uint8_t NVLink_GetNewMajorID(host::WindowHandle) override { return majorId; }
    void NVLink_DeleteMajorID(std::uint8_t id) override { deletedMajorIds.push_back(id); }
    std::string NVLink_GetMaeCheGB(int) override { return installationKind; }
    int NVLink_GetAccountCount() override { return static_cast<int>(accounts.size()); }
    std::string NVLink_GetAccount(int index) override { return accounts.at(static_cast<std::size_t>(index)); }
    std::string NVLink_GetAccountFmt(const std::string& account, int) override { return account; }
    std::string GetRunTimePath() override { return runTimePath; }
    std::string ConfigurationFolder() override { return configurationFolder; }

    std::map<std::pair<std::string, std::string>, std::string> tags;
    std::vector<std::string> setOrder;  // "mainKey/tag" of each tag set
    std::vector<Published> published;
    std::vector<std::uint8_t> deletedMajorIds;
    std::vector<std::string> accounts;
    std::uint8_t majorId = 7;
    std::string installationKind;
    std::string runTimePath;
    std::string configurationFolder;
};

// Gives the scripted answers in turn, and OK when they have run out.
class ScriptedQuestions : public host::Questions {
public:
    host::Answer Ask(const host::Box& box) override {
        boxes.push_back(box);
        if (onAsk) onAsk();
        if (answers.empty()) return host::Answer::Ok;
        const host::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    bool Run(const std::string& dialog, void* object) override {
        dialogs.push_back(dialog);
        return onRun && onRun(dialog, object);
    }

    std::optional<std::filesystem::path> AskSavePath(const host::FileQuestion& question) override {
        files.push_back(question);
        return savePath;
    }

    std::vector<host::Box> boxes;
    std::vector<std::string> dialogs;
    std::vector<host::FileQuestion> files;
    std::optional<std::filesystem::path> savePath;  // the answer to each of them
    std::deque<host::Answer> answers;
    std::function<void()> onAsk;  // what happens while a box stands open
    std::function<bool(const std::string& dialog, void* object)> onRun;
};

// Answers with `changed`, after the test has done with the screen what the dialog would.
class RecordingSettings : public host::SettingsDialog {
public:
    int Run(host::WindowHandle view, host::GridColumns& grid, int) override {
        views.push_back(view);
        if (onRun) onRun(grid);
        return changed;
    }

    std::vector<host::WindowHandle> views;
    std::function<void(host::GridColumns& grid)> onRun;  // what the user does in the dialog
    int changed = 0;
};

class RecordingInterests : public host::InterestGroups {
public:
    struct Saved {
        host::WindowHandle window = 0;
        std::vector<std::string> codes;
        host::WindowHandle mainWindow = 0;
        int number = 0;  // always 1
    };

    int SaveInterest(host::WindowHandle window, const std::vector<std::string>& codes,
                     host::WindowHandle mainWindow, int number) override {
        saved.push_back({window, codes, mainWindow, number});
        return 1;
    }

    std::vector<Saved> saved;
};

class RecordingSheets : public host::SheetExport {
public:
    struct Saved {
        host::Sheet sheet;
        std::vector<host::SheetNote> notes;
    };

    void Save(const host::Sheet& sheet, const std::vector<host::SheetNote>& notes) override {
        saved.push_back({sheet, notes});
    }

    std::vector<Saved> saved;
};

// A clock that stands until it is turned.
class ManualClock : public host::Clock {
public:
    void SetTimer(host::TimerSink& sink, int id, std::chrono::milliseconds interval) override {
        timers_[{&sink, id}] = {interval, now_ + interval};
    }
    void KillTimer(host::TimerSink& sink, int id) override { timers_.erase({&sink, id}); }
    void Forget(host::TimerSink& sink) override {
        std::erase_if(timers_, [&](const auto& timer) { return timer.first.first == &sink; });
    }
    std::uint32_t TickCount() override { return static_cast<std::uint32_t>(now_.count()); }

    bool Runs(int id) const {
        for (const auto& [key, timer] : timers_) {
            if (key.second == id) return true;
        }
        return false;
    }
    std::size_t Running() const { return timers_.size(); }

    // Turns the clock, ticking what falls due on the way in the order of its time.
    void Advance(std::chrono::milliseconds time) {
        const auto end = now_ + time;
        for (auto due = Next(end); due != timers_.end(); due = Next(end)) {
            const auto [sink, id] = due->first;
            now_ = due->second.due;
            due->second.due += due->second.interval;
            sink->OnTimer(id);
        }
        now_ = end;
    }

private:
    struct Timer {
        std::chrono::milliseconds interval;
        std::chrono::milliseconds due;
    };
    using Timers = std::map<std::pair<host::TimerSink*, int>, Timer>;

    Timers::iterator Next(std::chrono::milliseconds end) {
        auto next = timers_.end();
        for (auto timer = timers_.begin(); timer != timers_.end(); ++timer) {
            const bool sooner = next == timers_.end() || timer->second.due < next->second.due;
            if (timer->second.due <= end && sooner) next = timer;
        }
        return next;
    }

    Timers timers_;
    std::chrono::milliseconds now_{0};
};

}  // namespace jogeon::test
