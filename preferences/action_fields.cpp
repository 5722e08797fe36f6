#include "preferences/action_fields.h"

#include "alerts/reactions.h"
#include "language/texts.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

constexpr int kLongestMessage = 254;  // characters

}  // namespace

ActionFields::ActionFields(toolkit::Control& parent, std::string_view action_label,
                           std::string_view action, std::string_view message_label,
                           std::string_view message)
    : action(parent, action_label, action), message(parent, message_label, message) {
  this->message.SetMaxLength(kLongestMessage);
  ShowMessage();
}

void ActionFields::Localise(const language::Translation& say) {
  action.SetHint(say(text::ActionHint));
  message.SetHint(say(text::MessageHint));
}

void ActionFields::ShowMessage() {
  const bool shown = action.ItemIndex() == alerts::kDisplayMessage;
  message.label.SetVisible(shown);
  message.SetVisible(shown);
}

}  // namespace preferences
