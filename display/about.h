// The about box of this program.
#pragma once

#include "language/language.h"

namespace toolkit {
class Application;
}

namespace display {

// Shows the about box and returns when it is closed. An about box that is open already is raised.
void ShowAbout(toolkit::Application& app, const language::Language& language);

}  // namespace display
