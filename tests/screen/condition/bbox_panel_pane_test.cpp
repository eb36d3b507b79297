#include "screen/condition/bbox_panel_pane.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "screen/condition/catalogue.h"
#include "screen/condition/spin_box_widget.h"
#include "screen/host/window_messages_qt.h"
#include "screen/palette/colors.h"
#include "screen/shell/screen_style_qt.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/recorders.h"
#include "tests/screen/support/text_room.h"

namespace jogeon::test {
namespace {

constexpr std::string_view kAllTypes = R"([0101010008]
Head=;;;[%s] %s %s %s %s|second %s;1^3^4^5^8|4;
10=60;1;10;0;4;38;8;60;0;;;first|second;0|1;1^3^4^5^6^8|4^70;
201=10;0;0;label;6;21;70;100;
1=40;1;20;1;4;24;110;160;0;;;day|week;D|W;
3=41;1;40;9;4;24;170;230;0;;;five|ten;5|10;
4=31;1;60;1.25;30;48;110;170;1;0;5;
5=30;1;61;7;30;48;180;230;1;1;9;
6=51;0;0;check;4;24;240;300;
7=50;0;0;press;4;24;310;360;
8=61;1;50;1;30;50;240;400;0;;;x|y;a|b;
70=70;0;0;;60;90;110;200;0;;;picture.bmp;
71=70;0;0;;60;90;210;300;0;;;missing.bmp;
)";

// The window that owns the panel.
class Owner : public QWidget {
public:
    const host::WindowHandle handle = host::RegisterWindow(*this);
    std::vector<host::MessageNumber> received;
    std::function<void()> onMessage;

protected:
    bool event(QEvent* event) override {
        const host::MessageEvent* message = host::AsMessage(event);
        if (!message) return QWidget::event(event);
        EXPECT_EQ(0u, message->wParam);
        EXPECT_EQ(0, message->lParam);
        received.push_back(message->number);
        if (onMessage) onMessage();
        return true;
    }
};

class BBoxPanelTest : public testing::Test {
protected:
    BBoxPanelTest() {
        links_.configurationFolder = folder_.Path().string();
        WriteBytes(folder_.Path() / "Norvik.ini", "[Path]\r\nHTSPATH=" + folder_.Path().string() + "\r\n");
        owner_.setFont(QFont("NanumGothic", 9));
        owner_.setStyleSheet(ScreenStyle(Qt::white));
        owner_.resize(580, 110);
        owner_.show();
        panel_.show();
        owner_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&owner_));
    }

    void Load(std::string_view fields) {
        WriteCatalogue(folder_.Path() / "System", "[r]\n0101010008=x;10;C\n0401020008=y;20;S\n", fields);
        catalogue_.Load(folder_.Path() / "System", {});
    }
    void Show(std::string_view key = "0101010008", PanelMode mode = PanelMode::New) {
        shown_ = catalogue_.MakeCondition(key);
        panel_.ShowIndex(true, shown_.get(), mode);
    }
    template <typename WidgetType>
    WidgetType& At(int id) {
        return *panel_.findChild<WidgetType*>(QString::number(id));
    }
    void Click(int id) {
        auto& widget = At<QWidget>(id);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(6, widget.height() / 2));
    }
    void Type(int id, const QString& text) {
        auto& widget = At<QWidget>(id);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&widget, text);
    }
    std::vector<QWidget*> Controls() {
        std::vector<QWidget*> found;
        for (QWidget* widget : panel_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const int id = widget->objectName().toInt();
            if (id != 31050 && id != 31051) found.push_back(widget);
        }
        return found;
    }

    TempFolder folder_;
    RecordingLinkStore links_;
    ScriptedQuestions questions_;
    Catalogue catalogue_;
    std::unique_ptr<CIndexInfo> shown_;
    Owner owner_;
    BBoxPanel panel_{owner_.handle, questions_, links_, &owner_};
};

