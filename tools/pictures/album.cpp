#include "tools/pictures/album.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <stdexcept>

#include "terminal/chart/chart_screen.h"
#include "tools/pictures/montage.h"
#include "tools/pictures/studio.h"

namespace jogeon::pictures {
namespace {

constexpr char kSet[] = "정배열 눌림목";                  // has brackets, and stocks that match
constexpr char kPlainSet[] = "골든크로스와 거래량 증가";  // has no brackets
constexpr QSize kDesk(1000, 640);                         // of the window with other screens beside the first
constexpr char kWatched[] = "10:20:00";                   // until when a day is replayed
constexpr double kLayoutScale = 0.6;
constexpr int kSmallest = 0;  // of the files

// Controls of screen 0150.
constexpr int kSave = 21024, kReorder = 22017, kImport = 22018, kTarget = 21026, kHelp = 21037;
constexpr int kPanel = 21002, kExpression = 21089, kSettings = 21051, kLayout = 21133, kChart = 21049;
constexpr int kWatch = 21048, kInterest = 21050, kGrid = 21104, kCodeList = 21164, kNew = 21021;
constexpr int kScope = 21098, kSequential = 3;

void OpenAndSearch(Studio& studio) {
    studio.OpenSet(kSet);
    studio.Search();
}

void ClickRow(Studio& studio, int row) {
    auto& grid = studio.At<QTableView>(kGrid);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                      grid.visualRect(grid.model()->index(row, 0)).center());
    studio.Settle();
}

// --- what is seen, picture by picture

QPixmap Opened(Studio& studio) {
    studio.OpenSet(kSet);
    return studio.Frame().grab();
}

QPixmap Searched(Studio& studio) {
    OpenAndSearch(studio);
    return studio.Frame().grab();
}

QPixmap Composed(Studio& studio) {
    studio.Press(kNew);
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
    studio.OpenSet(kSet);
    QList<QPixmap> dialogs;
    studio.OnDialogs([&](QDialog& dialog) {
        dialogs.append(Framed(dialog.grab()));
        return false;
    });
    studio.Press(kHelp);
    auto& box = studio.At<QPlainTextEdit>(kExpression);
    box.selectAll();
    QTest::keyClicks(&box, "A and (B or");
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

// Gives a set that is saved this name.
Studio::Pose Naming(const char* name) {
    return [name](QDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText(name);
        return true;
    };
}

void SaveSets(Studio& studio, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        studio.Press(kNew);
        studio.Add("RSI");
        studio.OnDialogs(Naming(name));
        studio.Press(kSave);
    }
}

QPixmap Saving(Studio& studio) {
    SaveSets(studio, {"눌림목 매수", "거래량 급증", "배당 가치주"});
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
    studio.Press(kNew);
    studio.Add("RSI");
    studio.Press(kSave);
    return SideBySide(dialogs, 3);
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
    OpenAndSearch(studio);
    QList<QPixmap> layouts;
    for (int i = 0; i < 3; ++i) {
        const QPixmap whole = studio.Frame().grab();
        layouts.append(
            whole.scaled(whole.size() * kLayoutScale, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        studio.Press(kLayout);
    }
    return SideBySide(layouts, 3);
}

QPixmap Boxes(Studio& studio) {
    studio.OpenSet(kSet);
    QList<QPixmap> boxes;
    studio.OnBoxes([&](QWidget& box) { boxes.append(Framed(box.grab())); });
    studio.At<QComboBox>(kScope).setCurrentIndex(kSequential);
    studio.Search();
    studio.At<QComboBox>(kScope).setCurrentIndex(0);
    studio.Add("RSI");
    studio.Press(kNew);
    studio.OnBoxes(nullptr);
    return SideBySide(boxes, 2);
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
    OpenAndSearch(studio);
    auto& grid = studio.At<QTableView>(kGrid);
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
    OpenAndSearch(studio);
    studio.Press(kCodeList);
    QWidget& popup = studio.At<QListWidget>("CodePopup");
    const QPixmap picture = studio.WithPopup(studio.Window(), popup);
    popup.close();
    return picture;
}

QPixmap InterestSave(Studio& studio) {
    OpenAndSearch(studio);
    QPixmap picture;
    studio.OnDialogs([&](QDialog& dialog) {
        for (auto* choice : dialog.findChildren<QRadioButton*>())
            if (choice->objectName() == "new") choice->click();
        dialog.findChild<QLineEdit*>("name")->setText("오늘의 눌림목");
        picture = Framed(dialog.grab());
        return true;
    });
    studio.Press(kInterest);
    studio.WaitUntil([&] { return !picture.isNull(); });
    return picture;
}

QPixmap Interest(Studio& studio) {
    QWidget& screen = studio.OpenScreen("0130");
    studio.At<QTabWidget>("pages").setCurrentIndex(0);
    studio.Settle();
    studio.WaitUntil([&] { return studio.At<QAbstractItemView>("stocks").model()->rowCount() > 0; });
    return Framed(screen.grab());
}

// A broker's list with two lines that can't be taken.
QString WriteHoldings(Studio& studio, const QString& folder) {
    QFile file(folder + "/holdings.csv");
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no place for the list of holdings");
    file.write("종목코드,종목명,보유수량,매입단가\n");
    auto& grid = studio.At<QTableView>(kGrid);
    for (int row = 0; row < 6; ++row) {
        const auto cell = [&](int column) { return grid.model()->index(row, column).data().toString(); };
        const int price = cell(2).remove(',').toInt();
        const QString line = "%1,%2,%3,%4\n";
        file.write(line.arg(cell(1), cell(0)).arg(30 + 15 * row).arg(price * (88 + 4 * row) / 100).toUtf8());
    }
    file.write("999999,없는종목,10,1000\n000010,,열주,1000\n");
    return file.fileName();
}

QPixmap Holdings(Studio& studio) {
    OpenAndSearch(studio);
    const QTemporaryDir folder;
    studio.OnFiles(WriteHoldings(studio, folder.path()));
    QWidget& screen = studio.OpenScreen("0130");
    studio.At<QTabWidget>("pages").setCurrentIndex(1);
    QPixmap preview;
    studio.OnDialogs([&](QDialog& dialog) {
        dialog.findChild<QComboBox*>("account")->setEditText("12345678901");
        dialog.findChild<QAbstractButton*>("withoutRefused")->click();
        preview = Framed(dialog.grab());
        return true;
    });
    auto& import = studio.At<QAbstractButton>("importHoldings");
    studio.WaitUntil([&] { return import.isEnabled(); });
    import.click();
    studio.WaitUntil([&] { return studio.At<QComboBox>("accounts").count() == 3; });
    return SideBySide({preview, Framed(screen.grab())}, 2);
}

terminal::ChartScreen& OpenChart(Studio& studio, int row) {
    ClickRow(studio, row);
    studio.Press(kChart);
    auto& chart = dynamic_cast<terminal::ChartScreen&>(studio.OpenScreen("0615"));
    studio.WaitUntil([&] { return chart.Settled(); });
    return chart;
}

QPixmap Chart(Studio& studio) {
    OpenAndSearch(studio);
    return OpenChart(studio, 2).grab();
}

QPixmap ChartLines(Studio& studio) {
    OpenAndSearch(studio);
    OpenChart(studio, 2);
    QMenu& menu = *studio.At<QToolButton>("lines").menu();
    auto& button = studio.At<QToolButton>("lines");
    menu.popup(button.mapToGlobal(QPoint(0, button.height())));
    QApplication::processEvents();
    const QPixmap picture = studio.WithPopup(studio.Window(), menu);
    menu.close();
    return picture;
}

terminal::OwnScreen& RunWatch(Studio& studio) {
    studio.OpenSet(kSet);
    studio.Press(kWatch);
    QTest::keyClick(&studio.At<QComboBox>("watchSpeed"), Qt::Key_End);
    auto& clock = studio.At<QLabel>("watchClock");
    studio.WaitUntil([&] { return clock.text() > kWatched; });
    studio.At<QAbstractButton>("watchRun").click();
    studio.Settle();
    return *studio.Terminal().Desk().Screen("0156");
}

QPixmap Watch(Studio& studio) {
    return RunWatch(studio).grab();
}

QPixmap Whole(Studio& studio) {
    RunWatch(studio);
    studio.Search();
    OpenChart(studio, 2);
    return studio.Window().grab();
}

QPixmap HelpPages(Studio& studio) {
    QList<QPixmap> pages;
    for (const auto& [action, window] : {std::pair{"showKeys", "keys"}, std::pair{"showAbout", "about"}}) {
        studio.At<QAction>(action).trigger();
        QApplication::processEvents();
        QWidget& page = studio.At(window);
        pages.append(Framed(page.grab()));
        page.close();
    }
    return SideBySide(pages, 2);
}

QPixmap English(Studio& studio) {
    studio.OpenSet(kSet);
    studio.Search();
    OpenChart(studio, 2);
    return studio.Window().grab();
}

struct Picture {
    const char* name;
    QPixmap (*take)(Studio&);
};

constexpr Picture kPictures[] = {
    {"opened", Opened},         {"searched", Searched},
    {"composed", Composed},     {"panels", Panels},
    {"expression", Expression}, {"target", Target},
    {"saving", Saving},         {"settings", Settings},
    {"layouts", Layouts},       {"boxes", Boxes},
    {"steps", SequenceMarks},   {"menu", ResultMenu},
    {"codes", CodeList},        {"interest_save", InterestSave},
    {"interest", Interest},     {"holdings", Holdings},
    {"chart", Chart},           {"chart_lines", ChartLines},
    {"watch", Watch},           {"terminal", Whole},
    {"help", HelpPages},
};
constexpr Picture kEnglishPictures[] = {{"english", English}};

// One terminal for all these pictures, unless none of them is wanted.
template <std::size_t count>
void TakeSome(const Picture (&pictures)[count], const QString& theme, const QString& language,
              const QString& folder, const QStringList& wanted) {
    const auto asked = [&](const Picture& one) { return wanted.isEmpty() || wanted.contains(one.name); };
    if (std::none_of(std::begin(pictures), std::end(pictures), asked)) return;
    const QTemporaryDir home;
    SaveSets(*std::make_unique<Studio>("partner", home.path(), theme, language), {"가치주", "단기 반등"});
    Studio studio("trader", home.path(), theme, language);
    for (const Picture& one : pictures) {
        if (!asked(one)) continue;
        const QString file = folder + "/" + one.name + ".png";
        if (!one.take(studio).save(file, "PNG", kSmallest))
            throw std::runtime_error(file.toStdString() + ": can't be saved");
        std::printf("%s\n", file.toUtf8().constData());
        std::fflush(stdout);
        studio.Terminal().Desk().CloseAll();
        studio.Window().resize(kDesk);
    }
}

}  // namespace

void TakePictures(const QString& theme, const QString& folder, const QStringList& wanted) {
    TakeSome(kPictures, theme, "ko", folder, wanted);
    TakeSome(kEnglishPictures, theme, "en", folder, wanted);
}

}  // namespace jogeon::pictures
