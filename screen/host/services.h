// What the screen asks of its host: one small abstract class for each service.
//
// All text is CP949 bytes. The host owns the objects, installs them before it calls CreateScreen and keeps
// them until DestroyScreen has returned. Everything is called on the user-interface thread.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "screen/host/export.h"
#include "screen/host/link_info_item.h"

namespace jogeon::host {

using WindowHandle = std::uint32_t;  // a number of the window registry; 0 is no window

// The transport to the server.
class Communication {
public:
    virtual ~Communication() = default;

    // Queues request records, each a block as request_record.h lays it out. A reply arrives later as the
    // message kServerReply at `window`. The three numbers are always 0, 0, -1; `wantReply` is 1 or 0.
    virtual int CommRequestData(WindowHandle window, std::vector<std::string> records, int, int, int,
                                int wantReply) = 0;

    // Called with the screen's window at the head of every reply.
    virtual int CommRemoveBrod(WindowHandle window) = 0;
};

// Shared tags, major ids, accounts and paths.
class LinkStore {
public:
    virtual ~LinkStore() = default;

    // The text shared under a main key and a tag, empty if there is none; `*found` tells which.
    virtual std::string NVLink_GetLinkTagData(const std::string& mainKey, const std::string& tag,
                                              int* found) = 0;
    virtual void NVLink_SetLinkTagData(const CNVLinkInfoItem& item) = 0;
    virtual void NVLink_SetMultiCodeLinkTagData(const std::string& title,
                                                const std::vector<std::string>& codes) = 0;

    virtual std::uint8_t NVLink_GetNewMajorID(WindowHandle window) = 0;
    virtual void NVLink_DeleteMajorID(std::uint8_t majorId) = 0;

    // The kind of installation; "44" selects the second path key.
    virtual std::string NVLink_GetMaeCheGB(int) = 0;

    virtual int NVLink_GetAccountCount() = 0;
    virtual std::string NVLink_GetAccount(int index) = 0;
    virtual std::string NVLink_GetAccountFmt(const std::string& account, int form) = 0;

    virtual std::string GetRunTimePath() = 0;

    // The platform's place for settings: the folder of Norvik.ini.
    virtual std::string ConfigurationFolder() = 0;
};

// Lists of codes by class ("0202" sectors of the first market, "0504" all sectors, "0502" interest
// groups...).
class CodeLists {
public:
    virtual ~CodeLists() = default;

    // Fills the array of every class that is a key of `lists`; each line is a three-byte code, one byte, and
    // the name from byte 4. False, with the arrays empty, when the lists can't be had.
    virtual bool Fill(std::map<std::string, std::vector<std::string>>& lists) = 0;

    // The name of the stock with this six-byte code, empty if it is unknown.
    virtual std::string StockName(const std::string& code) = 0;
};

// The host's colour map. A colour is a number with red in the low byte.
class ColorMap {
public:
    virtual ~ColorMap() = default;
    virtual std::uint32_t GetColor(int index, int) = 0;
};

enum class Icon { Information, Warning, Question };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct Box {
    std::string text;
    std::string caption;
    Icon icon = Icon::Information;
    Buttons buttons = Buttons::Ok;
};

// A file that the user is asked to name. Texts are CP949.
struct FileQuestion {
    std::string filterName;  // "Excel Worksheet Files (*.xls)"
    std::string extension;   // "xls", put behind a name that has none
};

// Everything modal that the user is shown, so that a test can answer in his place.
class Questions {
public:
    virtual ~Questions() = default;

    virtual Answer Ask(const Box& box) = 0;

    // Runs a modal dialog of the screen. `dialog` names it ("ExpressionErrorDialog"), `object` is its widget;
    // true if it was closed by its OK.
    virtual bool Run(const std::string& dialog, void* object) = 0;

    // Where to save a file; a file that exists is only named if the user agrees to replace it. None if he
    // cancels.
    virtual std::optional<std::filesystem::path> AskSavePath(const FileQuestion& question) = 0;
};

// Who gets the ticks of its timers.
class TimerSink {
public:
    virtual void OnTimer(int id) = 0;

protected:
    ~TimerSink() = default;
};

// Timers and the tick count, which tests turn by hand.
class Clock {
public:
    virtual ~Clock() = default;

    // Ticks `sink` with `id` every `interval` until killed. Setting a running id starts it afresh.
    virtual void SetTimer(TimerSink& sink, int id, std::chrono::milliseconds interval) = 0;
    virtual void KillTimer(TimerSink& sink, int id) = 0;

    // Kills all timers of a sink that goes away.
    virtual void Forget(TimerSink& sink) = 0;

    // Milliseconds since some fixed moment.
    virtual std::uint32_t TickCount() = 0;
};

// The services of one host. All pointers are set.
struct Services {
    Communication* communication = nullptr;
    LinkStore* links = nullptr;
    CodeLists* codeLists = nullptr;
    ColorMap* colors = nullptr;
    Questions* questions = nullptr;
    Clock* clock = nullptr;
};

// Installs the services for screens that are created from now on, and hands them out.
JOGEON_HOST_API void Install(const Services& services);
JOGEON_HOST_API const Services& Installed();

}  // namespace jogeon::host
