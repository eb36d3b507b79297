// The box in which the trader names a stock, by its code or its name.
#pragma once

#include <QLineEdit>
#include <QString>
#include <vector>

#include "server/service/portfolios.h"

namespace jogeon::terminal::chart {

class StockBox : public QLineEdit {
    Q_OBJECT

public:
    explicit StockBox(QWidget* parent = nullptr);

    // The stocks that it knows and offers while the trader types.
    void SetStocks(const std::vector<service::StockEntry>& stocks);

    // Puts in the stock that is shown elsewhere.
    void ShowStock(const QString& code, const QString& name);

signals:
    // Six characters. A code needn't be one of the known stocks': they may not have come yet.
    void Chosen(const QString& code);

private:
    struct Stock {
        QString code;
        QString name;
    };

    void Choose(const QString& text);
    QString CodeFor(const QString& text) const;
    void Warn(bool unknown);

    std::vector<Stock> stocks_;
};

}  // namespace jogeon::terminal::chart
