// The about box of this program.
#pragma once

#include "language/language.h"

namespace toolkit {
class Application;
}

namespace display {

// Returns when it is closed. One that is open already is raised.
void ShowAbout(toolkit::Application& app, const language::Language& language);

}  // namespace display
