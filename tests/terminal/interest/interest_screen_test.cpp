// The interest window over a real service, by mouse and keys.
#include "terminal/interest/interest_screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCompleter>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMimeData>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "terminal/interest/group_tree.h"
#include "terminal/interest/holdings_dialog.h"
#include "terminal/interest/portfolio_texts.h"
#include "tests/terminal/support/interest_place.h"

namespace jogeon::terminal {
namespace {

using Codes = std::vector<std::string>;

constexpr char kSearched[] = "501";  // the group that the tests work on: the largest stocks

class InterestScreenTest : public testing::Test {
protected:
    InterestScreenTest() {
        place_.SetStocks(kSearched, {"000010", "000020", "100010"});
        screen_.resize(700, 420);
        screen_.show();
        screen_.OnOpened(false);
        Settle();
    }

    void Settle() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return screen_.Idle(); }, InterestPlace::kPatience));
        QApplication::processEvents();
    }

    template <typename Widget>
    Widget& Get(const char* name) {
        return *screen_.findChild<Widget*>(name);
    }
    void Press(const char* name) {
        QTest::mouseClick(&Get<QPushButton>(name), Qt::LeftButton);
        Settle();
    }
    QTreeWidget& Groups() { return Get<QTreeWidget>("groups"); }
    QStringList GroupNames() {
        QStringList names;
        for (int i = 0; i < Groups().topLevelItemCount(); ++i) names += Groups().topLevelItem(i)->text(0);
        return names;
    }
    void ClickGroup(int place) {
        const QRect where = Groups().visualItemRect(Groups().topLevelItem(place));
        QTest::mouseClick(Groups().viewport(), Qt::LeftButton, {}, where.center());
    }
    // Cells of a row of the table, joined by blanks.
    QString Row(const char* table, int row) {
        const QAbstractItemModel& model = *Get<StockTable>(table).model();
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells += model.index(row, column).data().toString();
        return cells.join(QLatin1Char('|'));
    }
    QPoint At(StockTable& table, int row) { return table.visualRect(table.model()->index(row, 0)).center(); }
    void ClickStock(int row, Qt::KeyboardModifiers keys = {}) {
        StockTable& table = Get<StockTable>("stocks");
        QTest::mouseClick(table.viewport(), Qt::LeftButton, keys, At(table, row));
    }
    std::string Tag(const char* tag) {
        return place_.links.NVLink_GetLinkTagData("ReturnMainKey", tag, nullptr);
    }
    Codes Stocks() { return place_.StocksOf(kSearched); }
    // The name that is being edited in place, and its end.
    void WriteName(const QString& name) {
        auto* edit = Groups().findChild<QLineEdit*>();
        ASSERT_TRUE(edit);
        edit->selectAll();
        Type(*edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
        QApplication::processEvents();  // the list takes the text when its events are handled
        Settle();
    }

    InterestPlace place_;
    InterestScreen screen_{place_.workplace};
};

TEST_F(InterestScreenTest, ShowsGroupsAndStocksWithTheirLastDay) {
    EXPECT_EQ(GroupNames(), (QStringList{"대형주", "거래대금 상위", "저가주"}));
    EXPECT_EQ(Groups().topLevelItem(0)->text(1), "3");
    EXPECT_EQ(Row("stocks", 0), "가전자|000010|50,000|▲ 10|+0.02%");
    ClickGroup(2);
    EXPECT_EQ(Row("stocks", 0), "바반도체|100020|800|▲ 10|+1.27%");
    EXPECT_EQ(place_.links.NVLink_GetAccountCount(), 2) << "for screens that choose an account";
}

TEST_F(InterestScreenTest, PricesAreSeenAtTheFirstSizeAndNoNamePushesThemOutOfALesserOne) {
    const auto& table = Get<QTableView>("stocks");
    screen_.resize(screen_.sizeHint());
    QApplication::processEvents();
    EXPECT_LE(table.horizontalHeader()->length(), table.viewport()->width());
    for (const int width : {1200, 500}) {
        screen_.resize(width, 420);
        QApplication::processEvents();
    }
    EXPECT_LT(table.columnWidth(0), table.viewport()->width() / 2);
}

