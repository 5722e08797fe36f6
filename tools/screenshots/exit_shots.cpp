// Pictures of what the program says about itself and of what it asks before it ends.
#include "tests/desktop/driver/registry.h"
#include "tools/screenshots/shots.h"

namespace desktop {
namespace {

namespace text = language::text::MainForm;

void About(Scene& scene) {
  const HWND about = scene.Open({text::HElp1, text::AboutBrisantoXP1}, L"T_frmAbout");
  scene.Save("about", about);
  scene.Press(about, L"OkBtn");
}

void Exit(Scene& scene) {
  const HWND question = scene.Open({text::Close1}, L"T_frmAreYouSure");
  scene.Save("exit", question);
  scene.Press(question, L"btnNo");
  Store("zdP", std::string("secret"));
  Store("zdP1", 1U);
  const HWND prompt = scene.Open({text::Close1}, L"T_frmSecurity");
  scene.Save("password", prompt);
  scene.Press(prompt, L"CancelButton");
  Store("zdP1", 0U);
}

}  // namespace

std::span<const Shot> ExitShots() {
  static constexpr Shot kShots[] = {
      {"about", About},
      {"exit", Exit},
  };
  return kShots;
}

}  // namespace desktop
