// Screen 0156 over the real service: handed a set as screen 0150 does it, and used by real clicks.
#include "terminal/watch/watch_screen.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <atomic>

#include <gtest/gtest.h>

#include "screen/text/cp949_qt.h"
#include "screen/transactions/search_reply.h"
#include "server/service/local_service.h"
#include "tests/screen/support/recorders.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/service/requests.h"

namespace jogeon::terminal {
namespace {

using service::WatchNews;
using service::WatchStart;

constexpr int kPatience = 60'000;  // milliseconds, for a sanitized build on a busy machine

// Every stock of 1,000 won or more: there from its first trade on.
std::string DearStocks() {
    std::string set = test::Header("A", "01") + test::PriceBlock('A', "1000", "99999");
    test::Put(set, 10, "비싼 종목"_cp949);
    return set;
}

// Counts what the screen asks of the service's watches.
class CountedWatches : public service::Watches {
public:
    explicit CountedWatches(service::Watches& watches) : watches_(watches) {}

    WatchStart Open(const std::string& user, const std::string& conditionSet) override {
        ++opened;
        return watches_.Open(user, conditionSet);
    }
    WatchNews Advance(const std::string& user, int id, int milliseconds) override {
        most = std::max(most.load(), ++underWay);
        QThread::msleep(static_cast<unsigned long>(delay));
        WatchNews news = watches_.Advance(user, id, milliseconds);
        --underWay;
        ++advanced;
        return news;
    }
    void Close(const std::string& user, int id) override {
        watches_.Close(user, id);
        ++closed;
    }

    std::atomic<int> opened = 0, advanced = 0, closed = 0, underWay = 0, most = 0, delay = 0;

private:
    service::Watches& watches_;
};

class CountedService : public service::LocalService {
public:
    CountedService() : LocalService(test::TestMarket(), nullptr), counted(LocalService::GetWatches()) {}
    service::Watches& GetWatches() override { return counted; }

    CountedWatches counted;
};

class WatchScreenTest : public testing::Test {
protected:
    ~WatchScreenTest() override {
        screen_.reset();
        workers_.waitForDone();
    }

    Workplace Place() { return {"kim01", service_, links_, questions_, workers_}; }

    WatchScreen& Screen() {
        if (!screen_) {
            screen_ = std::make_unique<WatchScreen>(Place(), nullptr);
            screen_->resize(screen_->sizeHint());
            screen_->show();
        }
        return *screen_;
    }

    void SetTags(const std::string& set, const std::string& description) {
        links_.NVLink_SetLinkTagData({"CS_REAL", "REALINFO", set});
        links_.NVLink_SetLinkTagData({"CS_REAL", "CONDMSG", description});
    }

    // What the button of screen 0150 does.
    void HandOver(const std::string& set, const std::string& description = "설명"_cp949) {
        SetTags(set, description);
        Screen().OnOpened(false);
        Screen().OnTagChanged("CS_REAL", "CONDMSG");
        Screen().OnTagChanged("CS_REAL", "REALINFO");
    }

    template <typename Widget>
    Widget& Part(const char* name) {
        return *Screen().findChild<Widget*>(name);
    }
    QString Text(const char* name) { return Part<QLabel>(name).text(); }
    QTableView& Matches() { return Part<QTableView>("watchMatches"); }
    QTableView& Events() { return Part<QTableView>("watchEvents"); }
    bool Comes(const std::function<bool()>& what) { return QTest::qWaitFor(what, kPatience); }
    bool MatchesCome() {
        return Comes([this] { return Matches().model()->rowCount() > 0; });
    }
    void Press(const char* name) { QTest::mouseClick(&Part<QPushButton>(name), Qt::LeftButton); }

    static QPoint CellOf(QTableView& table, int row) {
        return table.visualRect(table.model()->index(row, 0)).center();
    }

    CountedService service_;
    Links links_{"kim01", {}, {}};
    test::ScriptedQuestions questions_;
    QThreadPool workers_;
    std::unique_ptr<WatchScreen> screen_;
};

TEST(WatchHeadTest, ShowsSignsAsTheyAre) {
    const QString text = "정배열 5 > 20 & 60 < <b>120</b>";
    WatchHead head;
    head.ShowDescription(text);
    const QString tip = head.findChild<QLabel*>("watchDescription")->toolTip();
    ASSERT_TRUE(Qt::mightBeRichText(tip));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(tip).toPlainText(), text);
    head.ShowDescription("");
    EXPECT_EQ(head.findChild<QLabel*>("watchDescription")->toolTip(), "") << "no empty box";

