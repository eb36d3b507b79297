// A line in which the user names a stock, by a part of its name or its code, with the stocks that fit below.
#pragma once

#include <QLineEdit>
#include <QStringListModel>
#include <string>

#include "terminal/stocks/stock_index.h"

class QCompleter;

namespace jogeon::terminal {

class StockInput : public QLineEdit {
    Q_OBJECT

public:
    explicit StockInput(QWidget* parent = nullptr);

    // The stocks to choose from. `stocks` is used until the next call.
    void SetStocks(const StockIndex& stocks);

    // Puts in a stock's name, or its code if it has none.
    void ShowStock(const QString& code, const QString& name);

    // Takes what is written: a stock's whole name or code, or the only stock that fits; while no stocks are
    // known, any code. Enter does it, too.
    void TakeText();

    // The list below, in these colours.
    void SetListPalette(const QPalette& palette);

signals:
    // The line still shows what was chosen, and will with the next event where that was in the list below.
    void Chosen(const std::string& code);

    // What is written fits no stock.
    void Missed(const QString& text);

private:
    void Choose(const QString& entry);

    const StockIndex* stocks_ = nullptr;
    QStringListModel entries_;  // "한빛전자  000010"
    QCompleter* completer_;     // a child
};

}  // namespace jogeon::terminal
