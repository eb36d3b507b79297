// The look of lists and tables, and of the buttons under them, in the screens' own colours.
#pragma once

#include <QPalette>
#include <QString>

class QDialog;
class QHBoxLayout;
class QPushButton;
class QTableView;
class QTreeView;
class QTreeWidgetItem;

namespace jogeon::terminal {

// The windows' palette of the theme that holds now, with the colours of lists.
QPalette ListPalette();

// A list of whole rows with a header, in these colours. A cell's own colour stays when its row is selected.
void LookLikeList(QTableView& table);
void LookLikeList(QTreeView& tree);

// Another theme holds now.
void TakeListColors(QTableView& table);

// Another font does: rows as high as its text needs.
void FitRows(QTableView& table);

// Gives the row of a tree the height that rows of tables have.
void LookLikeRow(QTreeWidgetItem& item);

// A button that Enter doesn't press. The tooltip is what it does, also for who can't see an arrow.
QPushButton* MakeButton(const char* name, const QString& caption, const QString& tooltip);

// No wider than its caption needs.
void FitToCaption(QPushButton& button);

// The foot of a dialog, to the right: `ok`, which Enter presses and which accepts, and a button that rejects.
QHBoxLayout* MakeDialogFoot(QDialog& dialog, QPushButton& ok, const QString& reject);

}  // namespace jogeon::terminal
