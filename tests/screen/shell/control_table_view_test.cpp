// What stands on the controls of the form at a start, and what their tooltips say.
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>

#include <gtest/gtest.h>

#include "tests/screen/support/test_host.h"
#include "tests/screen/support/text_room.h"

namespace jogeon::test {
namespace {

struct Texts {
    int id;
    const char* caption;  // none where the control has a picture
    const char* tooltip;
};

constexpr Texts kTexts[] = {
    {22017, "순서변경", "사용자조건의 순서를 변경합니다."},
    {21021, "새조건", "새로운 조건으로 초기화합니다."},
    {21022, "조건삭제", ""},
    {21023, "조건명변경", ""},
    {21024, "조건저장", ""},
    {21025, "다른이름으로", ""},
    {22018, "불러오기", "다른아이디로 저장된 조건을 불러옵니다."},
    {21026, "대상변경", ""},
    {21027, "<업종대상(전체)><제외없음><전체월결산>",
     "<p>&lt;업종대상(전체)&gt;&lt;제외없음&gt;&lt;전체월결산&gt;</p>"},
    {21028, " 매수", "신호관리자에 매수조건으로 표시"},
    {21029, " 매도", "신호관리자에 매도조건으로 표시"},
    {21031, "조건식", ""},
    {21033, "▼", "수식 입력창을 확장/복원합니다"},
    {21100, "!", "NOT을 입력/삭제합니다"},
    {21034, "( )", "괄호를 입력합니다"},
    {21040, "(ⓧ)", "선택된 영역의 괄호를 제거합니다"},
    {21035, "X", "선택된 영역의 모든 괄호 및 NOT을 제거합니다"},
    {21037, "?", "수식 도움말"},
    {21038, "", "조건목록을 엑셀 파일로 저장합니다"},
    {21039, "검색", ""},
    {21046, "다음", ""},
    {21047, "초기화", ""},
    {21048, "실시간 검색", ""},
    {21049, "", "차트"},
    {21050, "관심저장", ""},
    {21051, "", "설정"},
    {21133, "▲", "조회결과 영역을 확대/축소합니다."},
    {21041, "", "좌측 조건목록 보이기/숨기기 입니다."},
    {21042, "진행상태", ""},
    {21055, "조건만족 종목", ""},
    {21054, " ", ""},
    {21053, "검색결과", ""},
    {21052, " ", ""},
    {21030, "봉전기준", "n봉전기준을 모든 개별조건에 일괄 적용"},
    {21036, "+", "현재 n봉전기준에서 입력한 봉만큼 증가"},
    {21043, "-", "현재 n봉전기준에서 입력한 봉만큼 감소"},
};

TEST(ControlTextsTest, EveryControlSaysWhatItIsFor) {
    TestHost host;
    host.Open();
    for (const Texts& texts : kTexts) {
        const QWidget& control = host.Control<QWidget>(texts.id);
        EXPECT_EQ(QString(texts.caption), control.property("text").toString()) << texts.id;
        EXPECT_EQ(QString(texts.tooltip), control.toolTip()) << texts.id;
    }
    const QStringList scopes{"전체검색", "결과내검색", "결과외검색", "순차검색"};
    EXPECT_EQ(scopes, TextsOf(host.Control<QComboBox>(21098)));
    EXPECT_EQ(0, host.Control<QComboBox>(21098).currentIndex());
    EXPECT_TRUE(host.Control<QRadioButton>(21028).isChecked());
}

}  // namespace
}  // namespace jogeon::test
