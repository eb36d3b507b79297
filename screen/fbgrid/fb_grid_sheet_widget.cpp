// The part of CFBGrid that saves worksheets and tells the user where it can't.
#include <QGuiApplication>
#include <QPointer>
#include <optional>

#include "screen/fbgrid/fb_grid_sheet.h"
#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/host/message_boxes_qt.h"
#include "screen/host/services.h"
#include "screen/text/cp949_qt.h"

using namespace jogeon;

namespace {

// The host's, or for a program that has installed no host, plain boxes over the grid.
class GridQuestions {
public:
    explicit GridQuestions(QWidget& grid) : own_(grid) {}

    host::Questions& operator*() {
        host::Questions* installed = host::Installed().questions;
        return installed ? *installed : own_;
    }

private:
    host::MessageBoxes own_;
};

}  // namespace

void CFBGrid::SaveToExcel(const std::filesystem::path& path) {
    if (SaveSheet(*this, path)) return;
    GridQuestions questions(*this);
    (*questions)
        .Ask({.text = "지정한 파일이 다른 프로그램에서 사용 중인지 확인 하세요."_cp949,
              .caption = "엑셀저장 에러"_cp949,
              .icon = host::Icon::Warning});
}

void CFBGrid::SaveToExcelPartially(const std::string& title, int firstCol, int lastCol) {
    const QPointer<CFBGrid> self(this);
    GridQuestions questions(*this);
    const auto path =
        (*questions).AskSavePath({.filterName = "Excel Worksheet Files (*.xls)", .extension = "xls"});
    if (!self || !path || SaveSheetPartially(*this, *path, title, firstCol, lastCol)) return;
    (*questions)
        .Ask({.text = "파일을 열 수 없습니다."_cp949,
              .caption = FromQString(QGuiApplication::applicationDisplayName()),
              .icon = host::Icon::Warning});
}
