// The real terminal: the module loaded from its library, the real service on its thread, real clicks.
#include "terminal/terminal.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <future>
#include <set>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "server/market/market_file.h"
#include "server/remote/loopback_address.h"
#include "server/remote/remote_service.h"
#include "server/remote/service_server.h"
#include "server/service/local_service.h"
#include "terminal/chart/chart_view.h"
#include "terminal/demonstration.h"
#include "tests/terminal/support/desk.h"
#include "tests/terminal/support/terminal_fixture.h"

namespace jogeon::terminal {
namespace {

TEST_F(TerminalTest, EverySetOfTheFirmIsSearchedPageByPageToItsEnd) {
    Open();
    const QStringList sets = screen_->SetNames();
    ASSERT_GE(sets.size(), 12);
    int found = 0;
    for (const QString& set : sets) {
        SCOPED_TRACE(set.toStdString());
        ASSERT_TRUE(screen_->OpenSet(set));
        Button(21047).click();
        SearchAndWait();
        while (Button(21046).isEnabled()) {
            Button(21046).click();
            ASSERT_TRUE(QTest::qWaitFor([this] { return terminal_->Idle(); }, kPatience));
        }
        const QList<QStringList> rows = screen_->Rows(10000);
        EXPECT_EQ(Label(21054), Label(21052));
        EXPECT_EQ(Label(21054).toInt(), rows.size() - 1);
        std::set<QString> codes;
        for (qsizetype row = 1; row < rows.size(); ++row) codes.insert(rows[row][1]);
        EXPECT_EQ(static_cast<std::size_t>(rows.size() - 1), codes.size()) << "a stock came twice";
        found += rows.size() > 1 ? 1 : 0;
    }
    EXPECT_GE(found, 12);
}

TEST_F(TerminalTest, AHundredClicksAndLeavingWhileASearchRunsDoNoHarm) {
    Open();
    ASSERT_TRUE(screen_->OpenSet(screen_->SetNames().first()));
    for (int click = 0; click < 100; ++click) {
        Button(21039).click();
        Button(click % 3 == 0 ? 21047 : 21041).click();
        if (click % 10 == 0) QApplication::processEvents();
    }
    terminal_.reset();  // a reply may be under way
    Open();
    ASSERT_TRUE(screen_->OpenSet(screen_->SetNames().first()));
    SearchAndWait();
    EXPECT_GT(screen_->Rows(1).size(), 1);
}

TEST_F(TerminalTest, SearchWithinAResultNarrowsItUnderItsOwnTab) {
    Open();
    ASSERT_TRUE(screen_->OpenSet(screen_->SetNames().value(0)));
    SearchAndWait();
    const int whole = Label(21054).toInt();
    auto* scope = terminal_->Window().findChild<QComboBox*>("21098");
    scope->setCurrentIndex(1);
    SearchAndWait();
    auto* tabs = terminal_->Window().findChild<QTabBar*>("21105");
    ASSERT_EQ(2, tabs->count());
    EXPECT_EQ("[2]결과내검색", tabs->tabText(1));
    EXPECT_EQ(whole, Label(21054).toInt()) << "the same conditions within their own result keep all of it";
}

TEST_F(TerminalTest, MarketLineAndPublishedCodesTellWhatIsShown) {
    Open();
    const auto* line = terminal_->Window().findChild<QLabel*>("marketLine");
    EXPECT_TRUE(line->text().contains("2,600종목")) << line->text().toStdString();
    ASSERT_TRUE(screen_->OpenSet(screen_->SetNames().value(0)));
    SearchAndWait();
    const QList<QStringList> rows = screen_->Rows(1);
    const std::vector<std::string> codes = terminal_->SharedLinks().CodesOf(ToCp949("조건검색"));
    ASSERT_FALSE(codes.empty());
    EXPECT_EQ(rows[1][1].toStdString(), codes[0]);
}

TEST_F(TerminalTest, LeftPaneWidthSurvivesASession) {
    Open();
    QSplitter* splitter = terminal_->Window().findChild<QSplitter*>();
    splitter->setSizes({220, 535});
    QTest::mouseRelease(splitter->handle(1), Qt::LeftButton);
    const int width = splitter->sizes()[0];
    ASSERT_NE(176, width);
    terminal_.reset();
    Open();
    EXPECT_EQ(width, terminal_->Window().findChild<QSplitter*>()->sizes()[0]);
}

TEST_F(TerminalTest, AScreenMovedToAnotherWindowNoLongerAsksForSizes) {
    Open();
    HostFrame& frame = terminal_->Window().Frame();
    int asked = 0;
    QObject::connect(&frame, &HostFrame::SizeAsked, [&] { ++asked; });
    Button(21041).click();
    EXPECT_EQ(1, asked);
    QMainWindow other;
    other.setCentralWidget(&frame);
    Button(21041).click();
    EXPECT_EQ(1, asked);
    frame.setParent(&terminal_->Window());  // whose it is
}

TEST_F(TerminalTest, DemonstrationWritesAPictureAndNamesTheSetsWhenOneIsUnknown) {
    Open();
    const QString picture = folder_.path() + "/deep/screen.png";
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, Demonstrate(*terminal_, {}, picture));
    EXPECT_NE(std::string::npos, testing::internal::GetCapturedStdout().find(picture.toStdString()));
    EXPECT_GE(QPixmap(picture).width(), 761);

