#include "screen/shell/control_table.h"

namespace jogeon {
namespace {

using enum ControlKind;

// Rows of the form, top to bottom. The layouts move what stands between the condition grid's lower edge and
// the result grid's, so the tabs stand below the result grid. The button row has the room around it that the
// enlarged expression box covers.
constexpr int kTitleRow = 3;
constexpr int kSaveRow = 26;
constexpr int kPanelTop = 49;
constexpr int kTargetRow = 152;
constexpr int kConditionsTop = 175;
constexpr int kExpressionRow = 268;
constexpr int kButtonRow = 298;
constexpr int kResultsTop = 332;
constexpr int kTabRow = 506;
constexpr int kFootRow = 528;
constexpr int kLine = 20;  // height of a row's controls

constexpr Control kControls[] = {
    {22017, Button, {451, kTitleRow, 62, kLine}, "순서변경", "사용자조건의 순서를 변경합니다."},
    {21021, Button, {6, kSaveRow, 58, kLine}, "새조건", "새로운 조건으로 초기화합니다."},
    {21022, Button, {292, kSaveRow, 62, kLine}, "조건삭제", ""},
    {21023, Button, {214, kSaveRow, 76, kLine}, "조건명변경", ""},
    {21024, Button, {66, kSaveRow, 62, kLine}, "조건저장", ""},
    {21025, Button, {130, kSaveRow, 82, kLine}, "다른이름으로", ""},
    {22018, Button, {515, kTitleRow, 58, kLine}, "불러오기", "다른아이디로 저장된 조건을 불러옵니다."},
    {21026, Button, {509, kTargetRow, 64, kLine}, "대상변경", ""},
    {21027, Label, {182, kTargetRow, 323, kLine}, "", ""},
    {21028, Radio, {468, kSaveRow, 52, kLine}, " 매수", "신호관리자에 매수조건으로 표시"},
    {21029, Radio, {522, kSaveRow, 52, kLine}, " 매도", "신호관리자에 매도조건으로 표시"},
    {21031, Label, {6, kExpressionRow, 48, 22}, "조건식", ""},
    {21033, Button, {403, kExpressionRow, 20, 22}, "▼", "수식 입력창을 확장/복원합니다"},
    {21100, Button, {425, kExpressionRow, 20, 22}, "!", "NOT을 입력/삭제합니다"},
    {21034, Button, {447, kExpressionRow, 26, 22}, "( )", "괄호를 입력합니다"},
    {21040, Button, {475, kExpressionRow, 30, 22}, "(ⓧ)", "선택된 영역의 괄호를 제거합니다"},
    {21035, Button, {507, kExpressionRow, 20, 22}, "X", "선택된 영역의 모든 괄호 및 NOT을 제거합니다"},
    {21037, Button, {529, kExpressionRow, 20, 22}, "?", "수식 도움말"},
    {21038, Button, {551, kExpressionRow, 22, 22}, "", "조건목록을 엑셀 파일로 저장합니다"},
    {21039, Button, {102, kButtonRow, 62, 26}, "검색", ""},
    {21046, Button, {166, kButtonRow, 46, 26}, "다음", ""},
    {21047, Button, {214, kButtonRow, 52, 26}, "초기화", ""},
    {21048, Button, {268, kButtonRow, 82, 26}, "실시간 검색", ""},
    {21049, Button, {352, kButtonRow, 28, 26}, "", "차트"},
    {21050, Button, {382, kButtonRow, 64, 26}, "관심저장", ""},
    {21051, Button, {528, kButtonRow, 22, 26}, "", "설정"},
    {21133, Button, {552, kButtonRow, 21, 26}, "▲", "조회결과 영역을 확대/축소합니다."},
    {21041, Toggle, {6, kTitleRow, 20, kLine}, "", "좌측 조건목록 보이기/숨기기 입니다."},
    {21042, Label, {6, kFootRow, 54, 18}, "진행상태", ""},
    {21055, Label, {300, kFootRow, 82, 18}, "조건만족 종목", ""},
    {21054, Value, {384, kFootRow, 50, 18}, " ", ""},
    {21053, Label, {452, kFootRow, 58, 18}, "검색결과", ""},
    {21052, Value, {512, kFootRow, 61, 18}, " ", ""},
    {21030, Button, {66, kTargetRow, 62, kLine}, "봉전기준", "n봉전기준을 모든 개별조건에 일괄 적용"},
    {21036, Button, {130, kTargetRow, 22, kLine}, "+", "현재 n봉전기준에서 입력한 봉만큼 증가"},
    {21043, Button, {154, kTargetRow, 22, kLine}, "-", "현재 n봉전기준에서 입력한 봉만큼 감소"},
    {21019, Label, {30, kTitleRow, 417, kLine}, "", ""},
    {21002, Area, {6, kPanelTop, 567, 100}, "", ""},
    {17042, NumberEdit, {6, kTargetRow, 58, kLine}, "", ""},
    {21058, Area, {6, kConditionsTop, 567, 90}, "", ""},
    {21089, Expression, {56, kExpressionRow, 345, 22}, "", ""},
    {21098, Combo, {6, kButtonRow, 94, 26}, "", ""},
    {21164, CodeList, {448, kButtonRow, 78, 26}, "", ""},
    {21105, Tabs, {6, kTabRow, 567, 20}, "", ""},
    {21104, Grid, {6, kResultsTop, 567, 174}, "", ""},
    {21044, Progress, {62, kFootRow + 1, 226, 16}, "", ""},
};

}  // namespace

std::span<const Control> ScreenControls() {
    return kControls;
}

}  // namespace jogeon
