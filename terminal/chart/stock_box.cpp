#include "terminal/chart/stock_box.h"

#include <QCompleter>
#include <QStringListModel>
#include <algorithm>

#include "screen/palette/colors_qt.h"
#include "screen/text/cp949.h"
#include "server/market/instrument_code.h"

namespace jogeon::terminal::chart {
namespace {

constexpr int kOffered = 14;  // lines of the list
constexpr int kCode = static_cast<int>(market::kCodeLength);

bool IsCode(const QString& text) {
    return market::IsInstrumentCode(text.toStdString());
}

QString LineOf(const QString& code, const QString& name) {
    return name.isEmpty() ? code : code + ' ' + name;
}

}  // namespace

StockBox::StockBox(QWidget* parent) : QLineEdit(parent) {
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::returnPressed, this, [this] { Choose(text()); });
    connect(this, &QLineEdit::textEdited, this, [this] { Warn(false); });
}

void StockBox::SetStocks(const std::vector<service::StockEntry>& stocks) {
    stocks_.clear();
    QStringList lines;
    for (const service::StockEntry& stock : stocks) {
        stocks_.push_back({QString::fromStdString(stock.code), QString::fromStdString(ToUtf8(stock.name))});
        lines.append(LineOf(stocks_.back().code, stocks_.back().name));
    }
    auto* offers = new QCompleter(lines, this);
    offers->setFilterMode(Qt::MatchContains);
    offers->setCaseSensitivity(Qt::CaseInsensitive);
    offers->setMaxVisibleItems(kOffered);
    setCompleter(offers);
    connect(offers, qOverload<const QString&>(&QCompleter::activated), this, &StockBox::Choose);
}

void StockBox::ShowStock(const QString& code, const QString& name) {
    setText(LineOf(code, name));
    setCursorPosition(0);
    Warn(false);
}

void StockBox::Choose(const QString& text) {
    const QString code = CodeFor(text.trimmed());
    Warn(code.isEmpty());
    selectAll();
    if (!code.isEmpty()) emit Chosen(code);
}

// A code, a name, the beginning of one, any part of one: the first of these that fits.
QString StockBox::CodeFor(const QString& text) const {
    if (text.isEmpty()) return {};
    const QString code = text.left(kCode).toUpper();
    if (IsCode(code) && (text.size() == kCode || text[kCode] == ' ')) return code;
    const auto find = [&](auto fits) {
        const auto found = std::find_if(stocks_.begin(), stocks_.end(), fits);
        return found == stocks_.end() ? QString() : found->code;
    };
    QString found = find([&](const Stock& one) { return one.name.compare(text, Qt::CaseInsensitive) == 0; });
    if (found.isEmpty())
        found = find([&](const Stock& one) { return one.name.startsWith(text, Qt::CaseInsensitive); });
    if (found.isEmpty())
        found = find(
            [&](const Stock& one) { return LineOf(one.code, one.name).contains(text, Qt::CaseInsensitive); });
    return found;
}

void StockBox::Warn(bool unknown) {
    QPalette colors;
    if (unknown) colors.setColor(QPalette::Text, ToQColor(Color::ChartRise));
    setPalette(colors);
    setAccessibleDescription(unknown ? tr("그런 종목이 없습니다") : QString());
    setToolTip(unknown ? tr("그런 종목이 없습니다")
                       : tr("종목코드나 종목명을 넣고 Enter 키를 누르면 차트가 바뀝니다"));
}

}  // namespace jogeon::terminal::chart
