// What an alert does: the list of actions, and the message for the one that shows it.
#pragma once

#include <vector>

#include "alerts/reactions.h"
#include "preferences/row.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

struct ActionFields {
  Labelled<toolkit::ComboBox> action;
  Labelled<toolkit::Edit> message;

  // Shows the message only with the action that displays it; after every change of the list.
  void ShowMessage() {
    const bool shown = action.ItemIndex() == alerts::kDisplayMessage;
    message.label.SetVisible(shown);
    message.SetVisible(shown);
  }

  // Its two rows, from this one of the column on, with their settings as a row takes them.
  template <class Action, class Message>
  std::vector<Row> Rows(const FieldColumn& column, int row, const Action& action_setting,
                        const Message& message_setting) {
    namespace text = language::text::SettingsForm;
    constexpr int kLongestMessage = 254;  // characters
    message.SetMaxLength(kLongestMessage);
    ShowMessage();
    return {{action, column.At(row), action_setting, Items{"Action"}, Says{{}, text::ActionHint},
             [this] { ShowMessage(); }},
            {message, column.At(row + 1), message_setting, Says{{}, text::MessageHint}}};
  }
};

}  // namespace preferences
