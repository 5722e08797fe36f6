// The question window, which asks before the program ends.
#pragma once

#include <string_view>

#include "language/language.h"
#include "settings/store.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/sign.h"
#include "toolkit/forms/form.h"

namespace display {

inline constexpr std::string_view kAreYouSureForm = "T_frmAreYouSure";

// Ends with kYes or kNo, or with kCancel when it is closed in another way.
class T_frmAreYouSure final : public toolkit::Form {
 public:
  // Makes the window hidden; the modal stack shows it. All arguments outlive the window.
  T_frmAreYouSure(toolkit::Application& app, settings::Store& store,
                  const language::Language& language);

  void Localise() override;

 private:
  void FormCreate();
  void FormShow() override;
  void AskCheckClick();

  settings::Store& store_;
  const language::Language& language_;

  toolkit::Sign Image1{*this, "Image1", toolkit::Sign::Picture::kQuestion};
  toolkit::Label lblQuestion1{*this, "lblQuestion1", toolkit::kWrappedText};
  toolkit::Label lblQuestion2{*this, "lblQuestion2", toolkit::kWrappedText};
  toolkit::CheckBox AskCheck{*this, "AskCheck"};
  toolkit::Button btnYes{*this, "btnYes"};
  toolkit::Button btnNo{*this, "btnNo"};
};

}  // namespace display
