#include "terminal/sheet/xlsx_export.h"

#include <QDateTime>
#include <utility>

#include "screen/text/cp949_qt.h"
#include "terminal/sheet/sheet_text.h"
#include "terminal/sheet/xlsx_writer.h"

namespace jogeon::terminal {
namespace {

std::string Written(const QDateTime& time, const char* format) {
    return time.toString(format).toStdString();
}

}  // namespace

XlsxExport::XlsxExport(host::Questions& questions, std::function<SheetOrigin()> origin)
    : questions_(questions), origin_(std::move(origin)) {}

void XlsxExport::Save(const host::Sheet& sheet, const std::vector<host::SheetNote>& notes) {
    const QDateTime now = QDateTime::currentDateTime();
    const auto path = questions_.AskSavePath(
        {"Excel Worksheet Files (*.xlsx)", "xlsx", PlainName(sheet.name) + "_" + Written(now, "yyyyMMdd")});
    if (!path) return;
    const SheetOrigin origin = origin_();
    std::vector<host::SheetNote> all = notes;
    all.push_back({"시장"_cp949, origin.market});
    all.push_back({"기준일"_cp949, origin.marketDate});
    all.push_back({"저장 시각"_cp949, Written(now, "yyyy-MM-dd HH:mm:ss")});
    all.push_back({"사용자"_cp949, origin.user});
    const std::string failure = WriteXlsx(sheet, all, *path);
    if (!failure.empty()) questions_.Ask({failure, FromQString(tr("엑셀 저장")), host::Icon::Warning});
}

}  // namespace jogeon::terminal
