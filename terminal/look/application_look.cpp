#include "terminal/look/application_look.h"

#include <QApplication>
#include <QFontDatabase>

namespace jogeon::terminal {
namespace {

constexpr int kFontPoints = 9;

// A font that has Korean and reads well in small sizes, where the system has one.
void ChooseFont() {
    for (const char* family : {"Malgun Gothic", "Apple SD Gothic Neo", "NanumGothic", "Noto Sans CJK KR"}) {
        if (!QFontDatabase::families().contains(family)) continue;
        QApplication::setFont(QFont(family, kFontPoints));
        return;
    }
}

}  // namespace

void SetApplicationLook() {
    QApplication::setStyle("Fusion");
    ChooseFont();
}

}  // namespace jogeon::terminal