    head.ShowNotice(text);
    const auto& notice = *head.findChild<QLabel*>("watchNotice");
    EXPECT_EQ(notice.text(), text);
    EXPECT_EQ(notice.textFormat(), Qt::PlainText);
}

TEST_F(WatchScreenTest, SaysCalmlyThatNothingHasBeenHandedOver) {
    Screen().OnOpened(false);
    EXPECT_TRUE(Part<QLabel>("watchNothing").isVisible());
    EXPECT_FALSE(Matches().isVisible());
    EXPECT_EQ(Screen().Title(), "실시간 조건검색");
    Screen().OnTagChanged("CS_REAL", "REALINFO");
    Screen().OnTagChanged("ReturnMainKey", "JCODE");
    EXPECT_EQ(service_.counted.opened, 0);
}

TEST_F(WatchScreenTest, WatchesWhatIsHandedOverOnceAndSaysThatItIsAReplay) {
    HandOver(DearStocks(), "현재가 1,000원 이상"_cp949);
    ASSERT_TRUE(MatchesCome());
    EXPECT_EQ(service_.counted.opened, 1) << "opened with the tag and told of it: one hand-over";
    EXPECT_EQ(Text("watchDay"), "재생: 2026-03-06");
    EXPECT_EQ(Screen().Title(), "실시간 조건검색 · 재생: 2026-03-06");
    EXPECT_EQ(Part<ElidedLabel>("watchName").text(), "비싼 종목");
    EXPECT_EQ(Part<ElidedLabel>("watchDescription").text(), "현재가 1,000원 이상");
    EXPECT_EQ(Matches().model()->rowCount(), 9) << "all but the one at 800 won and the one without a bar";
    EXPECT_EQ(Events().model()->rowCount(), 9);
    EXPECT_EQ(Text("watchCounts"), "포착 9종목  ·  편입 9  ·  이탈 0  ·  체결 10건");
    Screen().OnTagChanged("CS_REAL", "REALINFO");
    Screen().OnOpened(false);
    EXPECT_EQ(service_.counted.opened, 1) << "the same set goes on";

    HandOver(test::Header("A", "01") + test::PriceBlock('A', "1", "999"));
    ASSERT_TRUE(Comes([this] { return Matches().model()->rowCount() == 1; }));
    EXPECT_EQ(service_.counted.opened, 2);
    ASSERT_TRUE(Comes([this] { return service_.counted.closed == 1; })) << "the other one is given up";
}

TEST_F(WatchScreenTest, PausesGoesOnAndStartsAgain) {
    HandOver(DearStocks());
    Part<QComboBox>("watchSpeed").setCurrentIndex(3);
    emit Part<QComboBox>("watchSpeed").activated(3);
    ASSERT_TRUE(Comes([this] { return Text("watchClock") >= "09:02:00"; }));
    Press("watchRun");
    EXPECT_EQ(Part<QPushButton>("watchRun").text(), "시작");
    QTest::qWait(400);  // an answer may have been under way
    const QString stood = Text("watchClock");
    QTest::qWait(700);
    EXPECT_EQ(Text("watchClock"), stood);
    Press("watchRun");
    ASSERT_TRUE(Comes([&] { return Text("watchClock") > stood; }));
    Press("watchRestart");
    EXPECT_EQ(Matches().model()->rowCount(), 0);
    ASSERT_TRUE(MatchesCome());
    EXPECT_LT(Text("watchClock"), stood);
    EXPECT_EQ(Matches().model()->rowCount(), Events().model()->rowCount()) << "the log begins again, too";
}

TEST_F(WatchScreenTest, ClickAnnouncesTheStockAndADoubleClickAsksForItsChart) {
    HandOver(DearStocks());
    ASSERT_TRUE(MatchesCome());
    QSignalSpy told(&Screen(), &OwnScreen::TagSet), asked(&Screen(), &OwnScreen::ScreenAsked);
    const auto announced = [this] {
        return links_.NVLink_GetLinkTagData("ReturnMainKey", "JCODE", nullptr) + "/" +
               links_.NVLink_GetLinkTagData("ReturnMainKey", "J_ECODE", nullptr);
    };
    for (QTableView* table : {&Matches(), &Events()})
        for (const int row : {2, 0}) {
            const int column = table == &Matches() ? int(MatchModel::kName) : int(EventModel::kName);
            const QString name = table->model()->index(row, column).data().toString();
            told.clear();
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, CellOf(*table, row));
            const std::string shown = announced();
            EXPECT_EQ(ToQString(service_.StockName(shown.substr(0, 6))), name);
            EXPECT_EQ(shown.substr(0, 6), shown.substr(7));
            ASSERT_EQ(told.count(), 1);
            EXPECT_EQ(told[0][0].value<std::string>() + "/" + told[0][1].value<std::string>(),
                      "ReturnMainKey/JCODE");
        }
    EXPECT_EQ(asked.count(), 0);
    QTest::mouseClick(Matches().viewport(), Qt::LeftButton, {}, CellOf(Matches(), 1));
    QTest::mouseDClick(Matches().viewport(), Qt::LeftButton, {}, CellOf(Matches(), 1));
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0], (QVariantList{"0615", true}));
}

