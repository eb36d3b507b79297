<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="ko">
<context>
    <name>jogeon::terminal::HelpWindow</name>
    <message>
        <source>닫기</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>한국 주식시장 조건검색</source>
        <translation>Condition search for the Korean stock market</translation>
    </message>
    <message>
        <source>MIT 라이선스</source>
        <translation>MIT licence</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::KeyPage</name>
    <message>
        <source>조건검색 화면 [0150]으로</source>
        <translation>To the condition search [0150]</translation>
    </message>
    <message>
        <source>[화면] 메뉴의 다음 화면 열기</source>
        <translation>Open the next screens of the Screens menu</translation>
    </message>
    <message>
        <source>전체 화면</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>끝내기</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>검색, 다음 페이지</source>
        <translation>Search, next page</translation>
    </message>
    <message>
        <source>새 조건, 저장</source>
        <translation>New set, save</translation>
    </message>
    <message>
        <source>다른 이름으로 저장, 이름 바꾸기</source>
        <translation>Save as, rename</translation>
    </message>
    <message>
        <source>대상변경</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>왼쪽 창 보이기, 감추기</source>
        <translation>Show or hide the left pane</translation>
    </message>
    <message>
        <source>조건식 도움말</source>
        <translation>Help on expressions</translation>
    </message>
    <message>
        <source>조건 목록, 조건식, 결과로</source>
        <translation>To the condition list, the expression, the results</translation>
    </message>
    <message>
        <source>다음 칸으로</source>
        <translation>To the next field</translation>
    </message>
    <message>
        <source>다른 조건으로 옮겨 그 내용을 연다</source>
        <translation>To another condition, which opens in the panel</translation>
    </message>
    <message>
        <source>체크, 값 보이기</source>
        <translation>Check, show the value</translation>
    </message>
    <message>
        <source>조건을 위, 아래, 맨 위, 맨 아래로</source>
        <translation>Move the condition up, down, to the top, to the end</translation>
    </message>
    <message>
        <source>삭제, 모두 삭제</source>
        <translation>Delete, delete all</translation>
    </message>
    <message>
        <source>모두 체크하거나 풀기, 글자 다시 매기기</source>
        <translation>Check all or none, letters anew</translation>
    </message>
    <message>
        <source>버튼 위에서: 누르기</source>
        <translation>On a button: press it</translation>
    </message>
    <message>
        <source>찾기 칸으로</source>
        <translation>To the find box</translation>
    </message>
    <message>
        <source>지표나 조건 열기, 묶음 접고 펴기</source>
        <translation>Open an indicator or a set, fold a group</translation>
    </message>
    <message>
        <source>다음 찾기, 이전 찾기</source>
        <translation>Next hit, previous hit</translation>
    </message>
    <message>
        <source>터미널</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>조건검색 화면</source>
        <translation>Condition search</translation>
    </message>
    <message>
        <source>조건 목록에서</source>
        <translation>In the condition list</translation>
    </message>
    <message>
        <source>왼쪽 창에서</source>
        <translation>In the left pane</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::MainMenu</name>
    <message>
        <source>파일(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>끝내기(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>화면(&amp;S)</source>
        <translation>&amp;Screens</translation>
    </message>
    <message>
        <source>모두 닫기(&amp;C)</source>
        <translation>&amp;Close all</translation>
    </message>
    <message>
        <source>보기(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>테마(&amp;T)</source>
        <translation>&amp;Theme</translation>
    </message>
    <message>
        <source>언어(&amp;L)</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>전체 화면(&amp;F)</source>
        <translation>&amp;Full screen</translation>
    </message>
    <message>
        <source>창 배치 초기화(&amp;R)</source>
        <translation>&amp;Reset windows</translation>
    </message>
    <message>
        <source>자동(&amp;A)</source>
        <translation>&amp;Automatic</translation>
    </message>
    <message>
        <source>밝게(&amp;L)</source>
        <translation>&amp;Light</translation>
    </message>
    <message>
        <source>어둡게(&amp;D)</source>
        <translation>&amp;Dark</translation>
    </message>
    <message>
        <source>도움말(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>조작 방법(&amp;K)</source>
        <translation>&amp;Keys</translation>
    </message>
    <message>
        <source>jogeon 정보(&amp;A)</source>
        <translation>&amp;About jogeon</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::MainWindow</name>
    <message>
        <source>jogeon - [0150] 조건검색</source>
        <translation>jogeon - [0150] Condition search</translation>
    </message>
    <message>
        <source>언어는 다음에 시작할 때 바뀝니다.</source>
        <translation>The language changes at the next start.</translation>
    </message>
    <message>
        <source>조작 방법</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>jogeon 정보</source>
        <translation>About jogeon</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::RemoteTroubles</name>
    <message>
        <source>서버에 연결할 수 없습니다.</source>
        <translation>The server can&apos;t be reached.</translation>
    </message>
    <message>
        <source>서버가 제때 응답하지 않았습니다.</source>
        <translation>The server didn&apos;t answer in time.</translation>
    </message>
    <message>
        <source>서버의 버전이 터미널과 다릅니다.</source>
        <translation>The server&apos;s version differs from the terminal&apos;s.</translation>
    </message>
    <message>
        <source>서버가 요청을 처리하지 못했습니다.</source>
        <translation>The server could not do what was asked.</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::ScreenDesk</name>
    <message>
        <source>화면 [%1]은 이 터미널에 없습니다.</source>
        <translation>This terminal has no screen [%1].</translation>
    </message>
    <message>
        <source>조건검색</source>
        <translation>Condition search</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::StatusLine</name>
    <message>
        <source>가상 시장 (생성된 데이터)</source>
        <translation>Made-up market (generated data)</translation>
    </message>
    <message>
        <source>%1  ·  %2종목</source>
        <translation>%1  ·  %2 stocks</translation>
    </message>
    <message>
        <source>시세 없음</source>
        <translation>No prices</translation>
    </message>
    <message>
        <source>%1 기준</source>
        <translation>As of %1</translation>
    </message>
    <message>
        <source>사용자 %1</source>
        <translation>User %1</translation>
    </message>
    <message>
        <source>서비스: 이 프로그램 안</source>
        <translation>Service: in this program</translation>
    </message>
    <message>
        <source>서버 %1  ·  연결됨</source>
        <translation>Server %1  ·  connected</translation>
    </message>
    <message>
        <source>서버 %1  ·  연결 끊김</source>
        <translation>Server %1  ·  disconnected</translation>
    </message>
</context>
</TS>
