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

INSTANTIATE_TEST_SUITE_P(Points, TextRoomTest, testing::Values(9, 10));

}  // namespace
}  // namespace jogeon::test