TEST_F(BBoxPanelTest, EditsEachTypeAndGivesTheCondition) {
    Load(kAllTypes);
    Show();
    EXPECT_TRUE(At<QRadioButton>(1000).isChecked());
    EXPECT_EQ("label", At<QLabel>(201).text());
    EXPECT_EQ("1.25", At<SpinBox>(4).text());
    QTest::keyClick(&At<QWidget>(1), Qt::Key_Up);
    At<QComboBox>(3).setFocus();
    At<QComboBox>(3).lineEdit()->selectAll();
    QTest::keyClicks(At<QComboBox>(3).lineEdit(), "ten");
    QTest::keyClick(&At<QWidget>(4), Qt::Key_Up);
    Type(5, " 8 ");
    Click(800);
    QTest::mouseClick(&At<QWidget>(31050), Qt::LeftButton);
    EXPECT_TRUE(questions_.boxes.empty()) << questions_.boxes[0].text;
    ASSERT_EQ(std::vector<host::MessageNumber>{0x464}, owner_.received);

    const auto added = panel_.TakeCondition();
    EXPECT_EQ("[day] ten 1.26 8 <x>", added->GetDescription());
    EXPECT_EQ("10^0|20^D|40^10|60^1.26|61^8|50^a", added->GetValueText());
    EXPECT_EQ((std::map<int, std::string>{{20, "D"}, {40, "10"}, {60, "1.26"}, {61, "8"}, {50, "a"}}),
              added->m_RoleValues);
    EXPECT_EQ("0101010008", added->m_strKey);
    EXPECT_EQ(10, added->GetEffectiveIndexNo());
    EXPECT_EQ('A', added->m_chLetter);
    EXPECT_EQ(0, added->m_bChecked);

    // The list's own copy, shown again, has the same state; the other variant leaves most fields out.
    panel_.ShowIndex(true, added.get(), PanelMode::Existing);
    Click(1001);
    EXPECT_FALSE(At<QWidget>(5).isEnabled());
    EXPECT_TRUE(At<QWidget>(4).isEnabled());
    EXPECT_FALSE(At<QWidget>(201).isEnabled());
    EXPECT_TRUE(At<QWidget>(7).isEnabled());
    QTest::mouseClick(&At<QWidget>(31051), Qt::LeftButton);
    EXPECT_EQ(0x465u, owner_.received.back());
    const auto replaced = panel_.TakeCondition();
    EXPECT_EQ("second 1.26", replaced->GetDescription());
    EXPECT_EQ("10^1|60^1.26", replaced->GetValueText());
    EXPECT_EQ(11, replaced->GetEffectiveIndexNo());
    EXPECT_EQ("8", (*replaced->m_pFields)[6]->m_strValue);  // greyed, but not lost
}

TEST_F(BBoxPanelTest, StepsByWheelKeysAndButtons) {
    Load(kAllTypes);
    Show();
    auto& spin = At<SpinBox>(4);
    const auto wheel = [&](int delta) {
        QWheelEvent event(QPointF(5, 5), spin.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&spin, &event);
    };
    wheel(120);
    EXPECT_EQ("1.26", spin.text());
    wheel(-120);
    QTest::keyClick(&spin, Qt::Key_PageUp);
    EXPECT_EQ("1.35", spin.text());
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.subControls = QStyle::SC_All;
    const QRect down =
        spin.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, &spin);
    QTest::mouseClick(&spin, Qt::LeftButton, {}, down.center());
    EXPECT_EQ("1.34", spin.text());
    Type(4, "4.995");
    QTest::keyClick(&spin, Qt::Key_Up);
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ("5", spin.text());
    Type(4, "1e");  // typing is free
    EXPECT_EQ("1e", spin.text());
}

TEST_F(BBoxPanelTest, RefusesAValueAndShowsWhere) {
    Load(kAllTypes);
    Show();
    const auto refused = [&](int id, const QString& text, const char* message) {
        Type(id, text);
        At<QWidget>(31050).setFocus();
        QTest::mouseClick(&At<QWidget>(31050), Qt::LeftButton);
        ASSERT_EQ(1u, questions_.boxes.size());
        EXPECT_EQ(message, ToUtf8(questions_.boxes[0].text));
        questions_.boxes.clear();
        EXPECT_TRUE(At<QWidget>(id).hasFocus());
        EXPECT_EQ(text, At<QWidget>(id).findChild<QLineEdit*>()
                            ? At<QWidget>(id).findChild<QLineEdit*>()->selectedText()
                            : At<QLineEdit>(id).selectedText());
    };
    refused(4, "5.01", "값의 범위는 [0]부터 [5]까지입니다.");
    Type(4, "5");
    refused(5, "10", "값의 범위는 [1]부터 [9]까지입니다.");
    refused(5, "1;", "값에는 | ^ ; 문자를 쓸 수 없습니다.");
    EXPECT_TRUE(owner_.received.empty());
    Click(1001);  // 5 is outside this variant
    QTest::mouseClick(&At<QWidget>(31050), Qt::LeftButton);
    EXPECT_EQ(1u, owner_.received.size());

    // A reply may bring something else while the box stands open.
    Click(1000);
    questions_.onAsk = [&] { Show(); };
    QTest::mouseClick(&At<QWidget>(31050), Qt::LeftButton);
    EXPECT_EQ("7", At<QLineEdit>(5).text());
}