TEST_F(InterestScreenTest, GroupsAreMadeNamedMovedAndDeleted) {
    Press("newGroup");
    WriteName("반도체 관심");
    EXPECT_EQ(place_.NameOf("504"), "반도체 관심");
    Press("groupUp");
    EXPECT_EQ(GroupNames(), (QStringList{"대형주", "거래대금 상위", "반도체 관심", "저가주"}));

    ClickGroup(2);
    QTest::keyClick(&Groups(), Qt::Key_F2);
    WriteName("저가주");
    ASSERT_EQ(place_.questions.boxes.size(), 1u) << "the name is in use";
    EXPECT_EQ(GroupNames().value(2), "반도체 관심");
    QTest::keyClick(&Groups(), Qt::Key_F2);
    WriteName("가나다라마바사아자차카타파하가나다라마바");
    EXPECT_EQ(place_.NameOf("504"), "가나다라마바사아자차카타파하가나다라마바") << "forty bytes";

    place_.questions.answers = {host::Answer::No, host::Answer::Yes};
    Press("deleteGroup");
    EXPECT_EQ(Groups().topLevelItemCount(), 4) << "he said no";
    Press("deleteGroup");
    EXPECT_EQ(GroupNames(), (QStringList{"대형주", "거래대금 상위", "저가주"}));
    EXPECT_EQ(Groups().currentItem()->text(0), "저가주") << "the one in its place";
}

TEST_F(InterestScreenTest, StocksAreAddedByNameOrCodeRemovedAndMoved) {
    auto& input = Get<StockInput>("stockInput");
    Type(input, "000030");
    QTest::keyClick(&input, Qt::Key_Return);
    Settle();
    Type(input, "사호");  // a part of one name only
    QTest::keyClick(&input, Qt::Key_Return);
    Settle();
    EXPECT_EQ(input.text(), "");
    Type(input, "나은행");  // there is 나은행우, too
    QTest::keyClick(input.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(input.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(input.completer()->popup(), Qt::Key_Return);
    Settle();
    EXPECT_EQ(Stocks(), (Codes{"000010", "000020", "100010", "000030", "100030", "000025"}));
    EXPECT_EQ(Get<QLabel>("stockCount").text(), "6종목");
    Type(input, "없는 종목");
    QTest::keyClick(&input, Qt::Key_Return);
    EXPECT_EQ(place_.questions.boxes.size(), 1u);

    ClickStock(1);
    ClickStock(2, Qt::ControlModifier);
    QTest::keyClick(&Get<StockTable>("stocks"), Qt::Key_Delete);
    Settle();
    EXPECT_EQ(Stocks(), (Codes{"000010", "000030", "100030", "000025"}));
    ClickStock(3);
    for (int i = 0; i < 2; ++i) Press("stocksUp");
    EXPECT_EQ(Stocks(), (Codes{"000010", "000025", "000030", "100030"})) << "it stays chosen on its way";
}

TEST_F(InterestScreenTest, PasteTakesWhatItKnowsAndSaysWhatItDoesnt) {
    QApplication::clipboard()->setText("000010\n다제약\t3000\n쓸데없는 줄\nA100020");
    QTest::keySequence(&Get<StockTable>("stocks"), QKeySequence::Paste);
    Settle();
    EXPECT_EQ(Stocks(), (Codes{"000010", "000020", "100010", "000030", "100020"}));
    ASSERT_EQ(place_.questions.boxes.size(), 1u);
    EXPECT_NE(ToUtf8(place_.questions.boxes[0].text).find("쓸데없는 줄"), std::string::npos);
    QTest::keySequence(&Get<StockTable>("stocks"), QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text().split('\n').size(), 3) << "the added ones are chosen";
}

TEST_F(InterestScreenTest, AClickSharesTheStockAndADoubleClickOpensTheChart) {
    std::vector<std::string> shared;
    QStringList asked;
    QObject::connect(&screen_, &OwnScreen::TagSet, &screen_,
                     [&](const std::string& key, const std::string& tag) {
                         shared.push_back(key + "/" + tag + "=" + Tag("JCODE") + "," + Tag("J_ECODE"));
                     });
    QObject::connect(&screen_, &OwnScreen::ScreenAsked, &screen_,
                     [&](const QString& number, bool linked) { asked += number + (linked ? "+" : ""); });
    ClickStock(1);
    EXPECT_EQ(shared, Codes{"ReturnMainKey/JCODE=000020,000020"});
    QTest::keyClick(&Get<StockTable>("stocks"), Qt::Key_Down);
    EXPECT_EQ(Tag("JCODE"), "100010");
    EXPECT_TRUE(asked.isEmpty());
    StockTable& table = Get<StockTable>("stocks");
    ClickStock(0);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, At(table, 0));
    EXPECT_EQ(asked, QStringList{"0615+"});
    EXPECT_EQ(Tag("J_ECODE"), "000010");
}

// The focus that comes in has everything read anew, while the button is down.
TEST_F(InterestScreenTest, TheFirstClickAndTheFirstDoubleClickIntoTheWindowAreNotLost) {
    QWidget window;
    QLineEdit elsewhere(&window);
    screen_.setParent(&window);
    screen_.move(0, elsewhere.sizeHint().height());
    window.resize(700, 460);
    window.show();
    screen_.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Settle();
    QStringList asked;
    QObject::connect(&screen_, &OwnScreen::ScreenAsked, &screen_,
                     [&](const QString& number, bool) { asked += number; });
    StockTable& table = Get<StockTable>("stocks");
    for (const int row : {1, 2}) {
        elsewhere.setFocus();
        QTest::mousePress(table.viewport(), Qt::LeftButton, {}, At(table, row));
        EXPECT_FALSE(screen_.Idle());
        Settle();
        QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, At(table, row));
        EXPECT_EQ(Tag("JCODE"), Stocks()[static_cast<std::size_t>(row)]);
    }
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, At(table, 2));
    EXPECT_EQ(asked, QStringList{"0615"});
    screen_.setParent(nullptr);
}