TEST_F(WatchScreenTest, RefusedSetIsToldAndTheNextOneIsWatched) {
    HandOver(test::Header("B", "01") + test::PriceBlock('A', "1", "2"));
    ASSERT_TRUE(Comes([this] { return Part<QLabel>("watchNotice").isVisible(); }));
    EXPECT_EQ(Text("watchNotice"), "감시할 수 없습니다: there is no condition B");
    EXPECT_FALSE(Part<QPushButton>("watchRun").isEnabled());
    HandOver(DearStocks());
    ASSERT_TRUE(MatchesCome());
    EXPECT_FALSE(Part<QLabel>("watchNotice").isVisible());
}

TEST_F(WatchScreenTest, AsksOneQuestionAtATimeAndClosingTheScreenClosesTheWatch) {
    service_.counted.delay = 600;
    HandOver(DearStocks());
    ASSERT_TRUE(Comes([this] { return service_.counted.advanced == 3; }));
    EXPECT_EQ(service_.counted.most, 1);
    screen_.reset();  // a question is under way
    workers_.waitForDone();
    EXPECT_EQ(service_.counted.closed, 1);
    HandOver(DearStocks());
    screen_.reset();  // before it has been opened
    workers_.waitForDone();
    EXPECT_EQ(service_.counted.closed, service_.counted.opened);
}

TEST_F(WatchScreenTest, SpeedColumnsAndOrderAreKept) {
    const QTemporaryDir folder;
    QSettings file(folder.filePath("state.ini"), QSettings::IniFormat);
    Part<QComboBox>("watchSpeed").setCurrentIndex(4);
    Matches().setColumnWidth(MatchModel::kPrice, 123);
    Events().setColumnWidth(EventModel::kName, 145);
    Matches().sortByColumn(MatchModel::kChange, Qt::AscendingOrder);
    Screen().SaveState(file);
    screen_.reset();
    Screen().RestoreState(file);
    EXPECT_EQ(Part<QComboBox>("watchSpeed").currentText(), "1000배속");
    EXPECT_EQ(Matches().columnWidth(MatchModel::kPrice), 123);
    EXPECT_EQ(Events().columnWidth(EventModel::kName), 145);
    HandOver(DearStocks());
    ASSERT_TRUE(MatchesCome());
    const auto change = [this](int row) {
        return Matches().model()->index(row, MatchModel::kChange).data(MatchModel::kSortRole).toDouble();
    };
    EXPECT_LE(change(0), change(1));
    EXPECT_LE(change(1), change(2));
}

TEST_F(WatchScreenTest, DayGoesByToItsCloseAndEndsWithWhatASearchFinds) {
    WatchRun run(Place(), nullptr);
    run.SetSpeed(50'000);
    WatchNews last;
    QObject::connect(&run, &WatchRun::NewsCame, [&last](const WatchNews& news) { last = news; });
    run.Begin(DearStocks());
    ASSERT_TRUE(Comes([&run] { return run.GetState() == WatchRun::State::Over; }));
    EXPECT_EQ(last.time, 55'800'000);
    test::SearchText search{.header = test::Header("A", "01"),
                            .blocks = test::PriceBlock('A', "1000", "99999")};
    const std::string reply = service_.Handle(test::SearchRequest(test::SearchPayload(search)));
    EXPECT_EQ(static_cast<std::size_t>(ParseSearchReply(reply)->total), last.matches.size());
}

}  // namespace
}  // namespace jogeon::terminal
