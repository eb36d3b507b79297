// The bar at the foot of the screen: how many of the matching stocks have been received.
//
// Painted here and not by Qt's progress bar, since the text over the bar is divided in two colours at the
// bar's edge. It takes its colours from the widget's palette. Texts are CP949.
#pragma once

#include <QWidget>
#include <cstddef>
#include <string_view>

#include "screen/panes/progress_state.h"

namespace jogeon {

class ProgressLabel : public QWidget {
    Q_OBJECT

public:
    explicit ProgressLabel(QWidget* parent = nullptr);

    // Stores both; what is shown follows with the next position.
    void SetRange(int minimum, int maximum);

    // Stores `value` and gives the one before. Repaints at once, and only if the bar's width in pixels
    // changes. A label without a window, one that has no parent and was never shown, stores nothing: -1.
    int SetPos(int value);

    // Whether a text is painted at all.
    void SetShowText(bool show);

    // A fixed text in the place of the percentage; an empty one brings the percentage back.
    void SetText(std::string_view text);

    // Copies at most `bytes` bytes of the text, never half a character, and fills what is left of the
    // returned count with zeros. Returns the smaller of `bytes` and the text's length; 0 if nothing was
    // copied.
    std::size_t GetText(char* out, std::size_t bytes) const;

    const ProgressState& State() const { return state_; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool HasWindow() const;

    ProgressState state_;
    int lastBarWidth_ = -1;  // pixels at the last paint that a position asked for
};

}  // namespace jogeon
