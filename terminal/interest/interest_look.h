// The look of the interest window and its dialogs, of the screen's own colours.
#pragma once

#include <QPalette>
#include <QString>

class QAbstractButton;
class QPushButton;
class QTableView;
class QTreeView;
class QTreeWidgetItem;

namespace jogeon::terminal {

// Of the theme that holds now.
QPalette InterestPalette();

// A list of whole rows with a header, in these colours.
void LookLikeList(QTableView& table);
void LookLikeList(QTreeView& tree);

// Gives the row of a tree the height that rows of tables have.
void LookLikeRow(QTreeWidgetItem& item);

// Outlines a radio button or check box so that it is seen on a dark ground as well.
void LookLikeChoice(QAbstractButton& button);

// A button that Enter doesn't press. The tooltip is what it does, also for who can't see an arrow.
QPushButton* MakeButton(const char* name, const QString& caption, const QString& tooltip);

// No wider than its caption needs.
void FitToCaption(QPushButton& button);

}  // namespace jogeon::terminal
