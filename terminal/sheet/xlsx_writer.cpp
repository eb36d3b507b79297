#include "terminal/sheet/xlsx_writer.h"

#include <QCoreApplication>
#include <fstream>
#include <memory>
#include <optional>
#include <random>
#include <sstream>
#include <system_error>

#include <xlsxwriter.h>

#include "screen/files/atomic_file.h"
#include "screen/text/cp949_qt.h"
#include "terminal/sheet/xlsx_book.h"
#include "terminal/sheet/xlsx_package.h"

namespace jogeon::terminal {
namespace {

namespace fs = std::filesystem;

struct XlsxWriter {
    Q_DECLARE_TR_FUNCTIONS(XlsxWriter)
};

// A folder of the library's own among the temporary files, gone with everything in it at the end.
class ScratchFolder {
public:
    ScratchFolder() {
        std::error_code error;
        const fs::path parent = fs::temp_directory_path(error);
        path_ = parent / ("jogeon-sheet-" + std::to_string(std::random_device()()));
        if (error || !fs::create_directory(path_, error)) path_.clear();
    }
    ~ScratchFolder() {
        std::error_code error;
        if (!path_.empty()) fs::remove_all(path_, error);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const fs::path& Path() const { return path_; }  // empty if there is no room for it

private:
    fs::path path_;
};

// Has the library write the workbook to `file`.
bool WriteBook(const host::Sheet& sheet, const std::vector<host::SheetNote>& notes, const fs::path& file) {
    std::string folder = file.parent_path().string();
    lxw_workbook_options options{};
    options.tmpdir = folder.data();
    std::unique_ptr<lxw_workbook, decltype(&lxw_workbook_free)> book(
        workbook_new_opt(file.string().c_str(), &options), &lxw_workbook_free);
    if (!book || !FillBook(*book, sheet, notes)) return false;
    return workbook_close(book.release()) == LXW_NO_ERROR;  // closing frees it
}

// The bytes of a whole workbook; none if it couldn't be made.
std::optional<std::string> MakePackage(const host::Sheet& sheet, const std::vector<host::SheetNote>& notes) {
    const ScratchFolder scratch;
    const fs::path file = scratch.Path() / "sheet.xlsx";
    if (scratch.Path().empty() || !WriteBook(sheet, notes, file)) return std::nullopt;
    std::ostringstream package;
    package << std::ifstream(file, std::ios::binary).rdbuf();
    if (!IsWhole(package.view())) return std::nullopt;
    return std::move(package).str();
}

}  // namespace

std::string WriteXlsx(const host::Sheet& sheet, const std::vector<host::SheetNote>& notes,
                      const fs::path& path) {
    const std::optional<std::string> package = MakePackage(sheet, notes);
    if (!package) {
        return FromQString(
            XlsxWriter::tr("엑셀 파일을 만들지 못했습니다.\n임시 폴더에 빈 공간이 있는지 확인해 주십시오."));
    }
    if (!WriteFileAtomically(path, *package)) {
        return FromQString(
            XlsxWriter::tr(
                "파일에 저장하지 못했습니다.\n쓰기 권한과 디스크의 빈 공간을 확인해 주십시오.\n\n%1")
                .arg(QString::fromStdU16String(path.u16string())));
    }
    return {};
}

}  // namespace jogeon::terminal
