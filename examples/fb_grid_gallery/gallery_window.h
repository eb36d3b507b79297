// The gallery's window: the list of pages, the page that is shown, its code, and a log of what its grid
// tells.
#pragma once

#include <QListWidget>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <vector>

#include "pages.h"

class GalleryWindow : public QMainWindow {
    Q_OBJECT

public:
    GalleryWindow();

    void ShowPage(int index);
    GridPage& Page(int index);  // made now if it wasn't yet

private:
    QWidget* MakeLeft();
    QWidget* MakeRight();
    void AddPageShortcut(Qt::Key key, int step);

    QListWidget& list_;
    QStackedWidget& stack_;
    QPlainTextEdit& code_;
    QPlainTextEdit& log_;
    std::vector<GridPage*> pages_;  // the stack's; null for one that hasn't been shown yet
};
