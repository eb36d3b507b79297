// The small panel in which the trader sets the lines among the bars: periods and kind of the moving averages,
// and the Bollinger bands.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QWidget>
#include <array>

#include "terminal/chart/study.h"

namespace jogeon::terminal::chart {

class StudyEditor : public QWidget {
    Q_OBJECT

public:
    explicit StudyEditor(QWidget* parent = nullptr);

    // Shows these, without Changed().
    void Set(const Choice& choice);

    // Puts what is set into `choice`; the rest of it stays.
    void Read(Choice& choice) const;

    // Colours are others now.
    void Restyle();

signals:
    void Changed();

private:
    std::array<QLabel*, kAverages> swatches_{};
    std::array<QSpinBox*, kAverages> periods_{};
    QComboBox* kind_;
    QCheckBox* bands_;
};

}  // namespace jogeon::terminal::chart
