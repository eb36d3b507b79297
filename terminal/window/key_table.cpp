#include "terminal/window/key_table.h"

#include <QCoreApplication>
#include <iterator>
#include <span>

namespace jogeon::terminal {
namespace {

constexpr char kContext[] = "jogeon::terminal::KeyPage";

struct KeyRow {
    const char* keys;
    const char* does;
};

constexpr KeyRow kTerminal[] = {
    {"Alt+1", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "조건검색 화면 [0150]으로")},
    {"Alt+2, Alt+3, ...", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "[화면] 메뉴의 다음 화면 열기")},
    {"F11", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "전체 화면")},
    {"Ctrl+Q", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "끝내기")},
};

constexpr KeyRow kScreen[] = {
    {"F5, Shift+F5", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "검색, 다음 페이지")},
    {"F6, F7", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "실시간 검색, 차트")},
    {"Ctrl+D, Ctrl+L, Ctrl+E",
     QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "관심저장, 종목목록, 결과를 엑셀 파일로")},
    {"Ctrl+N, Ctrl+S", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "새 조건, 저장")},
    {"Ctrl+Shift+S, F2", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "다른 이름으로 저장, 이름 바꾸기")},
    {"Ctrl+T", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "대상변경")},
    {"Ctrl+B", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "왼쪽 창 보이기, 감추기")},
    {"F1", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "조건식 도움말")},
    {"Ctrl+1, Ctrl+2, Ctrl+3", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "조건 목록, 조건식, 결과로")},
    {"Tab", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "다음 칸으로")},
};

constexpr KeyRow kConditions[] = {
    {"↑, ↓", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "다른 조건으로 옮겨 그 내용을 연다")},
    {"Space, Ctrl+Space", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "체크, 값 보이기")},
    {"Alt+↑, Alt+↓, Alt+Home, Alt+End",
     QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "조건을 위, 아래, 맨 위, 맨 아래로")},
    {"Delete, Ctrl+Delete", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "삭제, 모두 삭제")},
    {"Ctrl+A, Ctrl+R",
     QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "모두 체크하거나 풀기, 글자 다시 매기기")},
    {"Enter", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "버튼 위에서: 누르기")},
};

constexpr KeyRow kResults[] = {
    {"↑, ↓", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "다른 종목으로, 다른 화면도 따라갑니다")},
    {"Ctrl+C", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "고른 행 복사")},
    {"Shift+F10", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "행으로 할 수 있는 일")},
};

constexpr KeyRow kChart[] = {
    {"+, -", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "확대, 축소")},
    {"←, →, PgUp, PgDn, Home, End", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "봉을 옮겨 보기")},
};

constexpr KeyRow kInterest[] = {
    {"F2", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "그룹 이름 바꾸기")},
    {"Ctrl+C, Ctrl+V", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "종목 복사, 붙여넣기")},
    {"Delete", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "그룹이나 종목 빼기")},
    {"Enter", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "종목의 차트")},
};

constexpr KeyRow kTree[] = {
    {"Ctrl+F", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "찾기 칸으로")},
    {"Enter", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "지표나 조건 열기, 묶음 접고 펴기")},
    {"F3, Shift+F3", QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "다음 찾기, 이전 찾기")},
};

struct KeyGroup {
    const char* title;
    std::span<const KeyRow> rows;
};

constexpr KeyGroup kGroups[] = {
    {QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "터미널"), kTerminal},
    {QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "조건검색 화면"), kScreen},
    {QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "조건 목록에서"), kConditions},
    {QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "결과에서"), kResults},
    {QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "왼쪽 창에서"), kTree},
    {QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "차트에서"), kChart},
    {QT_TRANSLATE_NOOP("jogeon::terminal::KeyPage", "관심그룹 화면에서"), kInterest},
};

QString Translated(const char* text) {
    return QCoreApplication::translate(kContext, text).toHtmlEscaped();
}

}  // namespace

QString KeyPage() {
    QString page;
    for (const KeyGroup& group : kGroups) {
        page +=
            "<h3>" + Translated(group.title) + "</h3><table cellspacing='0' cellpadding='3' width='100%'>";
        for (const KeyRow& row : group.rows) {
            page += "<tr><td width='42%'><b>" + QString::fromUtf8(row.keys) + "</b></td><td>" +
                    Translated(row.does) + "</td></tr>";
        }
        page += "</table>";
    }
    return page;
}

}  // namespace jogeon::terminal
