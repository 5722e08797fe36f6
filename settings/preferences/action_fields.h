// What an alert does: the list of actions, and the message for the one that shows it. Two rows of a
// page.
#pragma once

#include <string_view>

#include "settings/language.h"
#include "settings/preferences/page.h"
#include "settings/texts.h"
#include "toolkit/edit.h"
#include "toolkit/label.h"
#include "toolkit/list_box.h"

namespace settings::preferences {

class ActionFields {
 public:
  // The names of its controls; those of the labels are also the keys of their texts.
  struct Names {
    TextEntry action_label;
    std::string_view action;
    TextEntry message_label;
    std::string_view message;
  };
  // `parent` outlives it. The handlers of `action` and `message` are the owner's.
  ActionFields(toolkit::Control& parent, const Names& names);

  // The list into a row of the column, the message into the next one.
  void Place(const FieldColumn& column, int row);
  void Localise(const Translation& say);

  // Shows the message only with the action that displays it; after every change of the list.
  void ShowMessage();

  toolkit::Label action_label;
  toolkit::ComboBox action;
  toolkit::Label message_label;
  toolkit::Edit message;

 private:
  TextEntry action_text_;
  TextEntry message_text_;
};

}  // namespace settings::preferences
