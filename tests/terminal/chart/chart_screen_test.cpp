// The chart as the trader uses it: real events, over the real service.
#include "terminal/chart/chart_screen.h"

#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>

#include "screen/text/cp949.h"
#include "server/remote/remote_service.h"
#include "server/service/local_service.h"
#include "terminal/chart/bar_painter.h"
#include "terminal/texts/value_texts.h"
#include "tests/screen/support/recorders.h"
#include "tests/server/service/requests.h"
#include "tests/terminal/chart/chart_market.h"

namespace jogeon::terminal {
namespace {

using chart::ChartView;
using market::Timeframe;
using testing::ElementsAre;

class ChartScreenTest : public testing::Test {
protected:
    ChartScreenTest()
        : service_(test::ChartMarket(), nullptr), screen_({"kim01", service_, links_, questions_, workers_}) {
        screen_.resize(860, 560);
        screen_.show();
        view_ = screen_.findChild<ChartView*>();
    }

    void Settle() {
        do QCoreApplication::processEvents();
        while (!screen_.Settled() || workers_.activeThreadCount() > 0);
        QCoreApplication::processEvents();
    }
    void Link(const char* code) {
        links_.NVLink_SetLinkTagData({"ReturnMainKey", "JCODE", code});
        screen_.OnTagChanged("ReturnMainKey", "JCODE");
        Settle();
    }
    void Publish(const std::vector<std::string>& codes, const std::string& set = {}) {
        links_.NVLink_SetLinkTagData({"CS_RESULT", "CONDSET", set});
        links_.NVLink_SetMultiCodeLinkTagData("조건검색"_cp949, codes);
        Settle();
    }
    template <typename Button = QToolButton>
    Button& Find(const char* name) {
        return *screen_.findChild<Button*>(name);
    }
    void Press(const char* name) {
        QTest::mouseClick(&Find(name), Qt::LeftButton);
        Settle();
    }
    void Wheel(QPoint at, int angle) {
        QWheelEvent wheel(at, view_->mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view_, &wheel);
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(view_, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, view_->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(view_, &move);
        QTest::mouseRelease(view_, Qt::LeftButton, {}, to);
    }
    const chart::BarWindow& Window() const { return view_->Window(); }
    std::string TagOf(const char* tag) { return links_.NVLink_GetLinkTagData("ReturnMainKey", tag, nullptr); }

    // Days on which the close lay in a range that it often lies in.
    static std::string Set() { return test::Header("A", "01") + test::PriceBlock('A', "9800", "10200"); }

    service::LocalService service_;
    Links links_{"kim01", {}, {}};
    test::ScriptedQuestions questions_;
    QThreadPool workers_;
    ChartScreen screen_;
    ChartView* view_;
};

TEST_F(ChartScreenTest, FollowsTheLinkedStock) {
    EXPECT_EQ(screen_.Title(), "차트");
    QSignalSpy titles(&screen_, &OwnScreen::TitleChanged);
    links_.NVLink_SetLinkTagData({"ReturnMainKey", "JCODE", test::kSwinging});
    screen_.OnOpened(false);
    Settle();
    EXPECT_EQ(screen_.Code(), "") << "nobody asked for the linked stock";
    screen_.OnOpened(true);
    Settle();
    EXPECT_EQ(screen_.Title(), "차트 - 가나전자 (000010)");
    EXPECT_EQ(titles.size(), 1);
    EXPECT_EQ(view_->Shown().bars, service_.GetCharts().Bars(test::kSwinging, Timeframe::Day)->bars);
    EXPECT_EQ(Find<QLineEdit>("stock").text(), "가나전자");

    // Two links on end: the answer to the first comes too late.
    links_.NVLink_SetLinkTagData({"ReturnMainKey", "JCODE", test::kPausing});
    screen_.OnTagChanged("ReturnMainKey", "JCODE");
    Link(test::kOther);
    EXPECT_EQ(view_->Shown().code, test::kOther);
    screen_.OnTagChanged("CS_REAL", "REALINFO");
    Link(test::kEmpty);
    EXPECT_TRUE(view_->Shown().bars.empty());
    EXPECT_EQ(screen_.Title(), "차트 - 마바상사 (000040)");
    Link("999999");
    EXPECT_TRUE(view_->Shown().bars.empty());
    EXPECT_EQ(screen_.Title(), "차트 - 999999");
    view_->grab();
    Wheel({300, 200}, 120);
    QTest::keyClick(view_, Qt::Key_Home);
    EXPECT_TRUE(questions_.boxes.empty());
}

TEST_F(ChartScreenTest, TakesAStockByCodeOrName) {
    screen_.OnOpened(false);
    Settle();
    auto& box = Find<QLineEdit>("stock");
    const std::pair<const char*, const char*> cases[] = {
        {"000030", test::kPausing},   {"가나전자", test::kSwinging}, {"가나전자우", test::kOther},
        {"다라", test::kPausing},     {"상사", test::kEmpty},        {"a000010", test::kSwinging},
        {"없는회사", test::kSwinging}};
    for (const auto& [typed, code] : cases) {
        box.setFocus();
        box.clear();
        box.insert(typed);
        QTest::keyClick(&box, Qt::Key_Return);
        Settle();
        EXPECT_EQ(screen_.Code(), code) << typed;
    }
    EXPECT_EQ(box.accessibleDescription(), "그런 종목이 없습니다");
    EXPECT_EQ(TagOf("JCODE"), "") << "only a step announces";
}

TEST_F(ChartScreenTest, StepsThroughThePublishedCodesAndAnnouncesThem) {
    QSignalSpy told(&screen_, &OwnScreen::TagSet);
    EXPECT_FALSE(Find("forward").isEnabled());
    Publish({test::kSwinging, test::kPausing, test::kOther});
    const std::pair<const char*, const char*> steps[] = {
        {"forward", test::kSwinging}, {"forward", test::kPausing}, {"forward", test::kOther},
        {"forward", test::kSwinging}, {"back", test::kOther},      {"back", test::kPausing}};
    for (const auto& [button, code] : steps) {
        Press(button);
        EXPECT_EQ(screen_.Code(), code);
        EXPECT_EQ(TagOf("JCODE"), code);
        EXPECT_EQ(TagOf("J_ECODE"), code);
    }
    EXPECT_EQ(told.size(), 6);
    EXPECT_EQ(Find<QLabel>("place").text(), "2/3");
    Link(test::kEmpty);
    Press("back");
    EXPECT_EQ(screen_.Code(), test::kOther) << "from outside of the list: its last";
    Publish({});
    EXPECT_FALSE(Find("back").isEnabled());
}

TEST_F(ChartScreenTest, MarksTheBarsOnWhichTheSetWasTrue) {
    Link(test::kSwinging);
    EXPECT_FALSE(view_->ShownMarks().known);
    Publish({test::kSwinging}, Set());
    const std::vector<int> days = service_.GetCharts().TrueDays("kim01", Set(), test::kSwinging);
    ASSERT_GT(days.size(), 5u);
    for (const int timeframe : {0, 1, 2}) {
        Press(("timeframe" + std::to_string(timeframe)).c_str());
        const auto bars = service_.GetCharts().Bars(test::kSwinging, static_cast<Timeframe>(timeframe))->bars;
        EXPECT_EQ(view_->ShownMarks().bars,
                  chart::BarsHolding(bars, static_cast<Timeframe>(timeframe), days));
        EXPECT_EQ(view_->ShownMarks().days, static_cast<int>(days.size()));
    }
    Publish({test::kOther}, Set());
    EXPECT_FALSE(view_->ShownMarks().known) << "no stock of the result";
    Publish({test::kSwinging}, Set().substr(1));
    EXPECT_FALSE(view_->ShownMarks().known) << "a set that can't be judged";
    Publish({test::kSwinging}, Set());
    EXPECT_TRUE(view_->ShownMarks().known);
    Publish({test::kSwinging});
    EXPECT_FALSE(view_->ShownMarks().known) << "no conditions";
    EXPECT_TRUE(questions_.boxes.empty());
}

// Pixels of exactly this colour in a part of the picture.
int CountOf(const QImage& picture, QRect part, Color color) {
    int count = 0;
    part &= picture.rect();
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += picture.pixelColor(x, y) == ToQColor(color);
    return count;
}

TEST_F(ChartScreenTest, PaintsAMarkUnderEachMarkedBarAndNothingOutsideOfItsPane) {
    Find<QComboBox>("lower").setCurrentIndex(0);
    Link(test::kSwinging);
    Publish({test::kSwinging}, Set());
    QTest::keyClick(view_, Qt::Key_Home);
    QTest::keyClick(view_, Qt::Key_Plus);
    const QImage picture = view_->grab().toImage();
    const chart::Scene& scene = view_->CurrentScene();
    const std::vector<int>& marked = view_->ShownMarks().bars;
    int found = 0;
    for (int bar = Window().FirstVisible() + 1; bar < Window().EndVisible() - 1; ++bar) {
        const int x = static_cast<int>(Window().CentreOf(bar));
        const int y = static_cast<int>(scene.price.YOf(scene.content.At(bar).low) + chart::kMarkGap);
        const int pixels =
            CountOf(picture, {x, y, 1, static_cast<int>(chart::kMarkHeight)}, Color::ChartMark);
        const bool is = std::binary_search(marked.begin(), marked.end(), bar);
        EXPECT_EQ(pixels > 2, is) << "bar " << bar;
        found += is;
    }
    EXPECT_GT(found, 2);

    const chart::Panes& panes = scene.panes;
    const QRect axis(panes.Right() + 1, panes.price.top(), view_->width(), view_->height());
    EXPECT_GT(CountOf(picture, panes.volume, Color::ChartVolume), 500);
    for (const QRect& outside : {panes.legend, panes.price, axis, panes.dates})
        EXPECT_EQ(CountOf(picture, outside, Color::ChartVolume), 0);
    for (const QRect& outside : {panes.volume, axis, panes.dates})
        for (const Color color : {Color::ChartMark, Color::ChartLine1, Color::ChartLine3, Color::ChartBand})
            EXPECT_EQ(CountOf(picture, outside, color), 0);
}

TEST_F(ChartScreenTest, WheelDragAndKeysMoveTheBars) {
    Link(test::kSwinging);
    const QPoint at(300, 200);
    QTest::keyClick(view_, Qt::Key_Left);
    int bar = Window().BarAt(at.x());
    double width = Window().BarWidth();
    Wheel(at, 120);
    EXPECT_GT(Window().BarWidth(), width);
    EXPECT_EQ(Window().BarAt(at.x()), bar);
    Wheel(at, -120);
    EXPECT_NEAR(Window().BarWidth(), width, 1e-9);

    bar = Window().BarAt(at.x());
    Drag(at, at + QPoint(200, 0));
    EXPECT_EQ(Window().BarAt(at.x() + 200), bar) << "the bar stays under the hand";
    const int dates = view_->CurrentScene().panes.dates.center().y();
    width = Window().BarWidth();
    Drag({300, dates}, {400, dates});
    EXPECT_GT(Window().BarWidth(), width);

    QTest::keyClick(view_, Qt::Key_Home);
    EXPECT_EQ(Window().FirstVisible(), 0);
    QTest::keyClick(view_, Qt::Key_Right);
    EXPECT_EQ(Window().FirstVisible(), 3);
    QTest::keyClick(view_, Qt::Key_End);
    EXPECT_EQ(Window().EndVisible(), test::kChartDays);
    width = Window().BarWidth();
    QTest::keyClick(view_, Qt::Key_Plus);
    EXPECT_GT(Window().BarWidth(), width);
    QTest::keyClick(view_, Qt::Key_Minus);
    EXPECT_NEAR(Window().BarWidth(), width, 1e-9);
}

TEST_F(ChartScreenTest, AnotherTimeframeShowsTheSameDaysAndAnotherStockItsNewest) {
    Link(test::kPausing);
    for (int i = 0; i < 4; ++i) QTest::keyClick(view_, Qt::Key_Plus);
    QTest::keyClick(view_, Qt::Key_PageUp);
    QTest::keyClick(view_, Qt::Key_PageUp);
    const int day = view_->Shown().At(Window().EndVisible() - 1).date;
    Press("timeframe1");
    EXPECT_THAT(chart::BarsHolding(view_->Shown().bars, Timeframe::Week, {day}),
                ElementsAre(Window().EndVisible() - 1));
    Press("timeframe2");
    EXPECT_EQ(Window().EndVisible(), Window().Bars()) << "few months: all are in view";
    Press("timeframe0");
    EXPECT_EQ(view_->Shown().At(Window().EndVisible() - 1).date, day);
    Press("timeframe1");
    QTest::keyClick(view_, Qt::Key_End);
    Press("timeframe0");
    EXPECT_EQ(Window().EndVisible(), Window().Bars()) << "the trader went there himself";
    QTest::keyClick(view_, Qt::Key_Home);
    Link(test::kOther);
    EXPECT_EQ(Window().EndVisible(), Window().Bars());
}

TEST_F(ChartScreenTest, AFrameSaysThatItHasTheFocus) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen_));
    const auto edge = [&] { return view_->grab().toImage().pixelColor(view_->width() - 1, 100); };
    for (const char* stock : {"", test::kSwinging}) {
        if (*stock) Link(stock);
        Find<QLineEdit>("stock").setFocus();
        EXPECT_EQ(edge(), ToQColor(Color::ChartBack));
        view_->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(edge(), ToQColor(Color::Accent));
    }
}

