#include "preferences/action_fields.h"

#include "alerts/reactions.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

constexpr int kLongestMessage = 254;  // characters

}  // namespace

ActionFields::ActionFields(toolkit::Control& parent, const Names& names)
    : action_label(parent, names.action_label.key, toolkit::kCaptionText),
      action(parent, names.action),
      message_label(parent, names.message_label.key, toolkit::kCaptionText),
      message(parent, names.message),
      action_text_(names.action_label),
      message_text_(names.message_label) {
  message.SetMaxLength(kLongestMessage);
  ShowMessage();
}

void ActionFields::Place(const FieldColumn& column, int row) {
  toolkit::ApplyLayout({
      {action_label, column.Label(row)},
      {action, column.Field(row, column.FieldWidth())},
      {message_label, column.Label(row + 1)},
      {message, column.Field(row + 1, column.FieldWidth())},
  });
}

void ActionFields::Localise(const language::Translation& say) {
  action_label.SetCaption(say(action_text_));
  message_label.SetCaption(say(message_text_));
  action.SetHint(say(text::ActionHint));
  message.SetHint(say(text::MessageHint));
  action.SetItems(Texts(say, {text::Action0, text::Action1, text::Action2, text::Action3}));
}

void ActionFields::ShowMessage() {
  const bool shown = action.ItemIndex() == alerts::kDisplayMessage;
  message_label.SetVisible(shown);
  message.SetVisible(shown);
}

}  // namespace preferences
