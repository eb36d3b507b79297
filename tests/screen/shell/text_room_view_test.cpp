// No control of the form and of the dialogs cuts its text, not even with a font one point larger.
#include <QTreeWidget>
#include <set>

#include <gtest/gtest.h>

#include "tests/screen/support/all_dialogs.h"
#include "tests/screen/support/desktop.h"
#include "tests/screen/support/text_room.h"

namespace jogeon::test {
namespace {

// Texts of the user's: one that is too long shows whole in a tooltip.
const std::set<QString> kFreeTexts{"21019", "21027"};

bool HasText(const QWidget& widget) {
    const bool shown = !widget.isHidden() && !kFreeTexts.contains(widget.objectName());
    if (qobject_cast<const QComboBox*>(&widget)) return shown;
    const bool kind = widget.inherits("QLabel") || widget.inherits("QAbstractButton");
    return shown && kind && !widget.property("text").toString().isEmpty();
}

int ExpectRoomIn(const QWidget& window) {
    int checked = 0;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!HasText(*widget)) continue;
        SCOPED_TRACE(window.objectName().toStdString() + ", control " + widget->objectName().toStdString());
        ExpectRoomFor(*widget, TextsOf(*widget));
        ++checked;
    }
    return checked;
}

class TextRoomTest : public testing::TestWithParam<int> {
protected:
    const DesktopSettings settings_;
};

TEST_P(TextRoomTest, EveryTextFitsItsPlace) {
    QApplication::setFont(QFont("NanumGothic", GetParam()));
    TestHost host;
    host.Open();
    EXPECT_GT(ExpectRoomIn(host.frame), 30);
    ForEachDialog(host, [](const QDialog& dialog) { EXPECT_GT(ExpectRoomIn(dialog), 0); });
}

TEST(FreeTextTest, ANameThatIsCutShowsWholeInItsTooltip) {
    const QString longest(40, u'힣');  // as many as a name has
    TestHost host;
    WriteText(host.folder.Path() / "System/NorvikSaveIndex.dat",
              "[00]\r\nName=" + longest.toStdString() + "\r\nExp=A\r\nCount=1\r\n00=0601010008;A;1;0;;\r\n" +
                  "[01]\r\nName=짧은\r\nExp=A\r\nCount=1\r\n00=0601010008;A;1;0;;\r\n");
    host.Open();
    auto& tree = host.Control<QTreeWidget>(21001);
    const QTreeWidgetItem* firm = tree.topLevelItem(tree.topLevelItemCount() - 1);
    auto& name = host.Control<QLabel>(21019);
    emit tree.itemDoubleClicked(firm->child(0), 0);
    EXPECT_EQ(longest, name.text());
    EXPECT_EQ("<p>" + longest + "</p>", name.toolTip());
    emit tree.itemDoubleClicked(firm->child(1), 0);
    EXPECT_EQ("<p>짧은</p>", name.toolTip());
}

INSTANTIATE_TEST_SUITE_P(Points, TextRoomTest, testing::Values(9, 10));

}  // namespace
}  // namespace jogeon::test
