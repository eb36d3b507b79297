// The settings dialog by mouse and keys, over a screen and a grid that note what reaches them.
#include <QColorDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/files/profile_text.h"
#include "screen/host/window_messages_qt.h"
#include "screen/settings/settings_block.h"
#include "screen/text/cp949.h"
#include "terminal/settings/color_choice.h"
#include "terminal/settings/settings_dialog_host.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::terminal {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
constexpr int kReloadGrid = host::SettingsDialog::kReloadGrid;

// The screen's part of the messages.
class FakeScreen : public QWidget {
public:
    ScreenSettings settings;
    std::vector<std::uintptr_t> taken;  // wParam of each block handed back

protected:
    bool event(QEvent* event) override {
        const host::MessageEvent* message = host::AsMessage(event);
        if (!message) return QWidget::event(event);
        auto* block = reinterpret_cast<std::byte*>(message->lParam);
        if (message->number == host::kSettingsFill) FillSettingsBlock(settings, block);
        if (message->number == host::kSettingsTaken) {
            taken.push_back(message->wParam);
            TakeSettingsBlock(block, settings);
        }
        return true;
    }
};

class FakeGrid final : public host::GridColumns {
public:
    std::vector<host::GridColumnChoice> Choices() const override { return columns; }
    void Choose(const std::vector<host::GridColumnChoice>& chosen) override {
        columns = chosen;
        ++choices;
    }

    std::vector<host::GridColumnChoice> columns{{"9001", ToCp949("종목명"), 120, true},
                                                {"9003", ToCp949("현재가"), 72, true},
                                                {"9006", ToCp949("거래량"), 88, true},
                                                {"9012", "PER", 60, false}};
    int choices = 0;
};

class SettingsDialogTest : public testing::Test {
protected:
    SettingsDialogTest() : view_(host::RegisterWindow(screen_)) {
        links_.configurationFolder = folder_.Path().string();
        links_.tags[{"SharedMainKey", "USER_ID"}] = "me";
        test::WriteBytes(folder_.Path() / "Norvik.ini",
                         "[Path]\r\nHTSPATH=" + folder_.Path().string() + "\r\n");
        test::WriteText(folder_.Path() / "Screen/Dlg/0150TempGrid.dlg",
                        "[1]\nFid=9001\nHeader=종목명\nWidth=120\n[2]\nFid=9006\nHeader=거래량\nWidth=90\n"
                        "[3]\nFid=9012\nHeader=PER\nWidth=60\nHidden=1\n[4]\nFid=\nWidth=40\n");
    }

    // Opens the dialog, does `work` in it and closes it by OK; what Run returns.
    int Run(const std::function<void()>& work, const char* closeBy = "ok", int page = 0) {
        questions_.onRun = [&](const std::string& name, void* object) {
            if (name == "RowColorDialog") return PickColor(*static_cast<QColorDialog*>(object));
            dialog_ = static_cast<QDialog*>(object);
            dialog_->show();
            work();
            Click(closeBy);
            return dialog_->result() == QDialog::Accepted;
        };
        return SettingsDialogHost(links_, questions_).Run(view_, grid_, page);
    }

    bool PickColor(QColorDialog& dialog) {
        if (picked_.isValid()) dialog.setCurrentColor(picked_);
        return picked_.isValid();
    }

