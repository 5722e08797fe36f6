// The fields for what an alert does: the list of actions, and the message for the action that shows
// one.
#pragma once

#include <vector>

#include "alerts/reactions.h"
#include "preferences/row.h"
#include "toolkit/controls/lists.h"

namespace preferences {

struct ActionFields {
  Labelled<toolkit::ComboBox> action;
  Labelled<toolkit::Edit> message;

  // Shows the message field only for the action that displays a message. Call it after every change
  // of the list.
  void ShowMessage() {
    const bool shown = action.ItemIndex() == alerts::kDisplayMessage;
    message.label.SetVisible(shown);
    message.SetVisible(shown);
  }

  // Returns the two rows, which stand at `row` and below it in the column, with the settings in the
  // forms that Row takes.
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
