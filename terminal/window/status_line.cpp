#include "terminal/window/status_line.h"

#include "terminal/texts/value_texts.h"

namespace jogeon::terminal {
namespace {

constexpr int kRemarkShown = 15'000;  // milliseconds

}  // namespace

QString MarketLine(const service::MarketSummary& market) {
    const QString source = market.generated ? StatusLine::tr("가상 시장 (생성된 데이터)")
                                            : QString::fromStdString(market.source);
    return StatusLine::tr("%1  ·  %2종목").arg(source, CountText(market.stocks));
}

QString MarketDate(const service::MarketSummary& market) {
    return market.lastDate == 0 ? StatusLine::tr("시세 없음")
                                : StatusLine::tr("%1 기준").arg(DateText(market.lastDate));
}

StatusLine::StatusLine(const QString& user, const QString& server, QWidget* parent)
    : QStatusBar(parent),
      server_(server),
      market_(new ElidedLabel(this)),
      date_(AddLabel("dateLine")),
      user_(AddLabel("userLine")),
      service_(AddLabel("serviceLine")) {
    setSizeGripEnabled(false);
    market_->setObjectName("marketLine");
    market_->setContentsMargins(4, 0, 0, 0);
    addWidget(market_, 1);
    user_->setText(tr("사용자 %1").arg(user));
    ShowConnected(true);
}

void StatusLine::ShowMarket(const service::MarketSummary& market) {
    summary_ = market;
    market_->ShowText(MarketLine(market));
    date_->setText(MarketDate(market));
}

void StatusLine::ShowConnected(bool connected) {
    service_->setText(server_.isEmpty() ? tr("서비스: 이 프로그램 안")
                      : connected       ? tr("서버 %1  ·  연결됨").arg(server_)
                                        : tr("서버 %1  ·  연결 끊김").arg(server_));
}

void StatusLine::ShowRemark(const QString& text) {
    showMessage(text, kRemarkShown);
}

QLabel* StatusLine::AddLabel(const QString& name) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setContentsMargins(0, 0, 6, 0);
    addPermanentWidget(label);
    return label;
}

}  // namespace jogeon::terminal
