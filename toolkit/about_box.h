// The about box, which shows the program's name, version and description.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "toolkit/controls/buttons.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/sign.h"
#include "toolkit/forms/form.h"

namespace toolkit {

struct AboutTexts {
  std::string title;
  std::string product;
  std::string version;
  std::string description;
  std::string ok;
};

class AboutBox final : public Form {
 public:
  static constexpr std::string_view kName = "T_frmAbout";

  // Makes the window hidden; the modal stack shows it.
  //   images  the first image is the program's picture; the list outlives the box
  //   texts   called when the box is made, and again when the language changes
  AboutBox(Application& app, const ImageList& images, std::function<AboutTexts()> texts);

  void Localise() override;

 private:
  std::function<AboutTexts()> texts_;

  Sign Image1;
  Label lblProduct{*this, "lblProduct", kWrappedText};
  Label lblVersion{*this, "lblVersion", kWrappedText};
  Label lblDescription{*this, "lblDescription", kWrappedText};
  Button OkBtn{*this, "OkBtn"};
};

}  // namespace toolkit
