// A line in which the user names a stock, by a part of its name or its code, with the stocks that fit below.
#pragma once

#include <QLineEdit>
#include <QStringListModel>
#include <string>

#include "terminal/interest/stock_index.h"

class QCompleter;

namespace jogeon::terminal {

class StockInput : public QLineEdit {
    Q_OBJECT

public:
    explicit StockInput(QWidget* parent = nullptr);

    // The stocks to choose from. `stocks` is used until the next call.
    void SetStocks(const StockIndex& stocks);

    // Takes what is written: a stock's whole name or code, or the only stock that fits. Enter does it, too.
    void TakeText();

    // The list below, in these colours.
    void SetListPalette(const QPalette& palette);

signals:
    // The line is empty again by the time the next event is handled.
    void Chosen(const std::string& code);

    // What is written is no stock, or could be several.
    void Missed(const QString& text);

private:
    void Choose(const QString& entry);

    const StockIndex* stocks_ = nullptr;
    QStringListModel entries_;  // "삼성전자  005930"
    QCompleter* completer_;     // a child
};

}  // namespace jogeon::terminal
