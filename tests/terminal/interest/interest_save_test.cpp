// The interest save of screen 0150, with a user who answers as the test says.
#include "terminal/interest/interest_save.h"

#include <QWidget>

#include <gtest/gtest.h>

#include "screen/host/window_messages_qt.h"
#include "screen/text/cp949_qt.h"
#include "terminal/interest/portfolio_texts.h"
#include "tests/terminal/support/interest_place.h"

namespace jogeon::terminal {
namespace {

using Codes = std::vector<std::string>;

// Answers the question for its settings as screen 0150 does.
class SettingsWindow : public QWidget {
public:
    const host::WindowHandle handle = host::RegisterWindow(*this);
    int regLink = 0, confirmOverwrite = 0;

protected:
    bool event(QEvent* event) override {
        const host::MessageEvent* message = host::AsMessage(event);
        if (!message) return QWidget::event(event);
        EXPECT_EQ(message->number, 0x720u);
        auto* block = reinterpret_cast<unsigned char*>(message->lParam);
        block[0x12c] = static_cast<unsigned char>(regLink);
        block[0x130] = static_cast<unsigned char>(confirmOverwrite);
        return true;
    }
};

class InterestSaveTest : public testing::Test {
protected:
    InterestSaveTest() {
        place_.SetStocks("501", {"000010", "000020"});
        place_.questions.onRun = [this](const std::string& name, void* object) {
            EXPECT_EQ(name, "InterestDialog");
            auto* dialog = static_cast<QDialog*>(object);
            dialog->show();
            answer_(*dialog);
            return dialog->result() == QDialog::Accepted;
        };
    }

    int Press(const Codes& codes) { return save_.SaveInterest(window_.handle, codes, 0, 1); }

    // Whether the codes were saved in the end.
    bool Save(const Codes& codes) {
        const std::size_t before = told_.size();
        Press(codes);
        EXPECT_TRUE(QTest::qWaitFor([this] { return save_.Idle(); }, InterestPlace::kPatience));
        return told_.size() > before;
    }

    static void Click(QDialog& dialog, const char* name) {
        QTest::mouseClick(dialog.findChild<QAbstractButton*>(name), Qt::LeftButton);
    }
    static QString TextOf(QDialog& dialog, const char* name) {
        return dialog.findChild<QLabel*>(name)->text();
    }

