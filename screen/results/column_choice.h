// The columns of the result grid as the user has chosen them: order, widths, what is shown.
//
// The grid itself shows what fits the result of the moment; this is what is kept in the user's layout file
// and offered in the settings dialog. It relies on the column tables for what a search can ask for.
#pragma once

#include <vector>

#include "screen/host/services.h"
#include "screen/results/grid_layout.h"
#include "screen/transactions/result_columns.h"

namespace jogeon {

class ColumnChoice final : public host::GridColumns {
public:
    // The tables outlive this object.
    explicit ColumnChoice(const ColumnTables& tables) : tables_(tables) {}

    // The layout as it was read from a file, or has just been written to one.
    void TakeStored(GridLayout layout);

    const GridLayout& Layout() const { return layout_; }

    // Whether the layout is another than the stored one.
    bool Changed() const { return layout_ != stored_; }

    // The user has sized the grid column with this number. Pixels.
    void SetWidth(int column, int width);

    std::vector<host::GridColumnChoice> Choices() const override;

    // Columns that weren't offered are ignored, those left out keep their state behind the others, and the
    // stock's name is always shown. The columns for values stay behind all of them.
    void Choose(const std::vector<host::GridColumnChoice>& columns) override;

private:
    bool CanBeAskedFor(const GridColumn& column) const;

    const ColumnTables& tables_;
    GridLayout layout_;
    GridLayout stored_;
};

// What `layout` offers to choose from, as if it were the user's: for going back to it.
std::vector<host::GridColumnChoice> ChoicesOf(const GridLayout& layout);

}  // namespace jogeon