TEST_F(ChartScreenTest, TheTabKeyComesToTheChartAndThenToItsBar) {
    std::vector<QWidget*> stops;
    for (QWidget* at = screen_.nextInFocusChain(); at != &screen_; at = at->nextInFocusChain())
        if (at->focusPolicy() & Qt::TabFocus) stops.push_back(at);
    ASSERT_GE(stops.size(), 2u);
    EXPECT_EQ(view_, stops[0]);
    EXPECT_EQ(&Find<QLineEdit>("stock"), stops[1]);
}

TEST_F(ChartScreenTest, LegendTellsOfTheBarUnderThePointer) {
    Link(test::kPausing);
    const auto texts = [&](int bar) {
        std::vector<std::string> all;
        for (const chart::LegendEntry& entry : EntriesOf(view_->Shown(), view_->ShownMarks(), bar))
            all.push_back((entry.label + "=" + entry.value).toStdString());
        return all;
    };
    const service::ChartBar& bar = view_->Shown().At(4);
    const double before = view_->Shown().At(3).close;
    const auto number = [](double value) { return NumberText(value).toStdString(); };
    const std::vector<std::string> told = texts(4);
    ASSERT_EQ(told.size(), 12u);
    EXPECT_EQ(told[0], "=" + DateText(bar.date).toStdString());
    EXPECT_EQ(told[1], "시=" + number(bar.open));
    EXPECT_EQ(told[4], "종=" + number(bar.close));
    EXPECT_EQ(told[5], "=" + PercentText(100 * (bar.close - before) / before).toStdString());
    EXPECT_EQ(told[6], "거래량=" + number(bar.volume));
    EXPECT_EQ(told[8], "MA20=-") << "too early for it";
    EXPECT_EQ(texts(0)[5], "=") << "nothing before the first bar";

    // A move of the pointer changes the picture, and leaving restores it.
    const QImage still = view_->grab().toImage();
    QTest::mouseMove(view_, {300, 200});
    QCoreApplication::processEvents();
    const QImage crossed = view_->grab().toImage();
    EXPECT_NE(still, crossed);
    EXPECT_GT(CountOf(crossed, view_->CurrentScene().panes.price, Color::ChartCrosshair), 200);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(view_, &leave);
    EXPECT_EQ(view_->grab().toImage(), still);
}

