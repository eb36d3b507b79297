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
    std::string name = {};   // the one proposed, without its extension; may be empty
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

// A column of the result grid as the settings dialog offers it.
struct GridColumnChoice {
    std::string fid;
    std::string name;
    int width = 0;  // pixels
    bool shown = true;

    friend bool operator==(const GridColumnChoice&, const GridColumnChoice&) = default;
};

// The result grid as the settings dialog works on it.
class GridColumns {
public:
    // The columns that a search can ask for, from left to right as the grid has them.
    virtual std::vector<GridColumnChoice> Choices() const = 0;

    // Takes the same columns back, in another order, with other widths, shown or not.
    virtual void Choose(const std::vector<GridColumnChoice>& columns) = 0;

protected:
    ~GridColumns() = default;
};

// The dialog over the screen's settings. It reads and writes the user's settings file itself, and asks the
// screen for the settings block with kSettingsFill before it opens and hands it back with kSettingsTaken.
class SettingsDialog {
public:
    static constexpr int kReloadGrid = 0x10;

    // Pages to open at.
    static constexpr int kFirstPage = 0;
    static constexpr int kColumnsPage = 1;

    virtual ~SettingsDialog() = default;

    // What was changed: 0 for nothing, else flags, kReloadGrid among them when the grid's columns were chosen
    // anew. `view` is the screen.
    virtual int Run(WindowHandle view, GridColumns& grid, int page) = 0;
};

// Interest groups of the user.
class InterestGroups {
public:
    virtual ~InterestGroups() = default;

    // Lets the user save these six-byte codes in a group of his. `window` is the screen, whose settings block
    // says how (kSettingsFill), `mainWindow` the host's.
    virtual int SaveInterest(WindowHandle window, const std::vector<std::string>& codes,
                             WindowHandle mainWindow, int) = 0;
};

// What a cell of a sheet is, beside its text.
enum class SheetFormat { Text, Integer, Decimal, Percent };

struct SheetColumn {
    std::string title;
    SheetFormat format = SheetFormat::Text;
};

// A table as it goes to a sheet: cells as plain text, a number with digits, sign and point alone. A number
// that is none is written as the text it is.
struct Sheet {
    std::string name;
    std::vector<SheetColumn> columns;
    std::vector<std::vector<std::string>> rows;  // one cell for each column
};

// A line of the sheet that says where the table comes from.
struct SheetNote {
    std::string label;
    std::string text;
};

// Sheets for a spreadsheet program.
class SheetExport {
public:
    virtual ~SheetExport() = default;

    // Asks where to, and writes the sheet there, with a second one of the notes, to which the host adds
    // market, date and time. What fails is told the user here.
    virtual void Save(const Sheet& sheet, const std::vector<SheetNote>& notes) = 0;
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
    SettingsDialog* settings = nullptr;
    InterestGroups* interests = nullptr;
    SheetExport* sheets = nullptr;
};

// Installs the services for screens that are created from now on, and hands them out.
JOGEON_HOST_API void Install(const Services& services);
JOGEON_HOST_API const Services& Installed();

}  // namespace jogeon::host
