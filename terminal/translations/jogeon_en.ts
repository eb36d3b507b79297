<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="ko">
<context>
    <name>ChartTexts</name>
    <message>
        <source>%1월</source>
        <translation>M%1</translation>
    </message>
    <message>
        <source>시</source>
        <translation>O</translation>
    </message>
    <message>
        <source>고</source>
        <translation>H</translation>
    </message>
    <message>
        <source>저</source>
        <translation>L</translation>
    </message>
    <message>
        <source>종</source>
        <translation>C</translation>
    </message>
    <message>
        <source>거래량</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>조건 만족 %1일</source>
        <translation>Days matched: %1</translation>
    </message>
</context>
<context>
    <name>InterestSave</name>
    <message>
        <source>관심저장</source>
        <translation>Save to interest group</translation>
    </message>
    <message>
        <source>저장할 종목이 없습니다. 먼저 검색하십시오.</source>
        <translation>There are no stocks to save. Run a search first.</translation>
    </message>
    <message>
        <source>관심그룹에 저장할 수 없습니다.
%1</source>
        <translation>The stocks can&apos;t be saved to the interest group.
%1</translation>
    </message>
    <message>
        <source>관심그룹 &apos;%1&apos;에 있는 %2종목을 검색 결과로 바꾸시겠습니까?</source>
        <translation>Replace the %2 stocks in interest group &apos;%1&apos; with the search results?</translation>
    </message>
</context>
<context>
    <name>Portfolios</name>
    <message>
        <source>이름은 1바이트에서 40바이트까지이며(한글 20자), 제어 문자나 표현할 수 없는 글자는 쓸 수 없습니다.</source>
        <translation>A name has 1 to 40 bytes (20 Korean characters) and can&apos;t contain control characters or unsupported characters.</translation>
    </message>
    <message>
        <source>같은 이름의 관심그룹이 이미 있습니다.</source>
        <translation>An interest group with this name already exists.</translation>
    </message>
    <message>
        <source>관심그룹은 99개까지 만들 수 있습니다.</source>
        <translation>You can have up to 99 interest groups.</translation>
    </message>
    <message>
        <source>이 관심그룹은 다른 곳에서 이미 삭제되었습니다.</source>
        <translation>This interest group has already been deleted elsewhere.</translation>
    </message>
    <message>
        <source>관심그룹이 다른 곳에서 바뀌었습니다. 다시 시도하십시오.</source>
        <translation>The interest groups were changed elsewhere. Try again.</translation>
    </message>
    <message>
        <source>한 곳에 500종목까지 담을 수 있습니다.</source>
        <translation>A group or account holds up to 500 stocks.</translation>
    </message>
    <message>
        <source>현재 시장에 없는 종목이 들어 있습니다.</source>
        <translation>Some of the stocks are not in the current market.</translation>
    </message>
    <message>
        <source>계좌번호는 숫자 11자리입니다.</source>
        <translation>An account number has 11 digits.</translation>
    </message>
    <message>
        <source>계좌는 20개까지 만들 수 있습니다.</source>
        <translation>You can have up to 20 accounts.</translation>
    </message>
    <message>
        <source>이 계좌는 다른 곳에서 이미 삭제되었습니다.</source>
        <translation>This account has already been deleted elsewhere.</translation>
    </message>
    <message>
        <source>수량이나 매입단가가 올바르지 않은 종목이 있습니다.</source>
        <translation>Some of the stocks have an invalid quantity or average price.</translation>
    </message>
    <message>
        <source>따옴표나 항목 수가 맞지 않습니다: %1</source>
        <translation>Quotes or number of fields don&apos;t match: %1</translation>
    </message>
    <message>
        <source>종목코드와 종목명이 없습니다: %1</source>
        <translation>No stock code or name: %1</translation>
    </message>
    <message>
        <source>현재 시장에 없는 종목입니다: %1</source>
        <translation>Stock not in the current market: %1</translation>
    </message>
    <message>
        <source>수량은 1 이상의 정수입니다: %1</source>
        <translation>Quantity must be a whole number of at least 1: %1</translation>
    </message>
    <message>
        <source>매입단가는 0 이상의 수입니다: %1</source>
        <translation>Average price must be a number of at least 0: %1</translation>
    </message>
</context>
<context>
    <name>XlsxWriter</name>
    <message>
        <source>엑셀 파일을 만들지 못했습니다.
