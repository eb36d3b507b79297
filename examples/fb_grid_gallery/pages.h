// The pages of the gallery, in the order of the list. Each stands in a file of its own under pages/.
#pragma once

#include <memory>
#include <vector>

#include "grid_page.h"

struct PageEntry {
    const char* name;                     // as the list shows it
    std::unique_ptr<GridPage> (*make)();  // done when the page is first shown
};

const std::vector<PageEntry>& Pages();

std::unique_ptr<GridPage> MakeTextsPage();
std::unique_ptr<GridPage> MakeNumbersPage();
std::unique_ptr<GridPage> MakeChecksPage();
std::unique_ptr<GridPage> MakeEditingPage();
std::unique_ptr<GridPage> MakeHeadersPage();
std::unique_ptr<GridPage> MakeClicksPage();
std::unique_ptr<GridPage> MakeRowDragPage();
std::unique_ptr<GridPage> MakeRowMovePage();
std::unique_ptr<GridPage> MakeScrollPage();
std::unique_ptr<GridPage> MakeScalePage();
std::unique_ptr<GridPage> MakeExcelPage();
