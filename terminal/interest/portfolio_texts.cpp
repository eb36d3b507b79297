#include "terminal/interest/portfolio_texts.h"

#include <QCoreApplication>
#include <cmath>

#include "screen/text/cp949_qt.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Portfolios)
};

}  // namespace

QString WhyNot(service::Verdict verdict) {
    using service::Verdict;
    switch (verdict) {
        case Verdict::BadName:
            return Words::tr(
                "이름은 1바이트에서 40바이트까지이며(한글 20자), 제어 문자나 표현할 수 없는 글자는 쓸 수 "
                "없습니다.");
        case Verdict::NameInUse:
            return Words::tr("같은 이름의 관심그룹이 이미 있습니다.");
        case Verdict::TooManyGroups:
            return Words::tr("관심그룹은 99개까지 만들 수 있습니다.");
        case Verdict::NoSuchGroup:
            return Words::tr("이 관심그룹은 다른 곳에서 이미 삭제되었습니다.");
        case Verdict::NotEveryGroup:
        case Verdict::StocksChanged:
            return Words::tr("관심그룹이 다른 곳에서 바뀌었습니다. 다시 시도하십시오.");
        case Verdict::TooManyStocks:
            return Words::tr("한 곳에 500종목까지 담을 수 있습니다.");
        case Verdict::BadStocks:
            return Words::tr("현재 시장에 없는 종목이 들어 있습니다.");
        case Verdict::BadAccount:
            return Words::tr("계좌번호는 숫자 11자리입니다.");
        case Verdict::TooManyAccounts:
            return Words::tr("계좌는 20개까지 만들 수 있습니다.");
        case Verdict::NoSuchAccount:
            return Words::tr("이 계좌는 다른 곳에서 이미 삭제되었습니다.");
        case Verdict::BadHolding:
            return Words::tr("수량이나 매입단가가 올바르지 않은 종목이 있습니다.");
        case Verdict::Taken:
            break;
    }
    return {};
}

QString FaultText(const RefusedLine& line) {
    const QString quoted = QString::fromStdString(line.text);
    switch (line.fault) {
        case LineFault::Unreadable:
            return Words::tr("따옴표나 항목 수가 맞지 않습니다: %1").arg(quoted);
        case LineFault::NoStock:
            return Words::tr("종목코드와 종목명이 없습니다: %1").arg(quoted);
        case LineFault::UnknownStock:
            return Words::tr("현재 시장에 없는 종목입니다: %1").arg(quoted);
        case LineFault::BadQuantity:
            return Words::tr("수량은 1 이상의 정수입니다: %1").arg(quoted);
        case LineFault::BadPrice:
            return Words::tr("매입단가는 0 이상의 수입니다: %1").arg(quoted);
    }
    return {};
}

QString ChangeText(double won) {
    const QString amount = OrDash(WonText(std::abs(won)));
    if (won > 0) return QStringLiteral("▲ ") + amount;
    return won < 0 ? QStringLiteral("▼ ") + amount : amount;
}

std::string Bytes(const QString& text) {
    return TryToCp949(text.toStdString()).value_or(std::string());
}

void Tell(host::Questions& questions, const QString& text, const QString& caption, host::Icon icon) {
    questions.Ask({FromQString(text), FromQString(caption), icon});
}

bool Agrees(host::Questions& questions, const QString& text, const QString& caption) {
    return questions.Ask({FromQString(text), FromQString(caption), host::Icon::Question,
                          host::Buttons::YesNo}) == host::Answer::Yes;
}

}  // namespace jogeon::terminal