    template <typename Widget = QAbstractButton>
    Widget& The(const char* name) {
        return *dialog_->findChild<Widget*>(name);
    }
    void ShowPage(int page) { The<QTabWidget>("pages").setCurrentIndex(page); }
    void Click(const char* name) {
        auto& button = The(name);
        ASSERT_TRUE(button.isVisible()) << name;
        QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
    }
    void ClickColumn(int row, bool onBox) {
        auto& list = The<QTreeWidget>("columns");
        const QRect rect = list.visualItemRect(list.topLevelItem(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {onBox ? 10 : 60, rect.center().y()});
    }
    std::string Columns() const {
        std::string text;
        for (const auto& column : grid_.columns) {
            text += column.fid + (column.shown ? " " : "h ") + std::to_string(column.width) + "|";
        }
        return text;
    }
    std::string File() const {
        return std::filesystem::exists(file_) ? test::ReadBytes(file_) : std::string("none");
    }

    test::TempFolder folder_;
    const std::filesystem::path file_ = folder_.Path() / "User/me_SaveIndex0.dat";
    test::RecordingLinkStore links_;
    test::ScriptedQuestions questions_;
    FakeScreen screen_;
    FakeGrid grid_;
    const host::WindowHandle view_;
    QDialog* dialog_ = nullptr;
    QColor picked_;
};

TEST_F(SettingsDialogTest, NothingChangedOrCancelledIsNothing) {
    WriteProfileText(file_, "SaveIndex", "DelConfirm", "9");  // no choice of the dialog's
    const std::string before = File();
    EXPECT_EQ(0, Run([] {}));
    EXPECT_EQ(0, Run(
                     [this] {
                         Click("changeSize");
                         ShowPage(1);
                         ClickColumn(1, true);
                     },
                     "cancel"));
    EXPECT_EQ(before, File());
    EXPECT_EQ(0, grid_.choices);
    EXPECT_TRUE(screen_.taken.empty());
}

TEST_F(SettingsDialogTest, EverySettingGoesWhereItIsKept) {
    const int changed = Run([this] {
        for (const char* box : {"gridLines", "changeSize", "keyArrow"}) Click(box);
        picked_ = QColor(0xff, 0xf0, 0xe0);
        Click("oddColor");
        picked_ = Qt::black;
        Click("evenColor");
        ShowPage(2);
        for (const char* box : {"confirm", "nameConfirm", "initResult", "showSequence"}) Click(box);
        The<QWidget>("delConfirm").setFocus();
        QTest::keyClick(&The<QWidget>("delConfirm"), Qt::Key_Down);
        ShowPage(3);
        Click("regLink");
        Click("confirmOverwrite");
    });
    EXPECT_EQ(SettingsDialogHost::kSettingsChanged, changed);
    EXPECT_EQ(
        "[0150_GridInfo]\r\nbChangeSize=1\r\noddColor=14741759\r\nevenColor=65793\r\nlineBorder=1\r\n"
        "bKeyArrow=0\r\n"
        "[SaveIndex]\r\nConfirm=0\r\nNameConfirm=1\r\nDelConfirm=2\r\nInitResult=0\r\nShowSequence=1\r\n",
        File());
    EXPECT_THAT(screen_.taken, ElementsAre(0x0300u));
    EXPECT_EQ(1, screen_.settings.regLink);
    EXPECT_EQ(1, screen_.settings.confirmOverwrite);

    // The next opening shows them; a colour goes back to the grid's own by its button.
    picked_ = QColor();
    EXPECT_EQ(1, Run([this] {
                  EXPECT_FALSE(The("gridLines").isChecked());
                  EXPECT_FALSE(The("keyArrow").isChecked());
                  EXPECT_EQ(0x010101u, The<ColorChoice>("evenColor").Chosen());
                  Click("evenColor");  // cancelled
                  Click("oddColorDefault");
                  ShowPage(3);
                  EXPECT_TRUE(The("regLink").isChecked());
              }));
    EXPECT_EQ("0", ReadProfileText(file_, "0150_GridInfo", "oddColor"));
    EXPECT_EQ("65793", ReadProfileText(file_, "0150_GridInfo", "evenColor"));
}

TEST_F(SettingsDialogTest, ColumnsAreHiddenShownMovedAndSized) {
    const int changed = Run(
        [this] {
            ClickColumn(0, true);  // the stock's name stays
            ClickColumn(3, true);
            ClickColumn(1, true);
            ClickColumn(2, false);
            Click("up");
            Click("first");
            Click("up");  // at the top already
            auto& width = The<QSpinBox>("width");
            width.selectAll();
            QTest::keyClicks(&width, "140");
            ClickColumn(1, false);
            EXPECT_EQ(120, width.value());
            Click("last");
        },
        "ok", host::SettingsDialog::kColumnsPage);
    EXPECT_EQ(kReloadGrid, changed);
    EXPECT_EQ("9006 140|9003h 72|9012 60|9001 120|", Columns());
    EXPECT_EQ("none", File());
}

TEST_F(SettingsDialogTest, DefaultsAreThoseOfThePageInSight) {
    WriteProfileText(file_, "0150_GridInfo", "bChangeSize", "1");
    WriteProfileText(file_, "SaveIndex", "Confirm", "0");
    EXPECT_EQ(kReloadGrid | SettingsDialogHost::kSettingsChanged, Run([this] {
                  Click("defaults");
                  ShowPage(1);
                  Click("defaults");
              }));
    EXPECT_EQ("0", ReadProfileText(file_, "0150_GridInfo", "bChangeSize"));
    EXPECT_EQ("0", ReadProfileText(file_, "SaveIndex", "Confirm"));
    EXPECT_EQ("9001 120|9006 90|9012h 60|9003 72|", Columns()) << "the template's, strangers to it behind";
}

}  // namespace
}  // namespace jogeon::terminal
