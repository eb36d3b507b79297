// What a user finds again at the next start: the real terminal closed and opened, and files that are broken.
#include "terminal/user_state.h"

#include <QFile>
#include <QScreen>

#include <gmock/gmock.h>

#include "terminal/kept_bytes.h"
#include "tests/screen/support/recorders.h"
#include "tests/terminal/support/live_terminal.h"

namespace jogeon::terminal {
namespace {

using namespace std::chrono_literals;

using UserStateTest = LiveTerminal;

void Write(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

TEST_F(UserStateTest, WindowDocksAndScreensAreAsTheUserLeftThem) {
    Open();
    Send(host::kOpenScreen, "0615");
    Send(host::kOpenScreen, "0156");
    Window().addDockWidget(Qt::BottomDockWidgetArea, &Dock("0615"));
    Dock("0156").setFloating(true);
    Dock("0156").setGeometry(50, 60, 320, 240);
    Window().resize(790, 780);
    Screen("0615")->Choose(" - 삼성전자");
    QApplication::processEvents();
    const QSize size = Window().size();

    OpenAgain();
    ASSERT_NE(Screen("0615"), nullptr);
    ASSERT_NE(Screen("0156"), nullptr);
    EXPECT_EQ(Screen("0130"), nullptr);
    EXPECT_EQ(Window().size(), size);
    EXPECT_EQ(Window().dockWidgetArea(&Dock("0615")), Qt::BottomDockWidgetArea);
    EXPECT_TRUE(Dock("0156").isFloating());
    EXPECT_EQ(Dock("0156").geometry(), QRect(50, 60, 320, 240));
    EXPECT_EQ(Dock("0615").windowTitle(), "[0615] 가짜 - 삼성전자");
    EXPECT_THAT(Screen("0615")->opened, testing::ElementsAre(false));

    options_.user = "another";
    OpenAgain();
    EXPECT_EQ(Screen("0615"), nullptr);
}

TEST_F(UserStateTest, WindowsComeBackToADesktopThatIsThere) {
    Open();
    Send(host::kOpenScreen, "0156");
    Dock("0156").setFloating(true);
    Dock("0156").move(9000, 9000);
    Window().move(7000, 5000);
    OpenAgain();
    const QRect desktop = Window().screen()->availableGeometry();
    EXPECT_TRUE(desktop.intersects(Window().geometry()));
    EXPECT_TRUE(desktop.intersects(Dock("0156").geometry()));
}

TEST_F(UserStateTest, ABrokenFileGivesAFirstDay) {
    Open();
    const QSize first = Window().size();
    Send(host::kOpenScreen, "0615");
    OpenAgain();
    QFile kept(StateFile());
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    const QByteArray good = kept.readAll();
    terminal_.reset();
    QByteArray flipped = good;
    for (qsizetype at = 0; at < flipped.size(); at += 7) flipped[at] = static_cast<char>(flipped[at] ^ 0x15);
    const QByteArray wrongTypes =
        "[terminal]\ntheme=pink\nlanguage=17\n[window]\ngeometry=@ByteArray(\\0\\x1)\n"
        "[screens]\nopen=0615, 0999\nplaces=@Rect(1 2 3 4)\n";
    for (const QByteArray& broken :
         {QByteArray("\0\xff[[[=\n]", 8), good.left(good.size() / 2), flipped, wrongTypes, QByteArray()}) {
        Write(StateFile(), broken);
        Open();
        EXPECT_GE(Window().width(), first.width());
        EXPECT_TRUE(Action("auto").isChecked() && Action("ko").isChecked());
        Window().close();
        terminal_.reset();
    }
}

TEST_F(UserStateTest, ADemonstrationNeitherReadsNorWrites) {
    Open();
    Send(host::kOpenScreen, "0615");
    Window().close();
    terminal_.reset();
    QFile kept(StateFile());
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    const QByteArray before = kept.readAll();
    options_.demonstrate = "picture";
    Open();
    EXPECT_EQ(Screen("0615"), nullptr);
    Send(host::kOpenScreen, "0156");
    Action("dark").trigger();
    terminal_.reset();
    kept.seek(0);
    EXPECT_EQ(kept.readAll(), before);
}

TEST_F(UserStateTest, ChangesAreWrittenAMomentLaterHoweverManyThereAre) {
    test::ManualClock clock;
    int saved = 0;
    const QString file = folder_.filePath("state.ini");
    UserState state(file, clock);
    QObject::connect(&state, &UserState::Saving, [&](QSettings& settings) {
        ++saved;
        settings.setValue("some/thing", saved);
    });
    for (int i = 0; i < 30; ++i) {
        state.SaveSoon();
        clock.Advance(100ms);
    }
    EXPECT_EQ(saved, 1) << "while the user goes on";
    clock.Advance(10s);
    EXPECT_EQ(saved, 2);
    EXPECT_EQ(QSettings(file, QSettings::IniFormat).value("some/thing").toInt(), 2);
    EXPECT_FALSE(clock.Runs(1));
}

TEST_F(UserStateTest, BytesForQtComeBackWholeOrNotAtAll) {
    Open();
    QSettings file(folder_.filePath("bytes.ini"), QSettings::IniFormat);
    KeepBytes(file, "places", Window().saveState());
    KeepBytes(file, "nothing", QByteArray());
    const QByteArray written = file.value("places").toByteArray();
    file.sync();
    const QSettings reopened(file.fileName(), QSettings::IniFormat);
    EXPECT_EQ(KeptBytes(reopened, "places"), Window().saveState());
    EXPECT_EQ(KeptBytes(reopened, "nothing"), QByteArray());
    EXPECT_EQ(KeptBytes(reopened, "missing"), QByteArray());

    for (qsizetype at = 0; at < written.size(); ++at) {
        QByteArray damaged = written;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x40);
        for (const QByteArray& broken : {damaged, written.first(at)}) {
            file.setValue("places", broken);
            EXPECT_EQ(KeptBytes(file, "places"), QByteArray()) << at;
        }
    }
}

}  // namespace
}  // namespace jogeon::terminal
