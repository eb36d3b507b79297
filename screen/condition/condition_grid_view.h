// The condition grid: one row a condition, to read.
#pragma once

#include <QTableWidget>
#include <memory>
#include <vector>

#include "screen/condition/index_info.h"

namespace jogeon {

class ConditionGrid : public QTableWidget {
    Q_OBJECT

public:
    explicit ConditionGrid(QWidget* parent = nullptr);

    // Replaces all rows.
    void Fill(const std::vector<std::unique_ptr<CIndexInfo>>& conditions);

    // Rows count from 1; the header is row 0.
    void FocusRow(int row);

    // Takes the sequence marks from all rows.
    void ClearMarks();

    // A colour number, red in the low byte.
    void SetLineColor(std::uint32_t color);
};

}  // namespace jogeon
