// One page of the gallery: a title, what to try, a grid, and controls below it.
//
// The page is its grid's parent, so it is told what happens there and hands it on as a line of text.
#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include <screen/fbgrid/fb_grid_widget.h>

class GridPage : public QWidget {
    Q_OBJECT

public:
    // `file` is the page's own source file.
    GridPage(const QString& title, const QString& hint, const QString& file);

    const QString& Title() const { return title_; }
    const QString& File() const { return file_; }

    // The grid and the controls, in their order.
    QWidgetList TabStops() const;

    // Focuses the first cell below the headers, so that the keys have somewhere to start.
    void FocusFirstCell();

    // Brings the page into the state that tells most in a picture.
    virtual void Pose() {}

signals:
    void Told(const QString& line);

protected:
    CFBGrid& Grid() { return grid_; }

    // From left to right below the grid.
    void AddControl(QWidget& control);
    QPushButton& AddButton(const QString& text, const std::function<void()>& pressed);

    virtual void OnNotify(const FBGridNotify&) {}
    bool event(QEvent* event) override;

private:
    const QString title_;
    const QString file_;
    CFBGrid& grid_;
    QHBoxLayout& controls_;
};
