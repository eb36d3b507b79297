#include "terminal/main_window.h"

#include <QApplication>
#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

namespace jogeon::terminal {
namespace {

constexpr QSize kFirstFrameSize(176 + 585, 548);  // what screen 0150 asks for
constexpr int kTroubleShown = 15'000;             // milliseconds

QString DateText(int date) {
    return QStringLiteral("%1-%2-%3")
        .arg(date / 10000)
        .arg(date / 100 % 100, 2, 10, QLatin1Char('0'))
        .arg(date % 100, 2, 10, QLatin1Char('0'));
}

}  // namespace

QString MarketLine(const service::MarketSummary& market) {
    const QString source = market.generated ? QStringLiteral("가상 시장 (생성된 데이터)")
                                            : QString::fromStdString(market.source);
    return QStringLiteral("%1  ·  %2종목  ·  %3 기준")
        .arg(source, QLocale(QLocale::Korean).toString(market.stocks), DateText(market.lastDate));
}

MainWindow::MainWindow(const QString& user, const service::MarketSummary& market) {
    setWindowTitle("jogeon - [0150] 조건검색");
    setCentralWidget(&frame_);
    BuildMenu();
    BuildStatusLine(user, market);
    connect(&frame_, &HostFrame::SizeAsked, this, &MainWindow::GrantSize);
    GrantSize(kFirstFrameSize);
}

void MainWindow::BuildMenu() {
    QMenu* file = menuBar()->addMenu("파일(&F)");
    file->addAction("끝내기(&X)", QKeySequence::Quit, this, &QWidget::close);
    QMenu* help = menuBar()->addMenu("도움말(&H)");
    help->addAction("jogeon 정보(&A)", this, [this] {
        QMessageBox::about(this, "jogeon", "jogeon " JOGEON_VERSION "\n\n한국 주식시장 조건검색");
    });
}

void MainWindow::BuildStatusLine(const QString& user, const service::MarketSummary& market) {
    auto* marketLabel = new QLabel(MarketLine(market), this);
    marketLabel->setObjectName("marketLine");
    statusBar()->addWidget(marketLabel, 1);
    auto* userLabel = new QLabel("사용자 " + user, this);
    userLabel->setContentsMargins(0, 0, 6, 0);
    statusBar()->addPermanentWidget(userLabel);
    statusBar()->setSizeGripEnabled(false);
}

void MainWindow::ShowTrouble(const QString& text) {
    statusBar()->showMessage(text, kTroubleShown);
}

// The window grows or shrinks around its frame.
void MainWindow::GrantSize(QSize frameSize) {
    ensurePolished();
    layout()->activate();
    resize(frameSize + QSize(0, menuBar()->sizeHint().height() + statusBar()->sizeHint().height()));
}

}  // namespace jogeon::terminal
