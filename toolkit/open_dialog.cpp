#include "toolkit/open_dialog.h"

#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {

std::optional<std::string> OpenDialog::Execute(const Form& owner) const {
  platform::OpenFileRequest request{Title, Kinds, InitialFolder};
  for (platform::FileKind& kind : request.kinds) kind.name += " (" + kind.mask + ")";
  std::optional<std::string> path;
  owner.App().Modals().RunSystemDialog(owner, [&] {
    path = owner.App().Platform().system_dialogs.OpenFile(request, owner.Window());
  });
  return path;
}

}  // namespace toolkit