    testing::internal::CaptureStderr();
    EXPECT_EQ(2, Demonstrate(*terminal_, "없는 조건", picture));
    EXPECT_NE(std::string::npos,
              testing::internal::GetCapturedStderr().find(screen_->SetNames()[3].toStdString()));
}

TEST_F(TerminalTest, StoreLiesInTheHomeAndOneThatCantBeOpenedEndsTheStart) {
    Open();
    EXPECT_TRUE(QFile::exists(options_.home + "/Store/conditions.sqlite"));
    terminal_.reset();
    options_.store = folder_.path();
    try {
        Terminal terminal(options_);
        ADD_FAILURE() << "a folder was taken for a store";
    } catch (const std::exception& error) {
        EXPECT_TRUE(QString(error.what()).startsWith(folder_.path() + ": can't be opened")) << error.what();
    }
}

// A terminal whose service is another's, here on another thread.
class ServedTerminalTest : public TerminalTest {
protected:
    ServedTerminalTest()
        : service_(market::OpenMarket(MarketFile().toStdString()),
                   std::make_unique<service::StoreService>((folder_.path() + "/sets.sqlite").toStdString())) {
    }

    void TearDown() override { terminal_.reset(); }  // while there is a server to take its leave of

    void Serve(int port = 0) {
        server_.emplace(service_, port);
        options_.server = QString::fromStdString(remote::LoopbackAddress(server_->Port()));
        options_.market.clear();
    }

    service::LocalService service_;
    std::optional<remote::ServiceServer> server_;
};

TEST_F(ServedTerminalTest, ShowsTheRowsThatATerminalWithItsOwnServiceShows) {
    Open();
    const QString set = screen_->SetNames().value(0);
    ASSERT_TRUE(screen_->OpenSet(set));
    SearchAndWait();
    const QList<QStringList> own = screen_->Rows(10000);
    ASSERT_GT(own.size(), 1);
    const QString line = terminal_->Window().findChild<QLabel*>("marketLine")->text();
    terminal_.reset();

    Serve();
    Open();
    EXPECT_EQ(line, terminal_->Window().findChild<QLabel*>("marketLine")->text());
    ASSERT_TRUE(screen_->OpenSet(set));
    SearchAndWait();
    EXPECT_EQ(own, screen_->Rows(10000));
}

TEST_F(ServedTerminalTest, OutlivesItsServerAndFindsTheNextOne) {
    Serve();
    Open();
    const int port = server_->Port();
    server_.reset();
    Serve(port);
    ASSERT_TRUE(screen_->OpenSet(screen_->SetNames().value(0)));
    SearchAndWait();
    EXPECT_GT(screen_->Rows(1).size(), 1);

    server_.reset();
    testing::internal::CaptureStderr();
    SearchAndWait();
    const QStatusBar* foot = terminal_->Window().statusBar();
    EXPECT_EQ("서버에 연결할 수 없습니다.", foot->currentMessage());
    terminal_.reset();
    EXPECT_NE(std::string::npos, testing::internal::GetCapturedStderr().find("can't be reached"));
    EXPECT_THROW(Terminal{options_}, remote::RemoteError) << "nobody to start with";
}

// Another market than the generated one: a stock of its own.
std::unique_ptr<service::LocalService> ServiceOfOneStock() {
    return std::make_unique<service::LocalService>(OneStock(), nullptr);
}

TEST_F(ServedTerminalTest, FootTellsThatTheServerIsGoneAndWhichMarketItComesBackWith) {
    Serve();
    Open();
    const auto foot = [this](const char* name) {
        return terminal_->Window().findChild<QLabel*>(name)->text();
    };
    EXPECT_TRUE(foot("serviceLine").endsWith("연결됨")) << foot("serviceLine").toStdString();
    const int port = server_->Port();
    server_.reset();
    testing::internal::CaptureStderr();
    ASSERT_TRUE(screen_->OpenSet(screen_->SetNames().value(0)));
    SearchAndWait();
    EXPECT_TRUE(QTest::qWaitFor([&] { return foot("serviceLine").endsWith("연결 끊김"); }, kPatience));
    testing::internal::GetCapturedStderr();

    const auto other = ServiceOfOneStock();
    server_.emplace(*other, port);
    EXPECT_TRUE(QTest::qWaitFor([&] { return foot("serviceLine").endsWith("연결됨"); }, kPatience))
        << "though nobody searched";
    EXPECT_TRUE(foot("marketLine").endsWith("1종목")) << foot("marketLine").toStdString();
    EXPECT_EQ("2024-01-02 기준", foot("dateLine"));
    terminal_.reset();
    server_.reset();
}

TEST_F(ServedTerminalTest, AChartThatFailedIsTheFootsMatterTooAndComesWithTheServer) {
    Serve();
    Open();
    const std::string code = service_.GetPortfolios().Stocks().front().code;
    terminal_->SharedLinks().NVLink_SetLinkTagData({"ReturnMainKey", "JCODE", code});
    const int port = server_->Port();
    server_.reset();
    terminal_->Desk().Open("0615", true);
    const auto* line = terminal_->Window().findChild<QLabel*>("serviceLine");
    EXPECT_TRUE(QTest::qWaitFor([&] { return line->text().endsWith("연결 끊김"); }, kPatience));
    Serve(port);
    const auto* chart = terminal_->Window().findChild<chart::ChartView*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return chart->Shown().code.toStdString() == code; }, kPatience))
        << "though nobody asked for it again";
}

