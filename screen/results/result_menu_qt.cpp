#include "screen/results/result_menu_qt.h"

#include <QMenu>

#include "screen/results/result_grid_view.h"
#include "screen/results/result_links.h"

namespace jogeon {
namespace {

bool IsBlockOfSeveral(const std::vector<int>& rows) {
    return rows.size() > 1 && rows.back() - rows.front() + 1 == static_cast<int>(rows.size());
}

// A menu may stay open while a reply changes the rows: what is selected is asked for anew.
void PublishSelected(const ResultGrid& grid, ResultLinks& links) {
    const std::vector<int> rows = grid.GetSelectedRows();
    if (IsBlockOfSeveral(rows)) links.PublishRowCodes(rows.front(), rows.back());
}

// The keys are shown here and handled elsewhere: by the grid, and by the screen's table of keys. Ctrl+D saves
// all rows, so that it isn't shown where the entry saves some.
void ShowMenu(ResultGrid& grid, ResultLinks& links, const std::function<void()>& saveSheet, QPoint at) {
    auto* menu = new QMenu(&grid);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [menu](const char* text, bool enabled, const std::function<void()>& run) {
        menu->addAction(QString::fromUtf8(text), menu, run)->setEnabled(enabled);
    };
    const std::vector<int> selected = grid.GetSelectedRows();
    const bool anyRow = grid.GetRowCount() > 1;
    add("복사\tCtrl+C", !selected.empty(), [&grid] { grid.CopySelection(); });
    add("엑셀 파일로 저장\tCtrl+E", anyRow, saveSheet);
    menu->addSeparator();
    add("차트\tF7", true, [&links] { links.OpenChart(); });
    add(selected.size() > 1 ? "관심그룹에 저장" : "관심그룹에 저장\tCtrl+D", anyRow,
        [&links] { links.SaveSelectedInterest(); });
    add("선택 종목만 종목목록으로", IsBlockOfSeveral(selected),
        [&grid, &links] { PublishSelected(grid, links); });
    menu->popup(grid.viewport()->mapToGlobal(at));
}

}  // namespace

void GiveMenu(ResultGrid& grid, ResultLinks& links, std::function<void()> saveSheet) {
    grid.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(
        &grid, &QWidget::customContextMenuRequested, &grid,
        [&grid, &links, save = std::move(saveSheet)](const QPoint& at) { ShowMenu(grid, links, save, at); });
}

}  // namespace jogeon
