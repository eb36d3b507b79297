// The notice that a search has found nothing. It stands over the screen and closes by itself.
//
// Relies on the host's clock, and on the host to run it as a modal dialog.
#pragma once

#include <QDialog>
#include <string>

#include "screen/host/services.h"

namespace jogeon {

class ResultNoticePopup : public QDialog, private host::TimerSink {
    Q_OBJECT

public:
    // Stands over `screen`. The text is CP949; an empty one is "검색된 종목이 없습니다.".
    ResultNoticePopup(QWidget& screen, host::Clock& clock, const std::string& text = {});
    ~ResultNoticePopup() override;

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void OnTimer(int id) override;
    void PlaceOverScreen();

    QWidget& screen_;
    host::Clock& clock_;
};

// Shows the notice over `screen` and returns when it has closed.
void ShowResultNotice(QWidget& screen, host::Questions& questions, host::Clock& clock);

}  // namespace jogeon
