// The parameters of an indicator's variant, with the words that stand for them and for their choices.
//
// A word is a name of the catalogue where that is plain and means one thing only. Texts are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/catalogue.h"

namespace jogeon::sets_text {

// Whether a name can stand as it is between the signs of a line.
bool IsPlain(std::string_view name);

// One parameter.
struct Parameter {
    int role = 0;
    std::string name;
    std::vector<std::string> codes;    // of a choice; none for a number
    std::vector<std::string> choices;  // their words
    bool bounded = false;
    double least = 0;
    double most = 0;

    // The word of a value and the value of a word; ReadValue throws BadText for a word that means none.
    std::string WriteValue(const std::string& value) const;
    std::string ReadValue(std::string_view word) const;
};

// The words of the variants of an indicator; none if it has only one.
std::vector<std::string> VariantsOf(const CIndexInfo& condition);

// The parameters that count in a variant, in the order of the catalogue. `condition` is a copy made by it.
std::vector<Parameter> ParametersOf(const CIndexInfo& condition, int variant);

// A role that no parameter of the variant has.
Parameter UnnamedParameter(int role);

}  // namespace jogeon::sets_text
