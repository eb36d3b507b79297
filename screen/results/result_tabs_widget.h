// A row of tabs, as under the result grid, one for each result. Labels are CP949; tabs count from 0.
//
// Operations tell nobody: currentChanged reaches a listener only when the user has chosen a tab.
#pragma once

#include <QTabBar>
#include <string>

namespace jogeon {

class CNVTab : public QTabBar {
    Q_OBJECT

public:
    // `padding`: pixels on each side of a label.
    explicit CNVTab(QWidget* parent = nullptr, int padding = 10);

    int TabCount() const { return count(); }
    int SelectedTab() const { return currentIndex(); }  // -1 without tabs
    std::string TabLabel(int tab) const;                // empty for a tab that isn't there

    // Adds at the end. The first tab is selected by being there.
    void AddTab(const std::string& label);
    void SelectTab(int tab);
    void RemoveTab(int tab);

    void RefreshColors();  // after a change of the colour table

private:
    const int padding_;
};

}  // namespace jogeon
