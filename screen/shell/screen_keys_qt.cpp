#include "screen/shell/screen_keys_qt.h"

#include <QShortcut>
#include <utility>

namespace jogeon {
namespace {

struct ScreenKey {
    QKeyCombination key;
    int control;
};

constexpr ScreenKey kKeys[] = {
    {Qt::Key_F5, control::kSearch},
    {Qt::SHIFT | Qt::Key_F5, control::kNextPage},
    {Qt::Key_F6, control::kRealTime},
    {Qt::Key_F7, control::kChart},
    {Qt::CTRL | Qt::Key_D, control::kInterestSave},
    {Qt::CTRL | Qt::Key_L, control::kCodeList},
    {Qt::CTRL | Qt::Key_N, control::kNewCondition},
    {Qt::CTRL | Qt::Key_S, control::kSave},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_S, control::kSaveAs},
    {Qt::Key_F2, control::kRenameSaved},
    {Qt::CTRL | Qt::Key_T, control::kChangeTarget},
    {Qt::CTRL | Qt::Key_B, control::kLeftPaneToggle},
    {Qt::Key_F1, control::kExpressionHelp},
    {Qt::CTRL | Qt::Key_1, control::kConditionGridArea},
    {Qt::CTRL | Qt::Key_2, control::kExpression},
    {Qt::CTRL | Qt::Key_3, control::kResultGrid},
};

}  // namespace

void WireScreenKeys(QWidget& screen, const ScreenForm& form) {
    for (const ScreenKey& key : kKeys) {
        QWidget& target = form.At(key.control);
        WireScreenKey(screen, key.key, [&target] {
            auto* button = qobject_cast<QAbstractButton*>(&target);
            button ? button->click() : target.setFocus(Qt::ShortcutFocusReason);
        });
    }
}

void WireScreenKey(QWidget& screen, QKeyCombination key, std::function<void()> command) {
    auto* shortcut = new QShortcut(QKeySequence(key), &screen);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &screen, std::move(command));
}

}  // namespace jogeon
