// What an alert does: the list of actions, and the message for the one that shows it. Two rows of a
// page.
#pragma once

#include <string_view>

#include "language/language.h"
#include "language/texts.h"
#include "preferences/page.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class ActionFields {
 public:
  // The names of its controls; those of the labels are also the keys of their texts.
  struct Names {
    language::TextEntry action_label;
    std::string_view action;
    language::TextEntry message_label;
    std::string_view message;
  };
  // `parent` outlives it. The handlers of `action` and `message` are the owner's.
  ActionFields(toolkit::Control& parent, const Names& names);

  // The list into a row of the column, the message into the next one.
  void Place(const FieldColumn& column, int row);
  void Localise(const language::Translation& say);

  // Shows the message only with the action that displays it; after every change of the list.
  void ShowMessage();

  toolkit::Label action_label;
  toolkit::ComboBox action;
  toolkit::Label message_label;
  toolkit::Edit message;

 private:
  language::TextEntry action_text_;
  language::TextEntry message_text_;
};

}  // namespace preferences
