// The screens around 0150, and the terminal as a whole.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <stdexcept>

#include "terminal/chart/chart_screen.h"
#include "tools/pictures/montage.h"
#include "tools/pictures/scenes.h"

namespace jogeon::pictures {
namespace {

constexpr int kChart = 21049, kWatch = 21048, kInterest = 21050;  // controls of screen 0150
constexpr int kCharted = 2;                                       // row of the results
constexpr char kWatched[] = "10:20:00";                           // until when a day is replayed

QPixmap InterestSave(Studio& studio) {
    studio.OpenAndSearch();
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
    auto& grid = studio.At<QTableView>(Studio::kGrid);
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
    studio.OpenAndSearch();
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

terminal::ChartScreen& OpenChart(Studio& studio) {
    studio.ClickRow(kCharted);
    studio.Press(kChart);
    auto& chart = dynamic_cast<terminal::ChartScreen&>(studio.OpenScreen("0615"));
    studio.WaitUntil([&] { return chart.Settled(); });
    return chart;
}

QPixmap Chart(Studio& studio) {
    studio.OpenAndSearch();
    return OpenChart(studio).grab();
}

QPixmap ChartLines(Studio& studio) {
    studio.OpenAndSearch();
    OpenChart(studio);
    QMenu& menu = *studio.At<QToolButton>("lines").menu();
    auto& button = studio.At<QToolButton>("lines");
    menu.popup(button.mapToGlobal(QPoint(0, button.height())));
    QApplication::processEvents();
    const QPixmap picture = studio.WithPopup(studio.Window(), menu);
    menu.close();
    return picture;
}

terminal::OwnScreen& RunWatch(Studio& studio) {
    studio.OpenSet(Studio::kSet);
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
    OpenChart(studio);
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
    studio.OpenAndSearch();
    OpenChart(studio);
    return studio.Window().grab();
}

}  // namespace

std::vector<Picture> PicturesAround() {
    return {
        {"interest_save", InterestSave}, {"interest", Interest}, {"holdings", Holdings}, {"chart", Chart},
        {"chart_lines", ChartLines},     {"watch", Watch},       {"terminal", Whole},    {"help", HelpPages}};
}

std::vector<Picture> EnglishPictures() {
    return {{"english", English}};
}

}  // namespace jogeon::pictures
