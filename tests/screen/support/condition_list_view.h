// A condition grid, an expression box and a panel without windows, for tests of the condition editor.
#pragma once

#include <cctype>
#include <memory>
#include <string>

#include "screen/condition/condition_view.h"

namespace jogeon::test {

class ConditionListView : public ConditionView {
public:
    void FillConditionGrid(const ConditionList& conditions) override {
        rows.clear();
        marks.clear();  // with the rows that had them
        for (const auto& condition : conditions) rows += Mark(*condition);
    }
    void UpdateRow(int row, const CIndexInfo& condition) override {
        rows.at(static_cast<std::size_t>(row - 1)) = Mark(condition);
    }
    void FocusRow(int row) override { focusedRow = row; }
    void MarkSequenceRow(int row) override { marks += std::to_string(row); }
    void ClearSequenceMarks() override { marks.clear(); }
    std::string ExpressionText() const override { return expression; }
    void SetExpressionText(const std::string& text) override { expression = text; }
    void ShowCondition(const CIndexInfo& condition, bool shown) override {
        RefreshCondition(condition);
        panelShown = shown;
    }
    const CIndexInfo* ShownCondition() const override { return panel; }
    void RefreshCondition(const CIndexInfo& condition) override { panel = refreshed = &condition; }
    void HidePanel() override { panelShown = false; }
    void ResetPanel() override { panel = nullptr; }
    std::unique_ptr<CIndexInfo> PanelCondition() override {
        auto condition = std::make_unique<CIndexInfo>();
        condition->m_strKey = panelKey;
        return condition;
    }
    void OnAdded(const CIndexInfo& condition) override { panel = &condition; }

    // One letter a row; a small one for an unchecked condition.
    std::string rows;
    std::string marks;  // rows that the sequential search has reached
    std::string expression;
    const CIndexInfo* panel = nullptr;      // the condition in the panel
    const CIndexInfo* refreshed = nullptr;  // the last one that it was given
    std::string panelKey = "0101010008";
    bool panelShown = false;
    int focusedRow = -1;

private:
    static char Mark(const CIndexInfo& condition) {
        const char letter = condition.m_chLetter;
        return condition.m_bChecked ? letter : static_cast<char>(std::tolower(letter));
    }
};

}  // namespace jogeon::test