임시 폴더에 빈 공간이 있는지 확인해 주십시오.</source>
        <translation>The Excel file could not be made.
Please check that the temporary folder has free space.</translation>
    </message>
    <message>
        <source>파일에 저장하지 못했습니다.
쓰기 권한과 디스크의 빈 공간을 확인해 주십시오.

%1</source>
        <translation>The file could not be saved.
Please check its permissions and the free space on the disk.

%1</translation>
    </message>
</context>
<context>
    <name>jogeon::host::MessageBoxes</name>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>예</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>아니오</source>
        <translation>No</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::ChartScreen</name>
    <message>
        <source>차트</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>종목을 고르면 차트가 나타납니다</source>
        <translation>Choose a stock to see its chart</translation>
    </message>
    <message>
        <source>차트 - %1</source>
        <translation>Chart - %1</translation>
    </message>
    <message>
        <source>차트 - %1 (%2)</source>
        <translation>Chart - %1 (%2)</translation>
    </message>
    <message>
        <source>지금은 차트를 불러올 수 없습니다</source>
        <translation>The chart can&apos;t be loaded now</translation>
    </message>
    <message>
        <source>%1: 없는 종목입니다</source>
        <translation>%1: no such stock</translation>
    </message>
    <message>
        <source>%1: 시세 자료가 없습니다</source>
        <translation>%1: no price data</translation>
    </message>
    <message>
        <source>%1 %2, 봉 %3개, 종가 %4</source>
        <translation>%1 %2, %3 bars, close %4</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::ColorChoice</name>
    <message>
        <source>종목명</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::ColumnsPage</name>
    <message>
        <source> 픽셀</source>
        <translation> px</translation>
    </message>
    <message>
        <source>맨 위로</source>
        <translation>To top</translation>
    </message>
    <message>
        <source>위로</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>아래로</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>맨 아래로</source>
        <translation>To bottom</translation>
    </message>
    <message>
        <source>열 너비</source>
        <translation>Column width</translation>
    </message>
    <message>
        <source>바꾸면 결과를 지우고, 다음 검색부터 이 열들을 요청합니다.</source>
        <translation>A change clears the results; these columns are requested from the next search on.</translation>
    </message>
    <message>
        <source>열</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>너비</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>종목명은 언제나 표시합니다.</source>
        <translation>The stock name is always shown.</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::ConditionsPage</name>
    <message>
        <source>저장하지 않은 조건을 버리기 전에 묻기</source>
        <translation>Ask before discarding an unsaved condition set</translation>
    </message>
    <message>
        <source>조건을 저장하기 전에 묻기</source>
        <translation>Ask before saving a condition set</translation>
    </message>
    <message>
        <source>조건을 열면 검색 결과 지우기</source>
        <translation>Clear the search results when a condition set is opened</translation>
    </message>
    <message>
        <source>조건 이름 앞에 번호 표시</source>
        <translation>Show numbers before condition set names</translation>
    </message>
    <message>
        <source>묻지 않음</source>
        <translation>Don&apos;t ask</translation>
    </message>
    <message>
        <source>전체를 지울 때만 묻기</source>
        <translation>Ask only when deleting all</translation>
    </message>
    <message>
        <source>언제나 묻기</source>
        <translation>Always ask</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>개별조건을 지울 때</source>
        <translation>When deleting conditions</translation>
    </message>
    <message>
        <source>저장된 조건</source>
        <translation>Saved condition sets</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::EventModel</name>
    <message>
        <source>편입</source>
        <translation>In</translation>
    </message>
    <message>
        <source>이탈</source>
        <translation>Out</translation>
    </message>
    <message>
        <source>시각</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>구분</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>종목명</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>현재가</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>등락률</source>
        <translation>Change %</translation>
    </message>
    <message>
        <source>조건 변화</source>
        <translation>Condition changes</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::GridPage</name>
    <message>
        <source>격자선 표시</source>
        <translation>Show grid lines</translation>
    </message>
    <message>
        <source>열 너비를 마우스로 조절</source>
        <translation>Resize columns with the mouse</translation>
    </message>
    <message>
        <source>화살표 키로 옮긴 종목을 다른 화면에 연결</source>
        <translation>Link the stock reached with the arrow keys to other screens</translation>
    </message>
    <message>
        <source>모양</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>홀수 행 색</source>
        <translation>Odd row colour</translation>
    </message>
    <message>
        <source>짝수 행 색</source>
        <translation>Even row colour</translation>
    </message>
    <message>
        <source>조작</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>누르면 색을 고릅니다. 검은색은 가장 어두운 회색으로 바뀝니다.</source>
        <translation>Click to choose a colour. Black becomes the darkest grey.</translation>
    </message>
    <message>
        <source>기본색</source>
        <translation>Default colour</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::GroupList</name>
    <message>
        <source>관심그룹</source>
        <translation>Interest group</translation>
    </message>
    <message>
        <source>종목</source>
        <translation>Stocks</translation>
    </message>
    <message>
        <source>새 그룹</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>빈 관심그룹을 만듭니다</source>
        <translation>Create an empty interest group</translation>
    </message>
    <message>
        <source>이름변경</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>관심그룹의 이름을 바꿉니다 (F2)</source>
        <translation>Rename the interest group (F2)</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>관심그룹을 삭제합니다 (Delete)</source>
        <translation>Delete the interest group (Delete)</translation>
    </message>
    <message>
        <source>관심그룹을 위로 옮깁니다</source>
        <translation>Move the interest group up</translation>
    </message>
    <message>
        <source>관심그룹을 아래로 옮깁니다</source>
        <translation>Move the interest group down</translation>
    </message>
    <message>
        <source>관심그룹 &apos;%1&apos;(%2종목)을 삭제하시겠습니까?</source>
        <translation>Delete interest group &apos;%1&apos; (%2 stocks)?</translation>
    </message>
    <message>
        <source>관심그룹 삭제</source>
        <translation>Delete interest group</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::GroupStocks</name>
    <message>
        <source>종목명</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>코드</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>현재가</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>대비</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>등락률</source>
        <translation>Change %</translation>
    </message>
    <message>
        <source>붙여넣기</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>클립보드에 있는 종목코드나 종목명을 추가합니다 (Ctrl+V)</source>
        <translation>Add the stock codes or names on the clipboard (Ctrl+V)</translation>
    </message>
    <message>
        <source>추가할 종목의 이름이나 코드</source>
        <translation>Name or code of a stock to add</translation>
    </message>
    <message>
        <source>제거</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>고른 종목을 그룹에서 뺍니다 (Delete)</source>
        <translation>Remove the selected stocks from the group (Delete)</translation>
    </message>
    <message>
        <source>고른 종목을 위로 옮깁니다</source>
        <translation>Move the selected stocks up</translation>
    </message>
    <message>
        <source>고른 종목을 아래로 옮깁니다</source>
        <translation>Move the selected stocks down</translation>
    </message>
    <message>
        <source>&apos;%1&apos;에 맞는 종목이 없습니다.</source>
        <translation>No stock matches &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>종목 추가</source>
        <translation>Add stock</translation>
    </message>
    <message>
        <source>%1종목</source>
        <translation>%1 stocks</translation>
    </message>
    <message>
        <source>클립보드에 글자가 없습니다.</source>
        <translation>There is no text on the clipboard.</translation>
    </message>
    <message>
        <source>%1종목을 찾았고, 종목을 찾을 수 없는 %2줄은 건너뛰었습니다.

