// The English of the terminal's own texts: whole, and in the windows.
#include "terminal/language.h"

#include <QFile>
#include <QMenuBar>
#include <QProcess>
#include <QTextBrowser>
#include <QXmlStreamReader>
#include <map>

#include "tests/terminal/support/live_terminal.h"

namespace jogeon::terminal {
namespace {

// The texts of a translation file with their English, empty while it is unfinished.
std::map<QString, QString> TextsOf(const QString& path) {
    std::map<QString, QString> texts;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    QString context, source;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement()) continue;
        if (xml.name() == u"name") context = xml.readElementText();
        if (xml.name() == u"source") source = xml.readElementText();
        if (xml.name() != u"translation") continue;
        const bool finished = !xml.attributes().hasAttribute("type");
        const QString english = xml.readElementText();
        texts[context + "/" + source] = finished ? english : QString();
    }
    return texts;
}

TEST(TranslationTest, EveryTextOfTheTerminalHasItsEnglish) {
    const QString kept = JOGEON_TRANSLATION;
    QTemporaryDir folder;
    const QString fresh = folder.filePath("jogeon_en.ts");
    QProcess lupdate;
    lupdate.start(JOGEON_LUPDATE,
                  {"-silent", "-no-obsolete", "-source-language", "ko", "-target-language", "en", "-I",
                   JOGEON_SOURCES, QString(JOGEON_SOURCES) + "/terminal",
                   QString(JOGEON_SOURCES) + "/screen/host", "-extensions", "cpp,h", "-ts", fresh});
    ASSERT_TRUE(lupdate.waitForFinished(kPatience));
    const auto texts = TextsOf(kept);
    const auto used = TextsOf(fresh);
    EXPECT_GT(used.size(), 50u);
    for (const auto& [text, english] : used) {
        EXPECT_TRUE(texts.contains(text)) << text.toStdString() << " is missing: build update_translations";
    }
    for (const auto& [text, english] : texts) {
        EXPECT_FALSE(english.isEmpty()) << text.toStdString() << " has no English";
        EXPECT_TRUE(used.contains(text)) << text.toStdString() << " is no more: build update_translations";
    }
}

class LanguageTest : public LiveTerminal {
protected:
    QString FirstMenu() { return Window().menuBar()->actions().first()->text(); }
};

TEST_F(LanguageTest, MenuFootAndHelpAreInTheLanguageAndTheScreenIsKorean) {
    options_.lang = "en";
    Open();
    EXPECT_EQ(FirstMenu(), "&File");
    EXPECT_TRUE(Window().findChild<QLabel*>("marketLine")->text().endsWith("1 stocks"));
    EXPECT_EQ(Window().findChild<QAbstractButton*>("21039")->text(), "검색");
    for (QAction* action : Window().menuBar()->actions().last()->menu()->actions()) action->trigger();
    const auto pages = Window().findChildren<QTextBrowser*>();
    ASSERT_EQ(pages.size(), 2);
    for (const QTextBrowser* page : pages) {
        const QString text = page->toPlainText();
        EXPECT_FALSE(std::any_of(text.begin(), text.end(), [](QChar c) {
            return c.script() == QChar::Script_Hangul;
        })) << text.toStdString();
    }
}

TEST_F(LanguageTest, AChoiceHoldsFromTheNextStartAndTheOptionGoesBeforeIt) {
    Open();
    EXPECT_EQ(FirstMenu(), "파일(&F)");
    Action("en").trigger();
    EXPECT_EQ(FirstMenu(), "파일(&F)");
    EXPECT_FALSE(Window().Foot().currentMessage().isEmpty());
    OpenAgain();
    EXPECT_EQ(FirstMenu(), "&File");
    EXPECT_TRUE(Action("en").isChecked());
    options_.lang = "ko";
    OpenAgain();
    EXPECT_EQ(FirstMenu(), "파일(&F)");
}

}  // namespace
}  // namespace jogeon::terminal
