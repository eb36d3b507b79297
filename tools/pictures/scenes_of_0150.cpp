// Screen 0150 and its dialogs.
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>
#include <stdexcept>

#include "tools/pictures/montage.h"
#include "tools/pictures/scenes.h"

namespace jogeon::pictures {
namespace {

constexpr char kPlainSet[] = "골든크로스와 거래량 증가";  // has no brackets
constexpr double kLayoutScale = 0.6;

// Controls of screen 0150.
constexpr int kReset = 21047, kReorder = 22017, kImport = 22018, kTarget = 21026, kHelp = 21037;
constexpr int kPanel = 21002, kExpression = 21089, kSettings = 21051, kLayout = 21133, kCodeList = 21164;
constexpr int kScope = 21098, kSequential = 3;

void TypeExpression(Studio& studio, const QString& text) {
    auto& box = studio.At<QPlainTextEdit>(kExpression);
    box.selectAll();
    QTest::keyClicks(&box, text);
}

QPixmap Opened(Studio& studio) {
    studio.OpenSet(Studio::kSet);
    return studio.Frame().grab();
}

QPixmap Searched(Studio& studio) {
    studio.OpenAndSearch();
    return studio.Frame().grab();
}

QPixmap Composed(Studio& studio) {
    studio.Press(Studio::kNew);
    studio.Press(kReset);
    for (const char* indicator : {"RSI", "주가와 이동평균", "PER"}) studio.Add(indicator);
    return studio.Frame().grab();
}

QPixmap Panels(Studio& studio) {
    QList<QPixmap> panels;
    for (const char* indicator : {"MACD", "볼린저밴드", "일목균형표", "장악형", "PER", "거래대금 순위"}) {
        studio.Pick(indicator);
        panels.append(studio.At(kPanel).grab());
    }
    return SideBySide(panels, 2);
}

QPixmap Expression(Studio& studio) {
    studio.OpenSet(Studio::kSet);
    QList<QPixmap> dialogs;
    studio.OnDialogs([&](QDialog& dialog) {
        dialogs.append(Framed(dialog.grab()));
        return false;
    });
    studio.Press(kHelp);
    TypeExpression(studio, "A and (B or");
    studio.Search();
    return SideBySide(dialogs, 2);
}

QPixmap Target(Studio& studio) {
    QList<QPixmap> tabs;
    studio.OnDialogs([&](QDialog& dialog) {
        auto* group = dialog.findChild<QButtonGroup*>();
        for (QAbstractButton* tab : group->buttons()) {
            tab->click();
            tabs.append(Framed(dialog.grab()));
        }
        return false;
    });
    studio.Press(kTarget);
    return SideBySide(tabs, 3);
}

QPixmap Saving(Studio& studio) {
    studio.SaveSets({"눌림목 매수", "거래량 급증", "배당 가치주"});
    QList<QPixmap> dialogs;
    studio.OnDialogs([&](QDialog& dialog) {
        for (auto* list : dialog.findChildren<QTreeWidget*>())
            if (list->topLevelItemCount() > 0) list->setCurrentItem(list->topLevelItem(0));
        QApplication::processEvents();
        dialogs.append(Framed(dialog.grab()));
        return false;
    });
    studio.Press(kReorder);
    studio.Press(kImport);
    studio.Press(Studio::kNew);
    studio.Add("RSI");
    studio.Press(Studio::kSave);
    return SideBySide(dialogs, 3);
}

QPixmap Boxes(Studio& studio) {
    studio.OpenSet(Studio::kSet);
    QList<QPixmap> boxes;
    studio.OnBoxes([&](QWidget& box) { boxes.append(Framed(box.grab())); });
    studio.At<QComboBox>(kScope).setCurrentIndex(kSequential);
    studio.Search();
    studio.At<QComboBox>(kScope).setCurrentIndex(0);
    studio.Add("RSI");
    studio.Press(Studio::kNew);
    studio.OnBoxes(nullptr);
    studio.Add("RSI");
    TypeExpression(studio, "A and !A");
    studio.OnDialogs([&](QDialog& notice) {
        boxes.append(Framed(notice.grab()));
        return false;
    });
    studio.Search();
    return SideBySide(boxes, 3);
}

QPixmap SequenceMarks(Studio& studio) {
    studio.OpenSet(kPlainSet);
    studio.At<QComboBox>(kScope).setCurrentIndex(kSequential);
    studio.Search();
    studio.Search();
    studio.At<QComboBox>(kScope).setCurrentIndex(0);
    return studio.Frame().grab();
}

QPixmap ResultMenu(Studio& studio) {
    studio.OpenAndSearch();
    auto& grid = studio.At<QTableView>(Studio::kGrid);
    grid.selectionModel()->select({grid.model()->index(1, 0), grid.model()->index(4, 0)},
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    const QPoint at = grid.visualRect(grid.model()->index(2, 1)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, grid.viewport()->mapToGlobal(at));
    QApplication::sendEvent(grid.viewport(), &event);
    QApplication::processEvents();
    QWidget* menu = QApplication::activePopupWidget();
    if (!menu) throw std::runtime_error("no menu over the results");
    const QPixmap picture = studio.WithPopup(studio.Window(), *menu);
    menu->close();
    return picture;
}

QPixmap CodeList(Studio& studio) {
    studio.OpenAndSearch();
    studio.Press(kCodeList);
    QWidget& popup = studio.At<QListWidget>("CodePopup");
    const QPixmap picture = studio.WithPopup(studio.Window(), popup);
    popup.close();
    return picture;
}

QPixmap Settings(Studio& studio) {
    QList<QPixmap> pages;
    studio.OnDialogs([&](QDialog& dialog) {
        auto* tabs = dialog.findChild<QTabWidget*>("pages");
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            QApplication::processEvents();
            pages.append(Framed(dialog.grab()));
        }
        return false;
    });
    studio.Press(kSettings);
    return SideBySide(pages, 2);
}

QPixmap Layouts(Studio& studio) {
    studio.OpenAndSearch();
    QList<QPixmap> layouts;
    for (int i = 0; i < 3; ++i) {
        const QPixmap whole = studio.Frame().grab();
        layouts.append(
            whole.scaled(whole.size() * kLayoutScale, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        studio.Press(kLayout);
    }
    return SideBySide(layouts, 3);
}

}  // namespace

std::vector<Picture> OwnPictures() {
    return {{"opened", Opened},   {"searched", Searched},     {"composed", Composed},
            {"panels", Panels},   {"expression", Expression}, {"target", Target},
            {"saving", Saving},   {"boxes", Boxes},           {"steps", SequenceMarks},
            {"menu", ResultMenu}, {"codes", CodeList},        {"settings", Settings},
            {"layouts", Layouts}};
}

}  // namespace jogeon::pictures
