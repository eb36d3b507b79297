#include "terminal/window/help_window.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>

namespace jogeon::terminal {
namespace {

constexpr char kContext[] = "jogeon::terminal::HelpWindow";
constexpr int kPageWidth = 520;
constexpr int kMostHeight = 620;
constexpr int kSlack = 12;  // so that the last line needs no scroll bar

QString Translated(const char* text) {
    return QCoreApplication::translate(kContext, text);
}

QTextBrowser* MakePage(const QString& page, QWidget* parent) {
    auto* browser = new QTextBrowser(parent);
    browser->setFrameShape(QFrame::NoFrame);
    browser->ensurePolished();
    browser->document()->setDefaultFont(browser->font());
    browser->setHtml(page);
    browser->document()->setTextWidth(kPageWidth - kSlack);
    const int height = static_cast<int>(browser->document()->size().height()) + kSlack;
    browser->setMinimumSize(kPageWidth, std::min(height, kMostHeight));
    browser->setMaximumHeight(height);
    return browser;
}

}  // namespace

void ShowHelp(QWidget& parent, const QString& name, const QString& title, const QString& page) {
    auto* window = parent.findChild<QDialog*>(name, Qt::FindDirectChildrenOnly);
    if (!window) {
        window = new QDialog(&parent);
        window->setObjectName(name);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowTitle(title);
        auto* layout = new QVBoxLayout(window);
        layout->addWidget(MakePage(page, window));
        auto* buttons = new QDialogButtonBox(window);
        QPushButton* close =
            buttons->addButton(Translated(QT_TRANSLATE_NOOP("jogeon::terminal::HelpWindow", "닫기")),
                               QDialogButtonBox::RejectRole);
        close->setDefault(true);
        QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::close);
        layout->addWidget(buttons);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

QString AboutPage() {
    return "<h2>jogeon " JOGEON_VERSION "</h2><p>" +
           Translated(QT_TRANSLATE_NOOP("jogeon::terminal::HelpWindow", "한국 주식시장 조건검색")) +
           "</p><p>" + Translated(QT_TRANSLATE_NOOP("jogeon::terminal::HelpWindow", "MIT 라이선스")) +
           "<br>Qt " + QString::fromLatin1(qVersion()) + "</p>";
}

}  // namespace jogeon::terminal
