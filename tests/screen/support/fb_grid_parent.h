// A window with one grid in it that notes what the grid tells, and the user's hands on that grid.
#pragma once

#include <QApplication>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "screen/fbgrid/fb_grid_geometry.h"
#include "screen/fbgrid/fb_grid_widget.h"

namespace jogeon::test {

class GridParent : public QWidget {
public:
    // 300 by 200 pixels: a header of 18 and, under it, ten rows of 18. Columns: 0 check box (20 pixels wide),
    // 1 edit (60), 2 list (60), 3 push button (40), 4 plain (80); the list's texts are those of `items`.
    explicit GridParent(int bodyRows = 5) : grid(new CFBGrid) {
        resize(300, 230);
        grid->Create(QRect(0, 0, 300, 200), this, 16129);
        const std::vector<std::pair<int, std::uint32_t>> columns = {
            {20, CCell::kCheck}, {60, CCell::kEdit}, {60, CCell::kList}, {40, CCell::kButton}, {80, 0}};
        for (const auto& [width, state] : columns) grid->AddColumn("h", width);
        grid->SetRowCnt(1 + bodyRows);
        auto list = std::make_unique<CStringArray>();
        *list = {"one", "two", "three"};
        grid->AddDropDownItem(std::move(list));
        for (int row = 1; row <= bodyRows; ++row) {
            for (int col = 0; col < grid->GetColCnt(); ++col) {
                (*grid)[row][col].state = columns[static_cast<std::size_t>(col)].second;
                (*grid)[row][col].text = col == 0 ? "" : std::to_string(row) + std::to_string(col);
            }
        }
    }
    ~GridParent() override {
        delete grid;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void ShowActive() {
        show();
        activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }

    // Gives (row, 2) a working list.
    CCell& ListCell(int row, std::uint32_t state = CCell::kList) {
        CCell& cell = (*grid)[row][2];
        cell.state = state;
        cell.listIndex = 0;
        return cell;
    }

    QPoint Centre(int row, int col) const {
        const auto rect = grid->Geometry().GetCellRect(row, col);
        return rect ? QPoint(rect->left + rect->width / 2, rect->top + rect->height / 2) : QPoint(-9, -9);
    }

    // Steps of the left button divided by ";": "down 1,3", "move 2,0", "up 2,0", "double 1,0", "right 1,0";
    // "-1,-1" is a point beside all cells.
    void Do(const std::string& steps) {
        std::istringstream in(steps);
        std::string what;
        char comma = 0;
        int row = 0;
        int col = 0;
        for (std::string step; std::getline(in, step, ';') && grid;) {
            std::istringstream(step) >> what >> row >> comma >> col;
            DoStep(what, row < 0 ? QPoint(290, 190) : Centre(row, col));
        }
    }
    void Click(int row, int col) {
        DoStep("down", Centre(row, col));
        if (grid) DoStep("up", Centre(row, col));
    }

    // What has been told since the last question: "8 1,2" code, row and column, divided by blanks.
    std::string Told() {
        std::string all;
        for (const std::string& one : log_) all += (all.empty() ? "" : " ") + one;
        log_.clear();
        return all;
    }

    QPointer<CFBGrid> grid;
    std::function<void(const FBGridNotify&)> onNotify;

protected:
    bool event(QEvent* event) override {
        if (event->type() != FBGridNotify::EventType()) return QWidget::event(event);
        const auto& notify = static_cast<const FBGridNotify&>(*event);
        EXPECT_EQ(&notify.grid, grid);
        EXPECT_EQ(notify.id, 16129);
        const bool placed = notify.row != -1 || notify.col != -1;
        log_.push_back(std::to_string(notify.code) +
                       (placed ? ":" + std::to_string(notify.row) + "," + std::to_string(notify.col) : ""));
        if (onNotify) onNotify(notify);
        return true;
    }

private:
    void DoStep(const std::string& what, QPoint at) {
        const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
            QWidget* on = grid->viewport();
            QMouseEvent event(type, at, on->mapToGlobal(at), button, held, Qt::NoModifier);
            QApplication::sendEvent(on, &event);
        };
        if (what == "down") send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        if (what == "move") send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
        if (what == "up") send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        if (what == "double") send(QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton);
        if (what == "right") send(QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
    }

    std::vector<std::string> log_;
};

}  // namespace jogeon::test
