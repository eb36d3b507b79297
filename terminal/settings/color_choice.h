// A button that shows a row colour with text on it, and lets the user choose another.
//
// Colours are numbers with red in the low byte. 0 stands for the grid's own colour, so that black itself
// can't be told from no choice: who chooses it gets the darkest grey, which no eye tells from it.
#pragma once

#include <QPushButton>

#include "screen/host/services.h"
#include "screen/palette/colors.h"

namespace jogeon::terminal {

class ColorChoice : public QPushButton {
    Q_OBJECT

public:
    // `own` is the grid's colour while none is chosen. `questions` runs the colour picker and outlives this.
    ColorChoice(Color own, host::Questions& questions, QWidget* parent = nullptr);

    ColorNumber Chosen() const { return chosen_; }  // 0 for none
    void Choose(ColorNumber color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Ask();
    ColorNumber Shown() const;

    const Color own_;
    host::Questions& questions_;
    ColorNumber chosen_ = 0;
};

}  // namespace jogeon::terminal
