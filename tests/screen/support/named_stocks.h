// Code lists that know the names a test gives them, and note each question.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "screen/host/services.h"

namespace jogeon::test {

class NamedStocks : public host::CodeLists {
public:
    bool Fill(std::map<std::string, std::vector<std::string>>&) override { return false; }

    std::string StockName(const std::string& code) override {
        asked.push_back(code);
        const auto name = names.find(code);
        return name == names.end() ? std::string() : name->second;
    }

    std::map<std::string, std::string> names;
    std::vector<std::string> asked;
};

}  // namespace jogeon::test
