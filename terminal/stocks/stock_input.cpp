#include "terminal/stocks/stock_input.h"

#include <QAbstractItemView>
#include <QCompleter>

#include "screen/text/cp949_qt.h"
#include "server/market/instrument_code.h"

namespace jogeon::terminal {
namespace {

constexpr int kMostShown = 12;

}  // namespace

StockInput::StockInput(QWidget* parent) : QLineEdit(parent), completer_(new QCompleter(this)) {
    completer_->setModel(&entries_);
    completer_->setFilterMode(Qt::MatchContains);
    completer_->setCaseSensitivity(Qt::CaseInsensitive);
    completer_->setMaxVisibleItems(kMostShown);
    setCompleter(completer_);
    setClearButtonEnabled(true);
    connect(completer_, qOverload<const QString&>(&QCompleter::activated), this, &StockInput::Choose);
    // Enter on an entry of the list comes here as well as to the list.
    connect(this, &QLineEdit::returnPressed, this, [this] {
        const QAbstractItemView& list = *completer_->popup();
        if (!list.isVisible() || !list.currentIndex().isValid()) TakeText();
    });
}

void StockInput::SetStocks(const StockIndex& stocks) {
    stocks_ = &stocks;
    if (entries_.rowCount() == static_cast<int>(stocks.All().size())) return;
    QStringList entries;
    for (const service::StockEntry& stock : stocks.All())
        entries += ToQString(stock.name) + QStringLiteral("  ") + ToQString(stock.code);
    entries_.setStringList(entries);
}

void StockInput::ShowStock(const QString& code, const QString& name) {
    setText(name.isEmpty() ? code : name);
    setCursorPosition(0);
}

void StockInput::SetListPalette(const QPalette& palette) {
    completer_->popup()->setPalette(palette);
}

void StockInput::TakeText() {
    const QString written = text().trimmed();
    if (!stocks_ || written.isEmpty()) return;
    if (stocks_->All().empty() && market::IsInstrumentCode(written.toUpper().toStdString()))
        return Choose(written.toUpper());
    const std::string bytes = FromQString(written);
    const service::StockEntry* stock = stocks_->ByName(bytes);
    if (!stock) stock = stocks_->ByWrittenCode(bytes);
    if (stock) return Choose(ToQString(stock->code));
    completer_->setCompletionPrefix(written);
    if (completer_->completionCount() == 1) return Choose(completer_->currentCompletion());
    if (completer_->completionCount() > 1) return completer_->complete();
    emit Missed(written);
}

void StockInput::Choose(const QString& entry) {
    emit Chosen(entry.right(static_cast<int>(market::kCodeLength)).toStdString());
}

}  // namespace jogeon::terminal
