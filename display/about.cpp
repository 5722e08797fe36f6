#include "display/about.h"

#include <string>

#include "display/images.h"
#include "language/texts.h"
#include "program/product.h"
#include "toolkit/about_box.h"
#include "toolkit/application.h"

namespace display {
namespace {

namespace text = language::text::AboutForm;

toolkit::AboutTexts Texts(const language::Language& language) {
  const language::Translation say = language.Chosen();
  return {say(text::Title), std::string(program::kProductTitle),
          say(text::lblVersion, {program::kVersion}), say(text::lblDescription), say(text::OkBtn)};
}

}  // namespace

void ShowAbout(toolkit::Application& app, const language::Language& language) {
  if (app.Modals().RaiseTop()) return;
  toolkit::AboutBox box(app, kProgramImage, [&language] { return Texts(language); });
  app.Modals().Show(box);
}

}  // namespace display