    InterestPlace place_;
    SettingsWindow window_;
    std::vector<std::string> told_;  // "code" or "code shown"
    InterestSave save_{place_.workplace, [this](const std::string& code, bool show) {
                           told_.push_back(code + (show ? " shown" : ""));
                       }};
    std::function<void(QDialog&)> answer_;
};

TEST_F(InterestSaveTest, StocksJoinAGroupOrReplaceIt) {
    answer_ = [](QDialog& dialog) {
        EXPECT_EQ(TextOf(dialog, "head"), "검색 결과 3종목을 관심그룹에 저장합니다.");
        EXPECT_EQ(TextOf(dialog, "advice"), "그룹에 없는 2종목이 추가되어 4종목이 됩니다.");
        Click(dialog, "save");
    };
    EXPECT_TRUE(Save({"000020", "000030", "100010", "000030"}));
    EXPECT_EQ(place_.StocksOf("501"), (Codes{"000010", "000020", "000030", "100010"}));
    EXPECT_EQ(told_, Codes{"501"}) << "not shown without the setting";

    window_.regLink = 1;
    answer_ = [](QDialog& dialog) {
        Click(dialog, "replace");
        EXPECT_EQ(TextOf(dialog, "advice"), "그룹에 있던 4종목이 검색 결과 1종목으로 바뀝니다.");
        Click(dialog, "save");
    };
    EXPECT_TRUE(Save({"000040"}));
    EXPECT_EQ(place_.StocksOf("501"), Codes{"000040"});
    EXPECT_TRUE(place_.questions.boxes.empty()) << "nobody wanted to be asked";
    EXPECT_EQ(told_.back(), "501 shown");
}

TEST_F(InterestSaveTest, TheSettingAsksBeforeStocksAreReplaced) {
    window_.confirmOverwrite = 1;
    answer_ = [](QDialog& dialog) {
        Click(dialog, "replace");
        Click(dialog, "save");
    };
    place_.questions.answers = {host::Answer::No, host::Answer::Yes};
    EXPECT_FALSE(Save({"000040"}));
    EXPECT_EQ(place_.StocksOf("501"), (Codes{"000010", "000020"}));
    EXPECT_TRUE(told_.empty());
    EXPECT_TRUE(Save({"000040"}));
    EXPECT_EQ(place_.StocksOf("501"), Codes{"000040"});
    place_.SetStocks("501", {});
    EXPECT_TRUE(Save({"000040"}));
    EXPECT_EQ(place_.questions.boxes.size(), 2u) << "an empty group has nothing to lose";
}

TEST_F(InterestSaveTest, ANewGroupTakesTheStocksAndABadNameIsSaid) {
    QStringList names = {"대형주", "😀", "검색 결과"};
    QStringList found;
    answer_ = [&](QDialog& dialog) {
        auto& name = *dialog.findChild<QLineEdit*>("name");
        if (found.isEmpty()) {
            Click(dialog, "new");
            EXPECT_FALSE(dialog.findChild<QPushButton*>("save")->isEnabled()) << "no name yet";
        }
        EXPECT_EQ(dialog.focusWidget(), &name);
        found += name.text();
        name.selectAll();
        Type(name, names.takeFirst());
        Click(dialog, "save");
    };
    EXPECT_TRUE(Save({"000040", "000010"}));
    EXPECT_EQ(found, (QStringList{"", "대형주", "😀"})) << "nobody writes a name twice";
    ASSERT_EQ(place_.questions.boxes.size(), 2u);
    EXPECT_EQ(ToQString(place_.questions.boxes[0].text), WhyNot(service::Verdict::NameInUse));
    EXPECT_EQ(ToQString(place_.questions.boxes[1].text), WhyNot(service::Verdict::BadName));
    EXPECT_EQ(place_.NameOf("504"), "검색 결과");
    EXPECT_EQ(place_.StocksOf("504"), (Codes{"000040", "000010"}));
}

TEST_F(InterestSaveTest, NothingToSaveACancelAndAGroupThatIsGone) {
    answer_ = [](QDialog& dialog) { dialog.reject(); };
    EXPECT_FALSE(Save({}));
    EXPECT_TRUE(place_.questions.dialogs.empty());
    EXPECT_EQ(place_.questions.boxes.size(), 1u);
    EXPECT_FALSE(Save({"000040"}));
    EXPECT_EQ(place_.questions.boxes.size(), 1u) << "silently";
    answer_ = [this](QDialog& dialog) {
        if (place_.Portfolios().Delete(InterestPlace::kUser, "501") == service::Verdict::Taken)
            Click(dialog, "save");
        else
            dialog.reject();
    };
    EXPECT_FALSE(Save({"000040"}));
    EXPECT_EQ(place_.questions.dialogs.size(), 3u) << "another group may be chosen";
    EXPECT_EQ(ToQString(place_.questions.boxes.back().text), WhyNot(service::Verdict::NoSuchGroup));
}

TEST_F(InterestSaveTest, TheUserWaitsForNoServiceAndSavesOnceAtATime) {
    answer_ = [](QDialog& dialog) { dialog.reject(); };
    std::unique_lock hold(place_.service.gate);
    EXPECT_EQ(Press({"000040"}), 1);
    EXPECT_EQ(Press({"000040"}), 0);
    EXPECT_TRUE(QGuiApplication::overrideCursor());
    EXPECT_TRUE(place_.questions.dialogs.empty());
    hold.unlock();
    ASSERT_TRUE(QTest::qWaitFor([this] { return save_.Idle(); }, InterestPlace::kPatience));
    EXPECT_EQ(place_.questions.dialogs.size(), 1u);
    EXPECT_FALSE(QGuiApplication::overrideCursor());

    answer_ = [this](QDialog& dialog) {
        place_.service.fails = true;
        Click(dialog, "save");
    };
    EXPECT_FALSE(Save({"000040"}));
    ASSERT_EQ(place_.questions.boxes.size(), 1u);
    EXPECT_NE(ToUtf8(place_.questions.boxes[0].text).find("can't be reached"), std::string::npos);
}

TEST_F(InterestSaveTest, NobodyIsAskedWhenTheSaveIsGone) {
    std::unique_lock hold(place_.service.gate);
    {
        InterestSave gone(place_.workplace, {});
        EXPECT_EQ(gone.SaveInterest(window_.handle, {"000040"}, 0, 1), 1);
    }
    hold.unlock();
    place_.workers.waitForDone();
    QApplication::processEvents();
    EXPECT_TRUE(place_.questions.dialogs.empty());
    EXPECT_FALSE(QGuiApplication::overrideCursor());
}

TEST_F(InterestSaveTest, MoreThanAGroupHoldsCantBeChosen) {
    Codes many;
    for (int i = 0; i < 501; ++i) many.push_back(std::to_string(200000 + i));
    answer_ = [](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QPushButton*>("save")->isEnabled());
        EXPECT_EQ(TextOf(dialog, "advice"),
                  "저장하면 503종목이 됩니다. 한 그룹에는 500종목까지 담을 수 있습니다.");
        dialog.reject();
    };
    EXPECT_FALSE(Save(many));
}

}  // namespace
}  // namespace jogeon::terminal
