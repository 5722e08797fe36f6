// The about box of this program.
#pragma once

#include "settings/language.h"

namespace toolkit {
class Application;
}

namespace display {

// Returns when it is closed. One that is open already is raised.
void ShowAbout(toolkit::Application& app, const settings::Language& language);

}  // namespace display
