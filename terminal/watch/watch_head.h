// The head of the watch: what is watched, how fast its day goes by, and how far it has come.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include "terminal/look/elided_label.h"
#include "terminal/watch/watch_run.h"

namespace jogeon::terminal {

class WatchHead : public QWidget {
    Q_OBJECT

public:
    explicit WatchHead(QWidget* parent = nullptr);

    void ShowName(const QString& name) { name_->ShowText(name); }
    void ShowDescription(const QString& text) { description_->ShowText(text); }
    void ShowStart(const service::WatchStart& start);
    void ShowTime(int milliseconds);
    void ShowState(WatchRun::State state);

    // A line that stands out; none when it is empty.
    void ShowNotice(const QString& text);

    int Speed() const { return speed_->currentData().toInt(); }

    // One that isn't offered changes nothing.
    void SetSpeed(int times);

    // Takes the colours of screen/palette anew.
    void RefreshColors();

signals:
    void RunAsked(bool running);
    void RestartAsked();
    void SpeedChosen(int times);

private:
    QLayout* TextRow();
    QLayout* ControlRow();

    QLabel* const day_;
    ElidedLabel* const name_;
    ElidedLabel* const description_;
    QPushButton* const run_;
    QPushButton* const restart_;
    QComboBox* const speed_;
    QLabel* const clock_;
    QProgressBar* const progress_;
    QLabel* const notice_;
};

}  // namespace jogeon::terminal
