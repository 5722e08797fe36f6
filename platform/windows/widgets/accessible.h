// What screen readers see of a widget (IAccessible).
#pragma once

#include <optional>

#include "platform/windows/widgets/widget_window.h"

namespace platform::windows {

// Answers WM_GETOBJECT for the client area: the system's own object for the window, which says what
// the widget's maker has to say and leaves all else to the system. Returns nullopt to leave the
// message to the system: when the question is another one, nothing is to be said, or COM fails.
//
// The libraries that this takes are loaded at the first question, so that a run without a screen
// reader does without them.
[[nodiscard]] std::optional<LRESULT> AnswerReader(WidgetWindow& widget, const Message& message);

}  // namespace platform::windows
