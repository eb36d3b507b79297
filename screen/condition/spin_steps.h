// The arithmetic of a spin box: what its text becomes when the user steps.
//
// Texts are numbers with a decimal point, whatever the desktop's language has: they are stored and sent.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace jogeon {

class CIndexField;

class SpinSteps {
public:
    double m_dMin = 0;
    double m_dMax = 100;
    double m_dStep = 1;
    int m_nPositions = 100;    // whole steps between the bounds, 32767 at most
    int m_nDecimals = -1;      // -1: as many as the value needs, in the manner of "%g"
    bool m_bTrimZeros = true;  // cuts zeros at the end, behind a point only
    std::string m_strFormat;   // printf format of one double; goes before m_nDecimals unless it is empty
    char m_chDecimalPoint = '.';

    void SetRange(double min, double max);

    // Whole steps from the lower bound to `value`; 0 below it, m_nPositions above the upper one, none where
    // the bounds are equal.
    std::optional<int> Position(double value) const;

    std::string Format(double value) const;

    // The text after `delta` steps, up if it is above 0. A step never leaves the bounds on its own side.
    std::string Click(std::string_view text, int delta) const;
};

// The steps of a spin field: by its bounds, and by the decimals of its value.
SpinSteps StepsOf(const CIndexField& field);

// A spin field's value as its box shows it at first.
std::string SpinText(const SpinSteps& steps, const CIndexField& field);

}  // namespace jogeon
