#include "terminal/sheet/xlsx_book.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

#include <xlsxwriter.h>

#include "screen/text/cp949.h"
#include "terminal/sheet/sheet_text.h"

namespace jogeon::terminal {
namespace {

constexpr lxw_color_t kHeaderFill = 0xDCE6F1;
constexpr std::size_t kLongestText = 32767;  // characters that a cell may have
constexpr std::size_t kNarrowest = 8, kWidest = 60;
constexpr std::size_t kFilterButton = 3;  // stands beside a column's title

std::string NumberCode(std::size_t decimals) {
    std::string code = "#,##0";
    if (decimals > 0) code.append(".").append(decimals, '0');
    return code;
}

// The formats of a workbook's cells, which belong to it.
class Formats {
public:
    explicit Formats(lxw_workbook& book) : book_(book) {
        for (lxw_format* bold : {header, label}) format_set_bold(bold);
        format_set_bg_color(header, kHeaderFill);
        format_set_bottom(header, LXW_BORDER_THIN);
        format_set_align(header, LXW_ALIGN_CENTER);
        format_set_align(label, LXW_ALIGN_VERTICAL_TOP);
        format_set_text_wrap(note);
    }

    // Of a number; but for a percentage with as many digits behind the point as came.
    lxw_format* Number(host::SheetFormat kind, std::size_t decimals) {
        if (kind == host::SheetFormat::Percent) return percent_;
        lxw_format*& format = numbers_[decimals];
        if (!format) format = New(NumberCode(decimals));
        return format;
    }

private:
    lxw_format* New(const std::string& code) {
        lxw_format* format = workbook_add_format(&book_);
        format_set_num_format(format, code.c_str());
        return format;
    }

    lxw_workbook& book_;
    lxw_format* const percent_ = New("0.00");
    std::map<std::size_t, lxw_format*> numbers_;  // by digits behind the point

public:
    lxw_format* const text = New("@");
    lxw_format* const header = New("@");
    lxw_format* const label = New("@");
    lxw_format* const note = New("@");
};

// One sheet that is being filled; remembers whether everything was taken.
class Page {
public:
    Page(lxw_workbook& book, const std::string& name)
        : sheet_(workbook_add_worksheet(&book, ToUtf8(name).c_str())), taken_(sheet_ != nullptr) {}

    bool Taken() const { return taken_; }
    lxw_worksheet* Sheet() const { return sheet_; }

    // A text stays one, whatever it looks like. An empty cell is left out.
    void Text(std::size_t row, std::size_t column, std::string_view text, lxw_format* format) {
        const std::string utf8 = ToUtf8(CutToBytes(text, kLongestText));
        if (!text.empty())
            Note(worksheet_write_string(sheet_, Row(row), Column(column), utf8.c_str(), format));
    }
    void Number(std::size_t row, std::size_t column, double value, lxw_format* format) {
        Note(worksheet_write_number(sheet_, Row(row), Column(column), value, format));
    }
    void Width(std::size_t column, std::size_t width) {
        const double digits = static_cast<double>(std::clamp(width + 1, kNarrowest, kWidest));
        Note(worksheet_set_column(sheet_, Column(column), Column(column), digits, nullptr));
    }
    void Note(lxw_error error) { taken_ = taken_ && error == LXW_NO_ERROR; }

    static lxw_row_t Row(std::size_t row) { return static_cast<lxw_row_t>(row); }
    static lxw_col_t Column(std::size_t column) { return static_cast<lxw_col_t>(column); }

private:
    lxw_worksheet* sheet_;
    bool taken_;
};

void FillCell(Page& page, std::size_t row, std::size_t column, std::string_view cell, host::SheetFormat kind,
              Formats& formats) {
    const auto number = kind == host::SheetFormat::Text ? std::nullopt : NumberOf(cell);
    if (number) {
        page.Number(row, column, number->value, formats.Number(kind, number->decimals));
    } else {
        page.Text(row, column, cell, formats.text);
    }
}

void FillColumn(Page& page, const host::Sheet& sheet, std::size_t column, Formats& formats) {
    const host::SheetFormat kind = sheet.columns[column].format;
    const std::string title = TitleOf(sheet.columns[column]);
    page.Text(0, column, title, formats.header);
    std::size_t width = title.size() + kFilterButton;
    for (std::size_t row = 0; row < sheet.rows.size(); ++row) {
        if (column >= sheet.rows[row].size()) continue;
        const std::string& cell = sheet.rows[row][column];
        FillCell(page, row + 1, column, cell, kind, formats);
        width = std::max(width, ShownWidth(cell, kind));
    }
    page.Width(column, width);
}

// What the table's sheet is beside its cells: a header that stays, a filter, no warnings of numbers in texts.
void Furnish(Page& page, const host::Sheet& sheet) {
    if (sheet.columns.empty()) return;
    const lxw_row_t lastRow = Page::Row(sheet.rows.size());
    const lxw_col_t lastColumn = Page::Column(sheet.columns.size() - 1);
    char range[LXW_MAX_CELL_RANGE_LENGTH];
    lxw_rowcol_to_range(range, 0, 0, lastRow, lastColumn);
    page.Note(worksheet_autofilter(page.Sheet(), 0, 0, lastRow, lastColumn));
    page.Note(worksheet_ignore_errors(page.Sheet(), LXW_IGNORE_NUMBER_STORED_AS_TEXT, range));
    worksheet_freeze_panes(page.Sheet(), 1, 0);
}

bool FillTable(lxw_workbook& book, const host::Sheet& sheet, Formats& formats) {
    Page page(book, SheetName(sheet.name));
    if (!page.Taken()) return false;
    for (std::size_t column = 0; column < sheet.columns.size(); ++column) {
        FillColumn(page, sheet, column, formats);
    }
    Furnish(page, sheet);
    return page.Taken();
}

bool FillNotes(lxw_workbook& book, const std::vector<host::SheetNote>& notes, const Formats& formats) {
    Page page(book, ToCp949(kNotesName));
    if (!page.Taken()) return false;
    std::size_t labelWidth = 0, textWidth = 0;
    for (std::size_t row = 0; row < notes.size(); ++row) {
        page.Text(row, 0, notes[row].label, formats.label);
        page.Text(row, 1, notes[row].text, formats.note);
        labelWidth = std::max(labelWidth, notes[row].label.size());
        textWidth = std::max(textWidth, notes[row].text.size());
    }
    page.Width(0, labelWidth);
    page.Width(1, textWidth);
    return page.Taken();
}

}  // namespace

bool FillBook(lxw_workbook& book, const host::Sheet& sheet, const std::vector<host::SheetNote>& notes) {
    Formats formats(book);
    return FillTable(book, sheet, formats) && FillNotes(book, notes, formats);
}

}  // namespace jogeon::terminal
