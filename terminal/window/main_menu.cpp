#include "terminal/window/main_menu.h"

#include <QMenuBar>
#include <utility>

namespace jogeon::terminal {

MainMenu::MainMenu(QMainWindow& window, const QList<ScreenLine>& known,
                   std::function<QList<ScreenLine>()> open)
    : QObject(&window), window_(window), open_(std::move(open)) {
    BuildFileMenu();
    BuildScreenMenu(known);
    BuildViewMenu();
    BuildHelpMenu();
}

void MainMenu::Show(ThemeChoice theme, Language language) {
    for (QAction* action : themes_.actions()) action->setChecked(action->objectName() == NameOf(theme));
    for (QAction* action : languages_.actions()) action->setChecked(action->objectName() == NameOf(language));
}

void MainMenu::BuildFileMenu() {
    QMenu* file = window_.menuBar()->addMenu(tr("파일(&F)"));
    file->addAction(tr("끝내기(&X)"), QKeySequence(Qt::CTRL | Qt::Key_Q), &window_, &QWidget::close);
}

void MainMenu::BuildScreenMenu(const QList<ScreenLine>& known) {
    screens_ = window_.menuBar()->addMenu(tr("화면(&S)"));
    int key = Qt::Key_1;
    for (const ScreenLine& line : known) {
        QAction* action = screens_->addAction(QStringLiteral("[%1] %2").arg(line.number, line.text));
        action->setObjectName(line.number);
        if (key <= Qt::Key_9) action->setShortcut(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(key++)));
        connect(action, &QAction::triggered, this,
                [this, number = line.number] { emit ScreenChosen(number); });
    }
    screens_->addSeparator();
    closeAll_ = screens_->addAction(tr("모두 닫기(&C)"), this, &MainMenu::CloseAllChosen);
    connect(screens_, &QMenu::aboutToShow, this, &MainMenu::ListOpenScreens);
}

void MainMenu::ListOpenScreens() {
    qDeleteAll(openScreens_);
    openScreens_.clear();
    for (const ScreenLine& line : open_()) {
        auto* action = new QAction(line.text, &active_);
        action->setObjectName("open" + line.number);
        action->setCheckable(true);
        action->setChecked(line.active);
        connect(action, &QAction::triggered, this,
                [this, number = line.number] { emit ScreenChosen(number); });
        openScreens_.append(action);
    }
    screens_->insertActions(closeAll_, openScreens_);
    openScreens_.append(screens_->insertSeparator(closeAll_));
}

void MainMenu::BuildViewMenu() {
    QMenu* view = window_.menuBar()->addMenu(tr("보기(&V)"));
    BuildThemes(*view->addMenu(tr("테마(&T)")));
    BuildLanguages(*view->addMenu(tr("언어(&L)")));
    view->addSeparator();
    QAction* full = view->addAction(tr("전체 화면(&F)"));
    full->setCheckable(true);
    full->setShortcut(Qt::Key_F11);
    connect(full, &QAction::triggered, this, &MainMenu::FullScreenChosen);
    connect(view, &QMenu::aboutToShow, full, [this, full] { full->setChecked(window_.isFullScreen()); });
    view->addAction(tr("창 배치 초기화(&R)"), this, &MainMenu::ResetChosen);
}

void MainMenu::BuildThemes(QMenu& menu) {
    for (const auto& [choice, text] :
         {std::pair(ThemeChoice::Auto, tr("자동(&A)")), std::pair(ThemeChoice::Light, tr("밝게(&L)")),
          std::pair(ThemeChoice::Dark, tr("어둡게(&D)"))}) {
        QAction* action = AddChoice(menu, themes_, text, NameOf(choice));
        connect(action, &QAction::triggered, this, [this, chosen = choice] { emit ThemeChosen(chosen); });
    }
}

// Each language in its own words.
void MainMenu::BuildLanguages(QMenu& menu) {
    for (const auto& [language, text] : {std::pair(Language::Korean, QStringLiteral("한국어(&K)")),
                                         std::pair(Language::English, QStringLiteral("&English"))}) {
        QAction* action = AddChoice(menu, languages_, text, NameOf(language));
        connect(action, &QAction::triggered, this,
                [this, chosen = language] { emit LanguageChosen(chosen); });
    }
}

void MainMenu::BuildHelpMenu() {
    QMenu* help = window_.menuBar()->addMenu(tr("도움말(&H)"));
    help->addAction(tr("조작 방법(&K)"), this, &MainMenu::KeysChosen)->setObjectName("showKeys");
    help->addAction(tr("jogeon 정보(&A)"), this, &MainMenu::AboutChosen)->setObjectName("showAbout");
}

QAction* MainMenu::AddChoice(QMenu& menu, QActionGroup& group, const QString& text, const QString& name) {
    QAction* action = menu.addAction(text);
    action->setObjectName(name);
    action->setCheckable(true);
    group.addAction(action);
    return action;
}

}  // namespace jogeon::terminal
