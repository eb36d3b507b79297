#include "tools/pictures/studio.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPainter>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <stdexcept>

#include "screen/host/message_boxes_qt.h"

namespace jogeon::pictures {
namespace {

constexpr int kPatience = 120'000;  // milliseconds, for a sanitized build on a busy machine
constexpr int kBoxDrawn = 100;      // milliseconds
constexpr int kAdd = 31050, kIndicators = 21001, kSearch = 21039;

terminal::Options OptionsOf(const QString& user, const QString& home, const QString& theme,
                            const QString& language) {
    terminal::Options options;
    options.user = user;
    options.home = home;
    options.theme = theme;
    options.lang = language;
    return options;
}

}  // namespace

Studio::Studio(const QString& user, const QString& home, const QString& theme, const QString& language)
    : terminal_(std::make_unique<terminal::Terminal>(OptionsOf(user, home, theme, language),
                                                     terminal::OwnScreens(),
                                                     static_cast<host::Questions*>(this))) {
    Window().show();
    Settle();
}

Studio::~Studio() {
    Window().close();
    terminal_.reset();  // while it can still ask
}

void Studio::Press(int control) {
    auto& button = At<QAbstractButton>(control);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
    Settle();
}

void Studio::OpenSet(const QString& name) {
    Press(kNew);
    if (!terminal::ScreenDriver(Window()).OpenSet(name))
        throw std::runtime_error("no set " + name.toStdString());
    Settle();
}

void Studio::Search() {
    Press(kSearch);
}

void Studio::OpenAndSearch() {
    OpenSet(kSet);
    Search();
}

void Studio::ClickRow(int row) {
    auto& grid = At<QTableView>(kGrid);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                      grid.visualRect(grid.model()->index(row, 0)).center());
    Settle();
}

void Studio::SaveSets(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        Press(kNew);
        Add("RSI");
        OnDialogs([name](QDialog& dialog) {
            dialog.findChild<QLineEdit*>()->setText(name);
            return true;
        });
        Press(kSave);
    }
}

void Studio::Pick(const QString& indicator) {
    auto& tree = At<QTreeWidget>(kIndicators);
    const QList<QTreeWidgetItem*> found = tree.findItems(indicator, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty()) throw std::runtime_error("no indicator " + indicator.toStdString());
    for (QTreeWidgetItem* group = found[0]->parent(); group; group = group->parent())
        group->setExpanded(true);
    tree.scrollToItem(found[0]);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(found[0]).center());
    Settle();
}

void Studio::Add(const QString& indicator) {
    Pick(indicator);
    Press(kAdd);
}

terminal::OwnScreen& Studio::OpenScreen(const QString& number) {
    terminal_->Desk().GoTo(number);
    Settle();
    return Found(terminal_->Desk().Screen(number), number);
}

void Studio::Settle() {
    WaitUntil([this] { return terminal_->Idle(); });
    QApplication::processEvents();
}

void Studio::WaitUntil(const std::function<bool()>& reached) {
    if (!QTest::qWaitFor(reached, kPatience)) throw std::runtime_error("what was waited for didn't come");
}

QPixmap Studio::WithPopup(QWidget& shown, QWidget& popup) const {
    QPixmap picture = shown.grab();
    QPainter painter(&picture);
    painter.drawPixmap(popup.mapToGlobal(QPoint()) - shown.mapToGlobal(QPoint()), popup.grab());
    return picture;
}

host::Answer Studio::Ask(const host::Box& box) {
    if (!boxPose_) return host::Answer::No;
    QTimer::singleShot(kBoxDrawn, [this] {
        QWidget& shown = Found(QApplication::activeModalWidget(), "of a box");
        boxPose_(shown);
        shown.close();
    });
    host::MessageBoxes(Window()).Ask(box);
    return host::Answer::No;
}

bool Studio::Run(const std::string&, void* object) {
    auto& dialog = *static_cast<QDialog*>(object);
    if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
        files->setOption(QFileDialog::DontUseNativeDialog);
        files->selectFile(file_);
        return true;
    }
    dialog.show();
    QApplication::processEvents();
    const bool agreed = pose_ && pose_(dialog);
    if (dialog.isVisible()) agreed ? dialog.accept() : dialog.reject();
    return dialog.result() == QDialog::Accepted;
}

std::optional<std::filesystem::path> Studio::AskSavePath(const host::FileQuestion&) {
    return std::nullopt;
}

}  // namespace jogeon::pictures
