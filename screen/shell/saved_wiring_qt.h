// Ties the commands over saved sets to their buttons.
#pragma once

#include "screen/saved/saved_conditions.h"
#include "screen/shell/screen_form_widget.h"

namespace jogeon {

// The form calls into `saved` from now on, which outlives its last event.
void WireSavedCommands(ScreenForm& form, SavedConditions& saved);

}  // namespace jogeon