TEST_F(BBoxPanelTest, GoesThroughFieldsByTabAndIsDoneByEnter) {
    Load(kAllTypes);
    Show("0101010008", PanelMode::Existing);
    const int order[] = {1000, 1, 3, 4, 5, 6, 7, 800, 31050, 31051};
    At<QWidget>(1000).setFocus();
    for (const int id : order) {
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_EQ(QString::number(id), QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    // The owner shows the condition anew at each message, while the key is still being handled.
    owner_.onMessage = [&] { Show("0101010008", PanelMode::Existing); };
    for (const int id : {1000, 1, 3, 4, 5, 800}) {
        At<QWidget>(id).setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(std::vector<host::MessageNumber>(6, 0x465), owner_.received);
    owner_.received.clear();
    At<QWidget>(31050).setFocus();
    QTest::keyClick(&At<QWidget>(31050), Qt::Key_Enter);
    owner_.onMessage = nullptr;
    Show();
    At<QWidget>(5).setFocus();
    QTest::keyClick(&At<QWidget>(5), Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&At<QWidget>(5), &held);
    EXPECT_EQ((std::vector<host::MessageNumber>{0x464, 0x464}), owner_.received);
    panel_.OnAdded(*shown_);
    QTest::keyClick(&At<QWidget>(5), Qt::Key_Return);
    EXPECT_EQ(0x465u, owner_.received.back());
}

TEST_F(BBoxPanelTest, ShowsButtonsByModeAndNothingWithoutFields) {
    Load(kFieldText);
    for (const auto& [mode, add, modify] : {std::tuple{PanelMode::New, true, false},
                                            {PanelMode::Existing, true, true},
                                            {PanelMode::Empty, false, false}}) {
        Show("0401020008", mode);
        EXPECT_EQ(shown_.get(), panel_.Current());
        EXPECT_EQ(add, At<QWidget>(31050).isVisible());
        EXPECT_EQ(modify, At<QWidget>(31051).isVisible());
    }
    CIndexInfo bare;
    panel_.ShowIndex(true, &bare, PanelMode::New);
    EXPECT_TRUE(Controls().empty());
    EXPECT_TRUE(At<QWidget>(31050).isVisible());
    QTest::mouseClick(&At<QWidget>(31050), Qt::LeftButton);
    EXPECT_TRUE(owner_.received.empty());

    // What one indicator had of a selector doesn't stick to the next.
    Show("0401020008");
    Show("0101010008");
    ASSERT_TRUE(panel_.CommitFields());
    const auto plain = panel_.TakeCondition();
    EXPECT_EQ(0, plain->m_bHasSelector);
    EXPECT_EQ("40^2|60^20|30^0", plain->GetValueText());
    EXPECT_EQ(3u, plain->m_RoleValues.size());
    panel_.Reset();
    EXPECT_EQ(nullptr, panel_.Current());
    EXPECT_TRUE(Controls().empty());
}

TEST_F(BBoxPanelTest, ShowsPicturesOfItsFolderOnly) {
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString folder = QString::fromStdString(folder_.Path().string());
    ASSERT_TRUE(QDir(folder).mkpath("Image/Pattern"));
    ASSERT_TRUE(picture.save(folder + "/Image/Pattern/picture.bmp"));
    ASSERT_TRUE(picture.save(folder + "/outside.bmp"));
    Load(kAllTypes);
    Show();
    EXPECT_EQ(QSize(20, 10), At<QLabel>(70).pixmap(Qt::ReturnByValue).size());
    EXPECT_FALSE(At<QWidget>(70).isEnabled());
    EXPECT_TRUE(At<QLabel>(71).pixmap(Qt::ReturnByValue).isNull());
    Load("[0101010008]\nh=\n70=70;0;0;;0;60;0;90;0;;;../../outside.bmp;\n");
    Show();
    EXPECT_TRUE(At<QLabel>(70).pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(BBoxPanelTest, SurvivesAbsurdFields) {
    std::string fields = "[0101010008]\nh=\n";
    for (const int type : {-1, 10, 20, 30, 31, 40, 41, 42, 50, 51, 60, 61, 70, 99999}) {
        for (const char* rest :
             {"", ";1;10;x;0;99999;0;99999;1;9;-9;|||;|;9^9|", ";1;60;-1;50;10;50;10;1;nan;inf;;;",
              ";1;60;9e999;-999999999;-5;0;1;1;1e308;-1e308;a;b;c"}) {
            fields += std::to_string(fields.size()) + "=" + std::to_string(type) + rest + "\n";
        }
    }
    for (int i = 0; i < 10000; ++i) fields += "9" + std::to_string(i) + "=31;1;40;5;4;24;8;60;1;0;9\n";
    Load(fields);
    Show();
    EXPECT_FALSE(Controls().empty());
    EXPECT_LE(Controls().size(), 200u);
    for (const QWidget* widget : Controls()) EXPECT_TRUE(panel_.rect().contains(widget->geometry()));
    panel_.CommitFields();
    EXPECT_EQ(catalogue_.FindFieldsByKey("0101010008")->size(), panel_.TakeCondition()->m_pFields->size());
}

// The picture for dark windows is used where there is one, live, and the other one elsewhere.
TEST_F(BBoxPanelTest, PicturesFollowTheTheme) {
    const std::string folder = folder_.Path().string() + "/Image/Pattern";
    std::filesystem::create_directories(folder + "/Dark");
    QImage picture(20, 10, QImage::Format_RGB32);
    for (const auto& [file, color] :
         {std::pair("/picture.bmp", Qt::red), {"/Dark/picture.bmp", Qt::blue}, {"/missing.bmp", Qt::green}}) {
        picture.fill(color);
        ASSERT_TRUE(picture.save(QString::fromStdString(folder + file)));
    }
    Load(kAllTypes);
    Show();
    const auto colorOf = [&](int id) { return At<QLabel>(id).pixmap().toImage().pixelColor(5, 5); };
    EXPECT_EQ(QColor(Qt::red), colorOf(70));
    SetTheme(Theme::Dark);
    panel_.RefreshColors();
    EXPECT_EQ(QColor(Qt::blue), colorOf(70));
    EXPECT_EQ(QColor(Qt::green), colorOf(71));
    SetTheme(Theme::Light);
}

// What a field may come to show: what it shows now, or the ends of its range.
QStringList TextsOf(const QWidget& widget, const CIndexField* field) {
    if (!field || !field->m_bRange) return test::TextsOf(widget);
    return {QString::number(field->m_dMin, 'f', 0), QString::number(field->m_dMax, 'f', 0)};
}

// Every indicator that is shipped: on the panel, nothing over anything, no text cut.
TEST_F(BBoxPanelTest, LaysOutTheWholeCatalogue) {
    catalogue_.Load(std::filesystem::path(qgetenv("JOGEON_HOME_DATA").toStdString()) / "System", {});
    ASSERT_GT(catalogue_.Indexes().size(), 40u);
    for (const auto& index : catalogue_.Indexes()) {
        if (!index->m_bLeaf) continue;
        SCOPED_TRACE(index->m_strKey);
        Show(index->m_strKey);
        const std::vector<QWidget*> controls = Controls();
        ASSERT_FALSE(controls.empty());
        for (const QWidget* widget : controls) {
            SCOPED_TRACE(widget->objectName().toStdString());
            EXPECT_TRUE(QRect(0, 0, 478, 92).contains(widget->geometry()));
            const CIndexField* field = nullptr;
            for (const auto& candidate : *shown_->m_pFields) {
                if (candidate->m_nId == widget->objectName().toInt()) field = candidate.get();
            }
            for (const QString& text : TextsOf(*widget, field)) {
                EXPECT_LE(widget->fontMetrics().horizontalAdvance(text), TextRoom(*widget).width())
                    << text.toStdString();
            }
            for (const QWidget* other : controls) {
                EXPECT_TRUE(other == widget || !other->geometry().intersects(widget->geometry()))
                    << other->objectName().toStdString();
            }
        }
        EXPECT_TRUE(panel_.CommitFields());  // its defaults are a condition
    }
    EXPECT_TRUE(questions_.boxes.empty());
}

}  // namespace
}  // namespace jogeon::test