// Answers no request until it may.
class HangingService : public service::LocalService {
public:
    HangingService() : LocalService(OneStock(), nullptr) {}
    std::string Handle(const service::Request&) override {
        release.get_future().wait();
        return {};
    }
    std::promise<void> release;
};

TEST_F(ServedTerminalTest, ClosingWaitsForNoServerThatHangs) {
    HangingService hanging;
    server_.emplace(hanging, 0);
    options_.server = QString::fromStdString(remote::LoopbackAddress(server_->Port()));
    options_.market.clear();
    terminal_ = std::make_unique<Terminal>(options_);
    ScreenDriver screen(terminal_->Window());
    ASSERT_TRUE(screen.OpenSet(screen.SetNames().first()));
    screen.Search();
    EXPECT_FALSE(terminal_->Idle());
    QElapsedTimer closing;
    closing.start();
    terminal_.reset();
    EXPECT_LT(closing.elapsed(), 10'000);
    hanging.release.set_value();
}

// The exports that a screen of this host must have and that do nothing here.
TEST(ModuleExportsTest, EmptyFunctionsAnswerAsTheyMust) {
    QLibrary library(SCREEN0150);
    ASSERT_TRUE(library.load()) << library.errorString().toStdString();
    EXPECT_EQ(0, reinterpret_cast<std::int16_t (*)(void*)>(library.resolve("SetGlobalFunc"))(&library));
    EXPECT_EQ(1, reinterpret_cast<std::int16_t (*)(void*)>(library.resolve("OnPrint"))(nullptr));
    for (const char* name :
         {"SetFontChange", "SetScreenMXN", "GetLinkTagData", "SetEnvChange", "SetColorChange",
          "SetFocusCombo", "GetLastData", "SetLastData", "DestroyScreen"}) {
        EXPECT_NE(nullptr, library.resolve(name)) << name;
    }
    void* frame = nullptr;
    void* screen = nullptr;
    const auto create = reinterpret_cast<decltype(&::CreateScreen)>(library.resolve("CreateScreen"));
    EXPECT_EQ(static_cast<std::int32_t>(0x80004005), create(&frame, &screen, nullptr, "", 0, "", 0));
    EXPECT_EQ(nullptr, frame);
}

TEST(ModuleExportsTest, NothingElseIsVisible) {
    QProcess nm;
    nm.start("nm", {"-D", "--defined-only", "-C", SCREEN0150});
    ASSERT_TRUE(nm.waitForFinished());
    const QRegularExpression told(
        "^[0-9a-f]+ . "
        "(CreateScreen|DestroyScreen|SetGlobalFunc|GetLastData|SetLastData|SetEnvChange|SetColorChange|"
        "SetFontChange|SetFocusCombo|SetScreenMXN|OnPrint|GetLinkTagData"
        "|(vtable for |typeinfo for |typeinfo name for |non-virtual thunk to )?"
        "(CIniMemFile|CMemFile|CNVLinkInfoItem|CFBGrid|FBGridNotify|FBGridData|FBAxis|CCell|CRow"
        "|jogeon::FBGridGeometry)(::.*)?)$");
    const QStringList symbols = QString::fromUtf8(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    EXPECT_GT(symbols.size(), 12);
    for (const QString& symbol : symbols) EXPECT_TRUE(told.match(symbol).hasMatch()) << symbol.toStdString();
    // Nothing in the module calls these: they are there for other screens.
    for (const char* name : {"CFBGrid::CreateDragImage(", "CFBGrid::SaveToExcel(", "CFBGrid::BeginMoveRow(",
                             "FBGridData::MoveRowData(", "FBGridGeometry::HitTest(",
                             "vtable for FBGridNotify", "CFBGrid::staticMetaObject"}) {
        EXPECT_FALSE(symbols.filter(name).isEmpty()) << name << " is missing";
    }
}

TEST(ScreenModuleTest, AForeignLibraryIsRefusedInOneLine) {
    EXPECT_THROW(ScreenModule("/no/such/library.so"), ModuleError);
}

}  // namespace
}  // namespace jogeon::terminal