%3</source>
        <translation>%1 stocks were found; %2 lines without a known stock were skipped.

%3</translation>
    </message>
</context>
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
    <name>jogeon::terminal::HoldingsDialog</name>
    <message>
        <source>읽지 못한 줄을 빼고 가져오기</source>
        <translation>Import without the lines that couldn&apos;t be read</translation>
    </message>
    <message>
        <source>가져오기</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>보유종목 가져오기</source>
        <translation>Import holdings</translation>
    </message>
    <message>
        <source>새 계좌는 번호 11자리를 입력합니다</source>
        <translation>For a new account, enter its 11-digit number</translation>
    </message>
    <message>
        <source>읽은 종목</source>
        <translation>Stocks read</translation>
    </message>
    <message>
        <source>읽지 못한 줄</source>
        <translation>Lines not read</translation>
    </message>
    <message>
        <source>종목명</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>코드</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>수량</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>매입단가</source>
        <translation>Average price</translation>
    </message>
    <message>
        <source>줄</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>이유</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>계좌</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>계좌번호는 숫자 11자리입니다.</source>
        <translation>An account number has 11 digits.</translation>
    </message>
    <message>
        <source>새 계좌를 만듭니다.</source>
        <translation>A new account will be created.</translation>
    </message>
    <message>
        <source>이 계좌에 있던 %1종목은 지워지고 읽은 종목으로 바뀝니다.</source>
        <translation>The %1 stocks in this account will be replaced with the stocks read.</translation>
    </message>
    <message>
        <source>가져올 종목이 없습니다.</source>
        <translation>There are no stocks to import.</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::HoldingsPage</name>
    <message>
        <source>CSV 가져오기</source>
        <translation>Import CSV</translation>
    </message>
    <message>
        <source>계좌 삭제</source>
        <translation>Delete account</translation>
    </message>
    <message>
        <source>종목명</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>코드</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>수량</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>매입단가</source>
        <translation>Average price</translation>
    </message>
    <message>
        <source>평가금액</source>
        <translation>Market value</translation>
    </message>
    <message>
        <source>수익률</source>
        <translation>Return %</translation>
    </message>
    <message>
        <source>증권사에서 받은 잔고 파일을 읽습니다</source>
        <translation>Read a holdings file from your broker</translation>
    </message>
    <message>
        <source>%1종목  ·  평가금액 합계 %2원</source>
        <translation>%1 stocks  ·  total market value KRW %2</translation>
    </message>
    <message>
        <source>  (가격이 없는 %1종목 제외)</source>
        <translation>  (excluding %1 stocks without a price)</translation>
    </message>
    <message>
        <source>파일을 읽을 수 없습니다.