TEST_F(ChartScreenTest, ChoiceIsKeptAndABadOneIsNot) {
    QTemporaryDir folder;
    QSettings settings(folder.filePath("state.ini"), QSettings::IniFormat);
    Link(test::kSwinging);
    Press("timeframe1");
    Find<QComboBox>("lower").setCurrentIndex(3);
    auto* periods = screen_.findChild<chart::StudyEditor*>()->findChild<QSpinBox*>();
    periods->setValue(7);
    screen_.SaveState(settings);
    EXPECT_EQ(view_->Shown().study.averages.front().name, "MA7");
    EXPECT_EQ(view_->Shown().study.lower.size(), 2u);

    ChartScreen other({"kim01", service_, links_, questions_, workers_});
    other.RestoreState(settings);
    QSettings again(folder.filePath("again.ini"), QSettings::IniFormat);
    other.SaveState(again);
    for (const QString& key : settings.allKeys())
        EXPECT_EQ(again.value(key), settings.value(key)) << key.toStdString();
    EXPECT_EQ(other.findChild<QComboBox*>("lower")->currentIndex(), 3);

    settings.setValue("lower", 99);
    settings.setValue("timeframe", "week");
    settings.setValue("averages", QStringList{"-5", "x", "60000"});
    other.RestoreState(settings);
    other.SaveState(again);
    EXPECT_EQ(again.value("lower").toInt(), 2);
    EXPECT_EQ(again.value("timeframe").toInt(), 0);
    EXPECT_EQ(again.value("averages").toStringList(), (QStringList{"5", "20", "60", "120", "0"}));
}

TEST_F(ChartScreenTest, ServiceThatCantTellGivesACalmLine) {
    remote::RemoteService gone("127.0.0.1:1");
    ChartScreen screen({"kim01", gone, links_, questions_, workers_});
    links_.NVLink_SetLinkTagData({"ReturnMainKey", "JCODE", test::kSwinging});
    Publish({test::kSwinging}, Set());
    screen.OnOpened(true);
    while (!screen.Settled()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_TRUE(screen.View().Shown().bars.empty());
    EXPECT_EQ(screen.View().accessibleDescription(), "지금은 차트를 불러올 수 없습니다");
    EXPECT_TRUE(questions_.boxes.empty());
    workers_.waitForDone();  // the stocks for the box are still asked for
}

}  // namespace
}  // namespace jogeon::terminal
