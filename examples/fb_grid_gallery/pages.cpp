#include "pages.h"

const std::vector<PageEntry>& Pages() {
    static const std::vector<PageEntry> pages = {
        {"Texts, colours, images", MakeTextsPage},
        {"Numbers", MakeNumbersPage},
        {"Check boxes and buttons", MakeChecksPage},
        {"Editing in place", MakeEditingPage},
        {"Headers and sizes", MakeHeadersPage},
        {"Clicks and keys", MakeClicksPage},
        {"Dragging a row", MakeRowDragPage},
        {"Moving a row by keys", MakeRowMovePage},
        {"Scroll bars", MakeScrollPage},
        {"100,000 rows", MakeScalePage},
        {"Excel files", MakeExcelPage},
    };
    return pages;
}
