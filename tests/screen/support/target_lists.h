// Code lists of a host, small enough to name every one of their entries in a test.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "screen/host/services.h"
#include "screen/text/cp949.h"

namespace jogeon::test {

class TargetLists : public host::CodeLists {
public:
    bool Fill(std::map<std::string, std::vector<std::string>>& asked) override {
        for (auto& [codeClass, lines] : asked) lines = lists[codeClass];
        return true;
    }
    std::string StockName(const std::string&) override { return {}; }

    std::map<std::string, std::vector<std::string>> lists = {
        {"0202", {"001 유통"_cp949, "002 제약"_cp949}},
        {"0203", {"101 유통"_cp949}},
        {"0204", {"201 KOSPI200 1~50위"_cp949}},
        {"0205", {"301 KOSTAR"}},
        {"0209", {"401 KRX100"}},
        {"0502", {"501 대형주"_cp949, "502 저가주"_cp949}},
        {"0505", {"603 하하"_cp949, "601 나나"_cp949, "602 가가"_cp949}},
    };
};

}  // namespace jogeon::test
