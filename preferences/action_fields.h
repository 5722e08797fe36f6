// What an alert does: the list of actions, and the message for the one that shows it.
#pragma once

#include <string_view>

#include "language/language.h"
#include "preferences/labelled.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

struct ActionFields {
  // The names of its controls. `parent` outlives it.
  ActionFields(toolkit::Control& parent, std::string_view action_label, std::string_view action,
               std::string_view message_label, std::string_view message);

  void Localise(const language::Translation& say);
  // Shows the message only with the action that displays it; after every change of the list.
  void ShowMessage();

  Labelled<toolkit::ComboBox> action;
  Labelled<toolkit::Edit> message;
};

}  // namespace preferences
