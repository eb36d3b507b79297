#include "screen/fbgrid/fb_window_class_qt.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeView>
#include <algorithm>
#include <array>
#include <string_view>

namespace jogeon {
namespace {

constexpr std::array<std::string_view, 7> kEndingClasses = {
    "S4CExpEditorClass", kGridWindowClass, "Edit", "ComboBox", "Button", "ScrollBar", "SysTreeView32"};

template <typename... Controls>
bool IsOneOf(const QWidget& widget) {
    return (qobject_cast<const Controls*>(&widget) || ...);
}

}  // namespace

bool EndsInPlaceList(const QWidget& focus) {
    const QVariant name = focus.property(kWindowClassProperty);
    if (name.isValid()) {
        const std::string text = name.toString().toStdString();
        return std::find(kEndingClasses.begin(), kEndingClasses.end(), text) != kEndingClasses.end();
    }
    return IsOneOf<QLineEdit, QAbstractSpinBox, QComboBox, QAbstractButton, QScrollBar, QTreeView>(focus);
}

}  // namespace jogeon
