#include "screen/palette/edges_qt.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace jogeon {
namespace {

template <typename Control>
void ShowEdgesOf(QWidget& window) {
    for (Control* control : window.findChildren<Control*>()) control->setPalette(EdgePalette());
}

}  // namespace

void ShowEdges(QWidget& window) {
    ShowEdgesOf<QCheckBox>(window);
    ShowEdgesOf<QRadioButton>(window);
    ShowEdgesOf<QComboBox>(window);
    ShowEdgesOf<QAbstractSpinBox>(window);
    ShowEdgesOf<QLineEdit>(window);
    ShowEdgesOf<QGroupBox>(window);
}

}  // namespace jogeon
