// The row of controls over a chart: the stock, the steps through a published list, the timeframe, the lower
// indicator and the lines.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QToolButton>
#include <QWidget>

#include "terminal/chart/study_editor.h"
#include "terminal/stocks/stock_input.h"

namespace jogeon::terminal::chart {

class ChartBar : public QWidget {
    Q_OBJECT

public:
    explicit ChartBar(QWidget* parent = nullptr);

    // The stocks that the trader can name here. `stocks` is used until the next call.
    void SetStocks(const StockIndex& stocks) { box_->SetStocks(stocks); }

    // Puts in the stock that is shown elsewhere.
    void ShowStock(const QString& code, const QString& name);

    void Restyle() { editor_->Restyle(); }  // colours are others now

    // Shows what is chosen, without ChoiceMade().
    void SetChoice(const Choice& choice);

    // Where in a published list the stock stands: place from 0, -1 for one that isn't in it.
    void SetPlace(int place, int count);

signals:
    void StockChosen(const std::string& code);
    void StepAsked(int by);  // -1 or 1
    void ChoiceMade(const Choice& choice);

private:
    QToolButton* AddButton(const QString& text, const QString& name, const QString& tip);
    void AddSteps();
    void AddTimeframes();
    void AddIndicators();
    void Warn(bool unknown);
    void Tell();

    StockInput* box_;
    QToolButton* back_ = nullptr;
    QLabel* place_ = nullptr;
    QToolButton* forward_ = nullptr;
    QButtonGroup* timeframes_;
    QComboBox* lower_;
    StudyEditor* editor_;
};

}  // namespace jogeon::terminal::chart
