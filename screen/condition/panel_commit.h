// What the parameter panel does when the user is done: it reads the controls into the fields, has them
// checked, and brings a condition to the state of the fields.
//
// Knows the controls only through FieldControl. Texts are CP949.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "screen/condition/index_info.h"

namespace jogeon {

// The option that a drop-down list or radio buttons show; -1 for none, or without controls.
int ChosenOption(const CIndexField& field);

// Gives a field without a choice its default option, and one with a choice that it doesn't offer the first.
void ChooseInitialOption(CIndexField& field);

// Reads the live control into the record; without one the record stays.
void CommitValue(CIndexField& field);

struct CommitFault {
    CIndexField* field;  // where it is to be mended
    host::Box box;
};

// Commits all fields and checks those of the chosen variant; the first fault is returned. Without one the
// description is built into `head` and `preview` ("[]" without fields).
std::optional<CommitFault> CommitFields(CIndexInfo& head, std::unique_ptr<FieldArray>& fields,
                                        std::string& preview);

// Copies the fields into `info` and brings its m_RoleValues to their state.
void UpdateValues(const FieldArray& fields, CIndexInfo& info);

// The control of a field that takes the focus; null if it has none.
FieldControl* EntryOf(const CIndexField& field);

}  // namespace jogeon
