#include "screen/palette/edges_qt.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

#include "screen/palette/colors_qt.h"

namespace jogeon {
namespace {

constexpr int kShadeOfEdges = 140;  // percent, as the style has it

template <typename Control>
void ShowEdgesOf(QWidget& window) {
    for (Control* control : window.findChildren<Control*>()) control->setPalette(EdgePalette());
}

}  // namespace

QPalette EdgePalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, ToQColor(Color::ControlEdge).lighter(kShadeOfEdges));
    return palette;
}

void ShowEdges(QWidget& window) {
    ShowEdgesOf<QCheckBox>(window);
    ShowEdgesOf<QRadioButton>(window);
    ShowEdgesOf<QComboBox>(window);
    ShowEdgesOf<QAbstractSpinBox>(window);
    ShowEdgesOf<QLineEdit>(window);
    ShowEdgesOf<QGroupBox>(window);
}

}  // namespace jogeon
