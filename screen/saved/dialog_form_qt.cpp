#include "screen/saved/dialog_form_qt.h"

#include <QHeaderView>
#include <algorithm>

#include "screen/palette/dialog_style_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {

void SetUpDialog(QDialog& dialog, int id, const char* title, int width, int height) {
    dialog.setObjectName(QString::number(id));
    dialog.setWindowTitle(QString::fromUtf8(title));
    dialog.setModal(true);
    dialog.setFixedSize(width, height);
    StyleDialog(dialog);
}

void PlaceControl(QWidget& widget, std::span<const DialogPlace> places, int id) {
    widget.setObjectName(QString::number(id));
    for (const DialogPlace& place : places) {
        if (place.id == id) widget.setGeometry(place.left, place.top, place.width, place.height);
    }
}

QPushButton& AddButton(QDialog& dialog, std::span<const DialogPlace> places, int id, const char* caption) {
    auto* button = new QPushButton(QString::fromUtf8(caption), &dialog);
    button->setAutoDefault(false);  // Enter means OK wherever the focus is
    PlaceControl(*button, places, id);
    return *button;
}

void SetUpList(QTreeWidget& list, const QStringList& columns) {
    list.setHeaderLabels(columns);
    list.setRootIsDecorated(false);
    list.setUniformRowHeights(true);
    list.setAllColumnsShowFocus(true);
    list.setEditTriggers(QAbstractItemView::NoEditTriggers);
    list.setSelectionMode(QAbstractItemView::SingleSelection);
    list.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.header()->setSectionsMovable(false);
    list.header()->setSectionsClickable(false);
    list.header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list.header()->setStretchLastSection(true);
}

void ListSets(QTreeWidget& list, const std::vector<SavedSetName>& sets) {
    constexpr int kMargins = 16;  // left and right of a text
    list.clear();
    int widest = 0;
    for (const SavedSetName& set : sets) {
        const QString text = ToQString("[" + set.number + "]" + set.name);
        new QTreeWidgetItem(&list, {text});
        widest = std::max(widest, list.fontMetrics().horizontalAdvance(text) + kMargins);
    }
    list.header()->setMinimumSectionSize(widest);
    list.header()->resizeSection(0, widest);  // the header stretches it at least to the list's width
}

}  // namespace jogeon
