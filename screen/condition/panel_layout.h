// Where the controls of a field stand on the panel, in its pixels.
//
// Rectangles come from a file and may be anything: what lies outside the panel is cut off, and a control
// of which nothing is left has an empty rectangle.
#pragma once

#include <string>
#include <vector>

#include "screen/condition/index_field.h"

namespace jogeon {

// Where fields may stand; the buttons are at the right of it.
inline constexpr PanelRect kFieldArea{0, 0, 482, 96};

bool IsEmpty(const PanelRect& rect);

// The place of a field's one control.
PanelRect ControlRect(const CIndexField& field);

// The places of a field's radio buttons, one for each text.
std::vector<PanelRect> OptionRects(const CIndexField& field, const std::vector<std::string>& texts);

// Which fields count while the selector has `option` chosen, one entry for each field. A label counts with
// the field at its right, and a field that no variant names always counts; so do all of them where the
// option names none.
std::vector<bool> FieldsInUse(const FieldArray& fields, int option);

}  // namespace jogeon
