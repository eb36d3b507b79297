#include "terminal/demonstration.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPixmap>
#include <algorithm>
#include <cstdio>

#include "terminal/screen_driver.h"

namespace jogeon::terminal {
namespace {

constexpr int kFailure = 2;
constexpr int kShownRows = 8;
constexpr int kShownColumns = 6;
constexpr qint64 kPatience = 20000;  // milliseconds that an answer may take

int Fail(const QString& why) {
    std::fprintf(stderr, "jogeon: %s\n", why.toUtf8().constData());
    return kFailure;
}

bool WaitForAnswers(const Terminal& terminal) {
    QElapsedTimer waited;
    waited.start();
    while (!terminal.Idle() && waited.elapsed() < kPatience)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    QApplication::processEvents();
    return terminal.Idle();
}

// Korean letters take two places.
int PlacesOf(const QString& text) {
    return static_cast<int>(
               std::count_if(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0x2e7f; })) +
           static_cast<int>(text.size());
}

void PrintRows(const QList<QStringList>& rows) {
    const auto columns = std::min<qsizetype>(kShownColumns, rows.isEmpty() ? 0 : rows.constFirst().size());
    QList<int> widths(columns, 0);
    for (const QStringList& row : rows) {
        for (qsizetype c = 0; c < columns; ++c) widths[c] = std::max(widths[c], PlacesOf(row[c]));
    }
    for (const QStringList& row : rows) {
        QString line;
        for (qsizetype c = 0; c < columns; ++c)
            line += row[c] + QString(widths[c] - PlacesOf(row[c]) + 2, ' ');
        std::printf("%s\n", line.trimmed().toUtf8().constData());
    }
}

}  // namespace

int Demonstrate(Terminal& terminal, const QString& set, const QString& picture) {
    MainWindow& window = terminal.Window();
    window.show();
    if (!WaitForAnswers(terminal)) return Fail("the search service does not answer");  // the user's own sets
    ScreenDriver screen(window);
    const QStringList sets = screen.SetNames();
    const QString name = set.isEmpty() ? sets.value(0) : set;
    if (sets.isEmpty()) return Fail("the home folder has no condition sets");
    if (!screen.OpenSet(name)) return Fail("no condition set '" + name + "'; there are: " + sets.join(", "));
    screen.Search();
    if (!WaitForAnswers(terminal)) return Fail("the search service does not answer");

    QDir().mkpath(QFileInfo(picture).absolutePath());
    if (!window.grab().save(picture)) return Fail(picture + ": can't be written");
    std::printf("조건: %s\n", name.toUtf8().constData());
    const QList<QStringList> rows = screen.Rows(kShownRows);
    PrintRows(rows);
    if (rows.size() < 2) std::printf("no stock matches\n");
    std::printf("picture: %s\n", QFileInfo(picture).absoluteFilePath().toUtf8().constData());
    return 0;
}

}  // namespace jogeon::terminal