%1</source>
        <translation>The file can&apos;t be read.
%1</translation>
    </message>
    <message>
        <source>잔고 파일의 제목 줄을 찾을 수 없습니다.
&apos;종목코드&apos;나 &apos;종목명&apos;, 그리고 &apos;수량&apos; 항목이 있어야 합니다.</source>
        <translation>The holdings file has no header line.
It needs a &apos;code&apos; or &apos;name&apos; column, and a &apos;quantity&apos; column.</translation>
    </message>
    <message>
        <source>잔고 파일 (*.csv *.txt *.gz)</source>
        <translation>Holdings files (*.csv *.txt *.gz)</translation>
    </message>
    <message>
        <source>모든 파일 (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>계좌 %1의 보유종목을 모두 지우고 계좌를 삭제하시겠습니까?</source>
        <translation>Delete account %1 and all its holdings?</translation>
    </message>
    <message>
        <source>유니코드(UTF-16) 파일은 읽을 수 없습니다.
CSV UTF-8 형식으로 저장한 뒤 다시 가져오십시오.</source>
        <translation>A UTF-16 file can't be read.
Save it as CSV UTF-8 and import that.</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::InterestDialog</name>
    <message>
        <source>저장</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>관심그룹 저장</source>
        <translation>Save to interest group</translation>
    </message>
    <message>
        <source>기존 그룹</source>
        <translation>Existing group</translation>
    </message>
    <message>
        <source>새 그룹</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>추가</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>교체</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>그룹 이름</source>
        <translation>Group name</translation>
    </message>
    <message>
        <source>%1 (%2종목)</source>
        <translation>%1 (%2 stocks)</translation>
    </message>
    <message>
        <source>검색 결과 %1종목을 관심그룹에 저장합니다.</source>
        <translation>Save the %1 stocks of the search results to an interest group.</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>저장하면 %1종목이 됩니다. 한 그룹에는 %2종목까지 담을 수 있습니다.</source>
        <translation>The group would have %1 stocks. A group holds up to %2 stocks.</translation>
    </message>
    <message>
        <source>그룹에 있던 %1종목이 검색 결과 %2종목으로 바뀝니다.</source>
        <translation>The %1 stocks in the group will be replaced with the %2 stocks of the search results.</translation>
    </message>
    <message>
        <source>그룹에 없는 %1종목이 추가되어 %2종목이 됩니다.</source>
        <translation>%1 new stocks will be added, for a total of %2 stocks.</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::InterestPage</name>
    <message>
        <source>저장한 뒤 관심그룹 화면 열기</source>
        <translation>Open the interest group screen after saving</translation>
    </message>
    <message>
        <source>있는 그룹의 종목을 바꾸기 전에 묻기</source>
        <translation>Ask before replacing the stocks of an existing group</translation>
    </message>
    <message>
        <source>검색 결과를 관심그룹에 저장할 때</source>
        <translation>When saving search results to an interest group</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::InterestScreen</name>
    <message>
        <source>관심그룹</source>
        <translation>Interest groups</translation>
    </message>
    <message>
        <source>보유종목</source>
        <translation>Holdings</translation>
    </message>
    <message>
        <source>관심그룹을 읽거나 바꿀 수 없습니다: %1</source>
        <translation>Interest groups can&apos;t be read or changed: %1</translation>
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
    <message>
        <source>실시간 검색, 차트</source>
        <translation>Condition watch, chart</translation>
    </message>
    <message>
        <source>관심저장, 종목목록, 결과를 엑셀 파일로</source>
        <translation>Save to an interest group, stock list, results to Excel</translation>
    </message>
    <message>
        <source>다른 종목으로, 다른 화면도 따라갑니다</source>
        <translation>Another stock, which the other screens follow</translation>
    </message>
    <message>
        <source>고른 행 복사</source>
        <translation>Copy the selected rows</translation>
    </message>
    <message>
        <source>행으로 할 수 있는 일</source>
        <translation>What can be done with the rows</translation>
    </message>
    <message>
        <source>확대, 축소</source>
        <translation>Zoom in, zoom out</translation>
    </message>
    <message>
        <source>봉을 옮겨 보기</source>
        <translation>Move along the bars</translation>
    </message>
    <message>
        <source>그룹 이름 바꾸기</source>
        <translation>Rename the group</translation>
    </message>
    <message>
        <source>종목 복사, 붙여넣기</source>
        <translation>Copy, paste stocks</translation>
    </message>
    <message>
        <source>그룹이나 종목 빼기</source>
        <translation>Remove the group or the stocks</translation>
    </message>
    <message>
        <source>종목의 차트</source>
        <translation>Chart of the stock</translation>
    </message>
    <message>
        <source>결과에서</source>
        <translation>In the results</translation>
    </message>
    <message>
        <source>차트에서</source>
        <translation>In the chart</translation>
    </message>
    <message>
        <source>관심그룹 화면에서</source>
        <translation>In the interest groups</translation>
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
    <name>jogeon::terminal::MatchModel</name>
    <message>
        <source>종목명</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>코드</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>현재가</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>등락률</source>
        <translation>Change %</translation>
    </message>
    <message>
        <source>편입시각</source>
        <translation>Since</translation>
    </message>
    <message>
        <source>충족 조건</source>
        <translation>Conditions met</translation>
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
    <name>jogeon::terminal::ScreenKind</name>
    <message>
        <source>차트</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>실시간 조건검색</source>
        <translation>Condition watch</translation>
    </message>
    <message>
        <source>관심그룹</source>
        <translation>Interest groups</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::SettingsDialog</name>
    <message>
        <source>조건검색 설정</source>
        <translation>Condition search settings</translation>
    </message>
    <message>
        <source>결과 표</source>
        <translation>Results table</translation>
    </message>
    <message>
        <source>열</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>조건</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>관심그룹</source>
        <translation>Interest groups</translation>
    </message>
    <message>
        <source>기본값</source>
        <translation>Defaults</translation>
    </message>
    <message>
        <source>보이는 쪽의 설정을 처음 값으로 되돌립니다.</source>
        <translation>Restore the default settings of the page shown.</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>Cancel</translation>
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
<context>
    <name>jogeon::terminal::WatchHead</name>
    <message>
        <source>일시정지</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>처음부터</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>%1배속</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>하루를 몇 배 빠르게 재생할지 고릅니다</source>
        <translation>Choose how fast the day is replayed</translation>
    </message>
    <message>
        <source>장 시작부터 다시 감시합니다</source>
        <translation>Watch again from the market open</translation>
    </message>
    <message>
        <source>시장 시각</source>
        <translation>Market time</translation>
    </message>
    <message>
        <source>시작</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>장 마감까지 재생했습니다.</source>
        <translation>Replayed to the market close.</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::WatchScreen</name>
    <message>
        <source>감시할 조건이 아직 없습니다.

조건검색 화면에서 조건식을 만들고
[실시간 검색]을 누르면 여기에서 감시합니다.</source>
        <translation>There are no conditions to watch yet.

Build an expression on the condition search screen
and press [실시간 검색] to watch it here.</translation>
    </message>
    <message>
        <source>편입과 이탈이 여기에 기록됩니다.</source>
        <translation>Stocks that entered or left are listed here.</translation>
    </message>
    <message>
        <source>재생: %1</source>
        <translation>Replay: %1</translation>
    </message>
    <message>
        <source>감시할 수 없습니다: %1</source>
        <translation>Can&apos;t watch: %1</translation>
    </message>
    <message>
        <source>실시간 조건검색</source>
        <translation>Condition watch</translation>
    </message>
    <message>
        <source>지금 조건에 맞는 종목이 없습니다.</source>
        <translation>No stock meets the conditions now.</translation>
    </message>
    <message>
        <source>포착 %1종목  ·  편입 %2  ·  이탈 %3  ·  체결 %4건</source>
        <translation>%1 stocks matched  ·  %2 entered  ·  %3 left  ·  %4 trades</translation>
    </message>
    <message>
        <source>%1 충족</source>
        <translation>%1 met</translation>
    </message>
    <message>
        <source>%1 해제</source>
        <translation>%1 unmet</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::XlsxExport</name>
    <message>
        <source>엑셀 저장</source>
        <translation>Save to Excel</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::chart::ChartBar</name>
    <message>
        <source>종목코드 또는 종목명</source>
        <translation>Stock code or name</translation>
    </message>
    <message>
        <source>종목</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>일</source>
        <translation>D</translation>
    </message>
    <message>
        <source>일봉</source>
        <translation>Daily bars</translation>
    </message>
    <message>
        <source>주</source>
        <translation>W</translation>
    </message>
    <message>
        <source>주봉</source>
        <translation>Weekly bars</translation>
    </message>
    <message>
        <source>월</source>
        <translation>M</translation>
    </message>
    <message>
        <source>월봉</source>
        <translation>Monthly bars</translation>
    </message>
    <message>
        <source>하단 지표 없음</source>
        <translation>No lower indicator</translation>
    </message>
    <message>
        <source>스토캐스틱</source>
        <translation>Stochastic</translation>
    </message>
    <message>
        <source>하단 지표: RSI(14), MACD(12,26,9), 스토캐스틱(12,5,5)</source>
        <translation>Lower indicator: RSI(14), MACD(12,26,9), Stochastic(12,5,5)</translation>
    </message>
    <message>
        <source>하단 지표</source>
        <translation>Lower indicator</translation>
    </message>
    <message>
        <source>이동평균</source>
        <translation>MA</translation>
    </message>
    <message>
        <source>이동평균과 볼린저밴드 설정</source>
        <translation>Moving average and Bollinger band settings</translation>
    </message>
    <message>
        <source>검색 결과 %1종목</source>
        <translation>%1 stocks in the search results</translation>
    </message>
    <message>
        <source>검색 결과 %1종목 중 %2번째</source>
        <translation>%2 of %1 stocks in the search results</translation>
    </message>
    <message>
        <source>이전 종목</source>
        <translation>Previous stock</translation>
    </message>
    <message>
        <source>다음 종목</source>
        <translation>Next stock</translation>
    </message>
    <message>
        <source>그런 종목이 없습니다</source>
        <translation>No such stock</translation>
    </message>
    <message>
        <source>종목코드나 종목명을 넣고 Enter 키를 누르면 차트가 바뀝니다</source>
        <translation>Type a stock code or name and press Enter to change the chart</translation>
    </message>
</context>
<context>
    <name>jogeon::terminal::chart::StudyEditor</name>
    <message>
        <source>볼린저밴드 (20, 2)</source>
        <translation>Bollinger bands (20, 2)</translation>
    </message>
    <message>
        <source>없음</source>
        <translation>None</translation>
    </message>
    <message>
        <source>이동평균의 기간(봉 수). 0은 선을 그리지 않습니다</source>
        <translation>Moving average period (in bars). 0 draws no line</translation>
    </message>
    <message>
        <source>이동평균 %1의 기간</source>
        <translation>Period of moving average %1</translation>
    </message>
    <message>
        <source>단순</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>지수</source>
        <translation>Exponential</translation>
    </message>
    <message>
        <source>이동평균의 종류</source>
        <translation>Moving average type</translation>
    </message>
    <message>
        <source>20봉 단순이동평균과 그 위아래 표준편차의 두 배</source>
        <translation>20-bar simple moving average and two standard deviations above and below it</translation>
    </message>
    <message>
        <source>종류</source>
        <translation>Type</translation>
    </message>
</context>
</TS>
