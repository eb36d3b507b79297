#include "screen/results/result_links.h"

#include <algorithm>
#include <numeric>

#include "screen/host/shared_tags.h"
#include "screen/results/code_list.h"
#include "screen/results/name_cell.h"

namespace jogeon {
namespace {

using namespace host::tags;

constexpr char kChartScreen[] = "0615";

// The rows from `first` to `last`.
std::vector<int> Rows(int first, int last) {
    std::vector<int> rows(static_cast<std::size_t>(std::max(last - first + 1, 0)));
    std::iota(rows.begin(), rows.end(), first);
    return rows;
}

}  // namespace

// --- links

void ResultLinks::SetCodeTags(const std::string& mainKey, std::string_view text) {
    ShareCode(mainKey, std::string(BehindMarketLetter(text)));
}

void ResultLinks::ShareCode(const std::string& mainKey, const std::string& code) {
    host::LinkStore& links = *parts_.services.links;
    links.NVLink_SetLinkTagData({mainKey, kStockTag, code});
    links.NVLink_SetLinkTagData({mainKey, kSecondStockTag, code});
}

void ResultLinks::SendCode(const std::string& code) {
    if (!parts_.mainWindow.Handle()) return;
    ShareCode(kStockKey, code);
    parts_.mainWindow.TellTagChanged(kStockKey, kStockTag);
}

void ResultLinks::SendCodeLink(std::string_view text) {
    SendCode(std::string(BehindMarketLetter(text)));
}

void ResultLinks::SendCellLink(int row, int column) {
    SendCode(std::string(CodeInNameCell(parts_.view.GetValue(row, column))));
}

void ResultLinks::OnRowDoubleClicked(int row, host::WindowHandle grid) {
    if (row < kFirstResultRow) return;
    SendCodeLink(parts_.view.GetValue(row, NameColumn()));
    parts_.mainWindow.TellRowChosen(grid);
}

int ResultLinks::HandleGridKey(int key) {
    const std::vector<int> rows = parts_.view.GetSelectedRows();
    if (rows.size() != 1) return 0;
    const int name = parts_.view.FindColumnByTag(std::string(kNameColumnFid));
    // Without a name column the key's number serves as the column.
    if ((key == kKeyUp || key == kKeyDown) && parts_.settings.keyArrow) {
        SendCellLink(rows.front(), name ? name : key);
    }
    // The delete key does nothing to a row: what a search has found stays in the list.
    return 1;
}

void ResultLinks::ChooseCode(const std::string& code) {
    SendCode(code);
    ResultView& view = parts_.view;
    for (int row = kFirstResultRow; row <= view.GetRowCount(); ++row) {
        if (BehindMarketLetter(view.GetValue(row, NameColumn())) != code) continue;
        view.ScrollCellInView(row, NameColumn());
        return view.SelectRow(row);
    }
}

// --- other screens and lists

void ResultLinks::OpenChart() {
    if (!parts_.mainWindow.Handle()) return;
    const ResultSet* result = parts_.results.Selected();
    const std::vector<int> rows = parts_.view.GetSelectedRows();
    if (!result || result->total == 0 || result->received == 0 || rows.empty()) {
        return parts_.mainWindow.OpenScreen(kChartScreen);
    }
    ShareCode(kStockKey, CodeOf(rows.front()));
    parts_.mainWindow.OpenLinkedScreen(kChartScreen, kStockKey, kStockTag);
}

void ResultLinks::SaveInterest() {
    SaveCodes(Rows(kFirstResultRow, parts_.view.GetRowCount()));
}

void ResultLinks::SaveSelectedInterest() {
    SaveCodes(ChosenRows());
}

void ResultLinks::SaveCodes(const std::vector<int>& rows) {
    if (!parts_.mainWindow.Handle() || parts_.results.ResultSets().empty()) return;
    std::vector<std::string> codes;
    for (const int row : rows) codes.push_back(CodeOf(row));
    parts_.services.interests->SaveInterest(parts_.screen, codes, parts_.mainWindow.Handle(), 1);
}

int ResultLinks::PublishRowCodes(int first, int last) {
    std::vector<std::string> codes;
    for (const int row : Rows(first, last)) codes.push_back(CodeOf(row));
    const ResultSet* result = parts_.results.Selected();
    PublishCodeList(*parts_.services.links, parts_.view, codes,
                    result ? result->searched.conditionSet : std::string());
    return 1;
}

std::vector<int> ResultLinks::ChosenRows() const {
    std::vector<int> rows = parts_.view.GetSelectedRows();
    return rows.size() > 1 ? rows : Rows(kFirstResultRow, parts_.view.GetRowCount());
}

int ResultLinks::NameColumn() const {
    const int column = parts_.view.FindColumnByTag(std::string(kNameColumnFid));
    return column ? column : 1;
}

std::string ResultLinks::CodeOf(int row) const {
    return std::string(CodeInNameCell(parts_.view.GetValue(row, NameColumn())));
}

}  // namespace jogeon
