// Condition grid, expression box and parameter panel together, as the condition editor sees them.
#pragma once

#include "screen/condition/bbox_panel_pane.h"
#include "screen/condition/condition_editor.h"
#include "screen/condition/condition_grid_view.h"
#include "screen/expression/expression_edit.h"

namespace jogeon {

class ConditionsPane : public ConditionView {
public:
    // The three windows belong to the screen and outlive this object.
    ConditionsPane(ConditionGrid& grid, ExpressionEdit& expression, BBoxPanel& panel)
        : grid_(grid), expression_(expression), panel_(panel) {}

    void FillConditionGrid(const ConditionList& conditions) override { grid_.Fill(conditions); }
    void UpdateRow(int row, const CIndexInfo& condition) override { grid_.UpdateRow(row, condition); }
    void FocusRow(int row) override { grid_.FocusRow(row); }
    void MarkSequenceRow(int row) override { grid_.MarkRow(row); }
    void ClearSequenceMarks() override { grid_.ClearMarks(); }
    std::string ExpressionText() const override { return expression_.ExpressionText(); }
    void SetExpressionText(const std::string& text) override { expression_.SetExpressionText(text); }
    void ShowCondition(const CIndexInfo& condition, bool shown) override {
        if (panel_.Current() != &condition) RefreshCondition(condition);
        panel_.setVisible(shown);
    }
    void RefreshCondition(const CIndexInfo& condition) override {
        panel_.ShowIndex(true, &condition, PanelMode::Existing);
    }
    const CIndexInfo* ShownCondition() const override { return panel_.Current(); }
    void HidePanel() override {
        panel_.Reset();
        panel_.hide();
    }
    void ResetPanel() override { panel_.Reset(); }
    std::unique_ptr<CIndexInfo> PanelCondition() override { return panel_.TakeCondition(); }
    void OnAdded(const CIndexInfo& condition) override { panel_.OnAdded(condition); }

private:
    ConditionGrid& grid_;
    ExpressionEdit& expression_;
    BBoxPanel& panel_;
};

}  // namespace jogeon