// Where no platform drags, the list is handed the drop itself.
struct Dropping : GroupTree {
    using GroupTree::dropEvent;
};

TEST_F(InterestScreenTest, ADraggedGroupGoesWhereItIsDropped) {
    const auto drop = [this](int group, QPoint at) {
        ClickGroup(group);
        const QMimeData data;
        QDropEvent event(at, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        (Get<GroupTree>("groups").*&Dropping::dropEvent)(&event);
        EXPECT_NE(event.dropAction(), Qt::MoveAction) << "the view would take the row out";
        Settle();
    };
    const auto rect = [this](int row) { return Groups().visualItemRect(Groups().topLevelItem(row)); };
    drop(0, rect(2).center() - QPoint(0, 5));
    EXPECT_EQ(GroupNames(), (QStringList{"거래대금 상위", "대형주", "저가주"}));
    drop(2, rect(0).topLeft() + QPoint(5, 1));
    EXPECT_EQ(GroupNames(), (QStringList{"저가주", "거래대금 상위", "대형주"}));
    drop(0, {5, Groups().viewport()->height() - 1});
    EXPECT_EQ(GroupNames(), (QStringList{"거래대금 상위", "대형주", "저가주"}));
    EXPECT_EQ(Groups().currentItem()->text(0), "저가주");
    EXPECT_EQ(place_.Portfolios().Groups(InterestPlace::kUser).back().code, "503");
}

TEST_F(InterestScreenTest, WhatAServiceThatFailsDidntTakeIsNotShownAndNotLost) {
    auto& trouble = Get<QLabel>("trouble");
    auto& input = Get<StockInput>("stockInput");
    ClickGroup(0);
    place_.service.fails = true;
    QTest::keyClick(&Groups(), Qt::Key_F2);
    WriteName("새 이름");
    EXPECT_EQ(GroupNames().value(0), "대형주");
    EXPECT_TRUE(trouble.text().contains("the server can't be reached"));
    EXPECT_TRUE(place_.questions.boxes.empty()) << "no box on every activation";
    Type(input, "000030");
    QTest::keyClick(&input, Qt::Key_Return);
    Settle();
    EXPECT_EQ(input.text(), "000030");
    place_.service.fails = false;
    QTest::keyClick(&input, Qt::Key_Return);
    Settle();
    EXPECT_EQ(input.text(), "");
    EXPECT_TRUE(trouble.isHidden());

    std::unique_lock hold(place_.service.gate);
    Type(input, "000040");
    QTest::keyClick(&input, Qt::Key_Return);
    QApplication::processEvents();
    Type(input, "다제");
    hold.unlock();
    Settle();
    EXPECT_EQ(input.text(), "다제") << "he is writing the next one";
    EXPECT_EQ(Stocks(), (Codes{"000010", "000020", "100010", "000030", "000040"}));
}

TEST_F(InterestScreenTest, AChangeElsewhereIsSeenWhenTheWindowIsShownAndNotLostByOnesOwn) {
    place_.SetStocks(kSearched, {"000040"});
    auto& input = Get<StockInput>("stockInput");
    Type(input, "000030");
    QTest::keyClick(&input, Qt::Key_Return);
    Settle();
    EXPECT_EQ(Stocks(), (Codes{"000040", "000030"})) << "added to what the group has now";

    place_.Portfolios().Rename(InterestPlace::kUser, kSearched, "밖에서"_cp949);
    screen_.hide();
    screen_.show();
    Settle();
    EXPECT_EQ(GroupNames().value(0), "밖에서");
    screen_.ShowGroup("503");
    Settle();
    EXPECT_EQ(Groups().currentItem()->text(0), "저가주");
    screen_.ShowGroup("504");
    Settle();
    place_.Portfolios().Add(InterestPlace::kUser, "방금"_cp949, {"000010"});
    screen_.Refresh();
    Settle();
    EXPECT_EQ(Groups().currentItem()->text(0), "방금") << "a group that the window didn't know";
}

class HoldingsImportTest : public InterestScreenTest {
protected:
    HoldingsImportTest() {
        Get<QTabWidget>("pages").setCurrentIndex(1);
        place_.questions.onRun = [this](const std::string& name, void* object) {
            auto* dialog = static_cast<QDialog*>(object);
            if (name == "HoldingsFileDialog") {
                static_cast<QFileDialog*>(dialog)->setOption(QFileDialog::DontUseNativeDialog);
                static_cast<QFileDialog*>(dialog)->selectFile(folder_.filePath("holdings.csv"));
                return true;
            }
            dialog->show();
            answer_(*dialog);
            return dialog->result() == QDialog::Accepted;
        };
    }

    void Import(const char* csv) {
        QFile file(folder_.filePath("holdings.csv"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(csv);
        file.close();
        Press("importHoldings");
    }

    QTemporaryDir folder_;
    std::function<void(QDialog&)> answer_;
};

TEST_F(HoldingsImportTest, AFileWithRefusedLinesIsTakenOnlyWhenTheUserSaysSo) {
    const std::vector<service::HeldAccount> before = place_.Portfolios().Accounts(InterestPlace::kUser);
    const char* const csv = "종목코드,수량,매입단가\n000010,2,40000\n999999,1,1\nA100020,3,\n";
    answer_ = [](QDialog& dialog) {
        auto& take = *dialog.findChild<QPushButton*>("take");
        EXPECT_FALSE(take.isEnabled()) << "all or nothing";
        auto& refused = *dialog.findChild<QTreeWidget*>("refused");
        EXPECT_EQ(refused.topLevelItemCount(), 1);
        EXPECT_EQ(refused.topLevelItem(0)->text(0), "3");
        EXPECT_EQ(refused.topLevelItem(0)->text(1), "현재 시장에 없는 종목입니다: \"999999\"");
        dialog.reject();
    };
    Import(csv);
    EXPECT_EQ(place_.Portfolios().Accounts(InterestPlace::kUser), before);

    answer_ = [](QDialog& dialog) {
        auto& account = *dialog.findChild<QComboBox*>("account");
        account.setEditText("12345678-90");
        auto& take = *dialog.findChild<QPushButton*>("take");
        auto& without = *dialog.findChild<QCheckBox*>("withoutRefused");
        QTest::mouseClick(&without, Qt::LeftButton, {}, {10, without.height() / 2});
        EXPECT_FALSE(take.isEnabled()) << "no account yet";
        QTest::keyClicks(account.lineEdit(), "1");
        EXPECT_TRUE(take.isEnabled());
        QTest::mouseClick(&take, Qt::LeftButton);
    };
    Import(csv);
    EXPECT_EQ(place_.Portfolios().Accounts(InterestPlace::kUser).back(),
              (service::HeldAccount{"12345678901", {{"000010", 2, 40000}, {"100020", 3, 0}}}));
    EXPECT_EQ(Get<QComboBox>("accounts").currentText(), "12345678-901");
    EXPECT_EQ(Row("holdings", 0), "가전자|000010|2|40,000|100,000|+25.00%");
    EXPECT_EQ(Row("holdings", 1), "바반도체|100020|3|-|2,400|-");
    EXPECT_EQ(Get<QLabel>("holdingsTotal").text(), "2종목  ·  평가금액 합계 102,400원");

    place_.questions.answers = {host::Answer::Yes};
    Press("removeAccount");
    EXPECT_EQ(place_.Portfolios().Accounts(InterestPlace::kUser), before);
}

TEST_F(HoldingsImportTest, WhatIsNoTableOfHoldingsIsToldInABox) {
    answer_ = [](QDialog&) { ADD_FAILURE() << "nothing to show"; };
    Import("날짜,종가\n20260302,1000\n");
    ASSERT_EQ(place_.questions.boxes.size(), 1u);
    EXPECT_EQ(ToUtf8(place_.questions.boxes[0].caption), "CSV 가져오기");
}

}  // namespace
}  // namespace jogeon::terminal
