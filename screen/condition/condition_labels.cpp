#include "screen/condition/condition_labels.h"

#include "screen/text/cp949.h"

namespace jogeon {

const std::array<std::string, 60>& ConditionLabelTable() {
    static const std::array<std::string, 60> kLabels = {
        // 0: kinds
        "기준값 돌파"_cp949, "기준값 비교"_cp949, "기준값 범위"_cp949, "신호선 돌파"_cp949,
        "신호선 비교"_cp949, "반전"_cp949, "추세"_cp949, "조건 만족"_cp949, "가격 비교"_cp949, "BlackBox",
        // 10: ranges; 13: hits; 16: timeframes
        "이내"_cp949, "이전"_cp949, "연속"_cp949,    //
        "회"_cp949, "회이상"_cp949, "회이하"_cp949,  //
        "일봉"_cp949, "60분봉"_cp949, "30분봉"_cp949, "15분봉"_cp949, "10분봉"_cp949, "5분봉"_cp949,
        // 22: comparisons and variables
        "이하"_cp949, "이상"_cp949,                                      //
        "변수1"_cp949, "변수값1"_cp949, "변수2"_cp949, "변수값2"_cp949,  //
        // 28: crossing, averages
        "하향"_cp949, "상향"_cp949, "단순"_cp949, "지수"_cp949, "하향"_cp949, "상향"_cp949,
        // 34: comparison, turn, trend
        "이하"_cp949, "이상"_cp949, "하락"_cp949, "상승"_cp949, "하락"_cp949, "상승"_cp949,
        // 40: prices, crossing
        "시가"_cp949, "고가"_cp949, "저가"_cp949, "종가"_cp949, "(고+저+종)/3"_cp949,  //
        "하향"_cp949, "상향"_cp949,
        // 47: markets; 50: scopes
        "전체"_cp949, "거래소 종목"_cp949, "코스닥 종목"_cp949,  //
        "일반 검색"_cp949, "결과내 검색"_cp949, "결과외 검색"_cp949,
        // 53: sort columns and orders
        "종목코드"_cp949, "종목명"_cp949, "거래금액"_cp949, "거래량"_cp949, "현재가"_cp949,  //
        "오름차순"_cp949, "내림차순"_cp949};
    return kLabels;
}

}  // namespace jogeon
