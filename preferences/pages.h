// The pages of the preferences, each in the file of its name.
#pragma once

#include <memory>

#include "preferences/page.h"

namespace preferences {

// Each function makes its page in the notebook. Both arguments outlive the page.
using MakePage = std::unique_ptr<Page>(toolkit::Notebook& notebook, Context& context);

MakePage MakeGeneralPage;
MakePage MakeGraphColorsPage;
MakePage MakeGraphGridsPage;
MakePage MakeGraphOthersPage;
MakePage MakeTextColorsPage;
MakePage MakeTextOtherPage;
MakePage MakeAdminPage;
MakePage MakeInterfacesPage;
MakePage MakeBandwidthAlertPage;
MakePage MakeNotificationPage;
MakePage MakeOtherPage;
MakePage MakeResetSettingsPage;

}  // namespace preferences
