#include "screen/shell/screen_keys_qt.h"

#include <QShortcut>

namespace jogeon {
namespace {

struct ScreenKey {
    QKeyCombination key;
    int control;
};

constexpr ScreenKey kKeys[] = {
    {Qt::Key_F5, control::kSearch},
    {Qt::SHIFT | Qt::Key_F5, control::kNextPage},
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
        auto* shortcut = new QShortcut(QKeySequence(key.key), &screen);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QWidget& target = form.At(key.control);
        QObject::connect(shortcut, &QShortcut::activated, &target, [&target] {
            auto* button = qobject_cast<QAbstractButton*>(&target);
            button ? button->click() : target.setFocus(Qt::ShortcutFocusReason);
        });
    }
}

}  // namespace jogeon
