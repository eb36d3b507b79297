// Where the stocks of the result grid go: the other screens, the chart, an interest group.
//
// Relies on the grid behind ResultView, the flow that knows whose result it shows, and the host. Without a
// main window of the host nothing is shared and nothing opens. Rows count as in the grid.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/host/services.h"
#include "screen/results/host_main_window.h"
#include "screen/results/result_flow.h"
#include "screen/results/result_view_interface.h"
#include "screen/settings/screen_settings.h"

namespace jogeon {

// Keys as the host numbers them.
inline constexpr int kKeyUp = 0x26;
inline constexpr int kKeyDown = 0x28;

class ResultLinks {
public:
    // All of these outlive the links; `settings` is read at each key, a service when it is needed.
    struct Parts {
        ResultView& view;
        const ResultFlow& results;
        const host::Services& services;
        const HostMainWindow& mainWindow;
        const ScreenSettings& settings;
        host::WindowHandle screen;
    };

    explicit ResultLinks(const Parts& parts) : parts_(parts) {}

    // Shares what stands behind the first character of `text` as the code under `mainKey`.
    void SetCodeTags(const std::string& mainKey, std::string_view text);

    // Lets the other screens follow the stock of a row's text, or of a cell with market letter and code.
    void SendCodeLink(std::string_view text);
    void SendCellLink(int row, int column);

    // A row was clicked, or double-clicked, in whatever column.
    void OnRowClicked(int row) { SendCellLink(row, NameColumn()); }
    void OnRowDoubleClicked(int row, host::WindowHandle grid);

    // A key that the grid has acted on already. 1 if it was the links' affair, which it is while exactly one
    // row is selected.
    int HandleGridKey(int key);

    // A stock of the published list was chosen: the link, and its row, if the grid has it.
    void ChooseCode(const std::string& code);

    void OpenChart();

    // Saves the codes of all rows in an interest group; or those of the selected rows, if there are several.
    void SaveInterest();
    void SaveSelectedInterest();

    // Publishes the codes of a block of rows in the place of the whole result's. Gives 1.
    int PublishRowCodes(int first, int last);

    // The selected rows if they are more than one, else all.
    std::vector<int> ChosenRows() const;

private:
    int NameColumn() const;
    std::string CodeOf(int row) const;
    void SaveCodes(const std::vector<int>& rows);
    void ShareCode(const std::string& mainKey, const std::string& code);
    void SendCode(const std::string& code);

    const Parts parts_;
};

}  // namespace jogeon
