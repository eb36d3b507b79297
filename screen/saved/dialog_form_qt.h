// What the dialogs over saved sets have in common: controls at the places of a table, and a list with
// columns.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTreeWidget>
#include <span>
#include <string>
#include <vector>

#include "screen/saved/dialog_places.h"
#include "screen/saved/saved_condition_file.h"

namespace jogeon {

// Gives the dialog its title, its fixed size and its look.
void SetUpDialog(QDialog& dialog, int id, const char* title, int width, int height);

// Puts `widget`, a child of a dialog, at the place of control `id`, which becomes its object name.
void PlaceControl(QWidget& widget, std::span<const DialogPlace> places, int id);

QPushButton& AddButton(QDialog& dialog, std::span<const DialogPlace> places, int id, const char* caption);

// A flat list of one selectable row at a time, over which `columns` stand.
void SetUpList(QTreeWidget& list, const QStringList& columns);

// Fills a list of one column with the sets, "[07]name" each. A name that is wider than the list can be
// scrolled to its end.
void ListSets(QTreeWidget& list, const std::vector<SavedSetName>& sets);

}  // namespace jogeon
