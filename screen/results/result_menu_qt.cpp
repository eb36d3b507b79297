#include "screen/results/result_menu_qt.h"

#include <QMenu>

#include "screen/results/result_grid_view.h"
#include "screen/results/result_links.h"

namespace jogeon {
namespace {

bool IsBlockOfSeveral(const std::vector<int>& rows) {
    return rows.size() > 1 && rows.back() - rows.front() + 1 == static_cast<int>(rows.size());
}

// The keys are shown here and handled elsewhere: by the grid, and by the screen's table of keys.
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
    add("관심그룹에 저장\tCtrl+D", anyRow, [&links] { links.SaveSelectedInterest(); });
    add("선택 종목만 종목목록으로", IsBlockOfSeveral(selected),
        [&links, selected] { links.PublishRowCodes(selected.front(), selected.back()); });
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
