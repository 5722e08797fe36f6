#include "tools/screenshots/scene.h"

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <utility>

#include "platform/windows/services/services.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/layout_faults.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/traffic.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

using platform::windows::FromWide;
using platform::windows::ToWide;

language::Translation TextsOf(const std::string& language) {
  constexpr std::size_t kLargest = 1U << 20U;
  platform::windows::Files files;
  platform::windows::Locale locale;
  const std::wstring program = ProgramPath();
  const std::wstring folder = program.substr(0, program.rfind(L'\\') + 1);
  const auto bytes = files.Load(FromWide(folder) + "Languages\\" + language + ".lng", kLargest);
  if (!bytes) throw std::runtime_error("no language " + language);
  return language::Translation(std::make_shared<language::LanguageFile>(*bytes, locale));
}

void PutPointerAway() { MoveMouse({0, 0}); }

std::wstring ClassOf(HWND window) {
  wchar_t name[64] = {};
  ::GetClassNameW(window, name, 64);
  return name;
}

}  // namespace

Scene::Scene(const std::string& language, std::wstring folder)
    : texts_(TextsOf(language)), folder_(std::move(folder)) {
  RegistryGuard::RemoveStored();
  for (const AdapterRow& row : ReadAdapters()) Store(row.name, row.name == waves_.adapter());
  Store("ExecuteTime", 1U);
  Store("Language", language);
  PutPointerAway();
  meter_.emplace();
}

MenuPath Scene::Path(std::initializer_list<language::TextEntry> entries) const {
  MenuPath path;
  for (const language::TextEntry& entry : entries) path.push_back(Text(entry));
  return path;
}

void Scene::Restart(const std::function<void()>& meanwhile) {
  AwaitPainted();  // what a first scan stores is there
  meter_.reset();
  meanwhile();
  meter_.emplace();
}

void Scene::FillGraph() {
  constexpr LONG kBar = 3;
  AwaitScans(static_cast<int>(WidthOf(AreaOf(meter_->graph())) / meter_->Scaled(kBar)));
}

// A scan begins when nothing else waits, so at the end of a second one all is painted that waited
// before; the display shows it a little later.
void Scene::AwaitPainted() {
  constexpr DWORD kShown = 100;
  AwaitScans(2);
  ::Sleep(kShown);
}

void Scene::Choose(std::initializer_list<language::TextEntry> path) {
  meter_->Choose(Path(path));
  PutPointerAway();
}

HWND Scene::AwaitWindow(const wchar_t* window_class) {
  HWND found = nullptr;
  Await(FromWide(window_class), [&] {
    found = FindTop(meter_->program().id(), window_class);
    return found != nullptr && ::IsWindowVisible(found) != FALSE;
  });
  AwaitPainted();
  return found;
}

HWND Scene::Open(std::initializer_list<language::TextEntry> path, const wchar_t* window_class) {
  Choose(path);
  return AwaitWindow(window_class);
}

void Scene::Press(HWND window, const wchar_t* control) {
  ClickOn(window, control);
  PutPointerAway();
}

void Scene::Close(HWND window) {
  ::PostMessageW(window, WM_CLOSE, 0, 0);
  Await("a window to close",
        [&] { return ::IsWindow(window) == FALSE || ::IsWindowVisible(window) == FALSE; });
}

HWND Scene::AwaitBalloon() {
  DWORD shell = 0;
  ::GetWindowThreadProcessId(::FindWindowW(L"Shell_TrayWnd", nullptr), &shell);
  HWND balloon = nullptr;
  Await("a balloon", [&] {
    for (const HWND window : VisibleTops(shell)) {
      if (ClassOf(window) == L"tooltips_class32") balloon = window;
    }
    return balloon != nullptr;
  });
  AwaitPainted();
  return balloon;
}

void Scene::CloseBalloon(HWND balloon) {
  Click(MiddleOf(AreaOf(balloon)));
  PutPointerAway();
  Await(
      "the balloon to close", [&] { return ::IsWindowVisible(balloon) == FALSE; }, 60000);
}

Picture Scene::OfAll() {
  RECT all{};
  for (const HWND window : VisibleTops(meter_->program().id())) {
    const RECT area = AreaOf(window);
    ::UnionRect(&all, &all, &area);
  }
  return TakePicture(all);
}

Picture Scene::Of(HWND window) { return TakePicture(AreaOf(window)); }

void Scene::Save(std::string_view name, HWND window) {
  CheckLayout(name, window);
  Save(name, Of(window));
}

void Scene::CheckLayout(std::string_view name, HWND window) {
  const std::string faults = LayoutFaults(window);
  if (faults.empty()) return;
  fits_ = false;
  std::printf("does not fit: %s: %s\n", std::string(name).c_str(), faults.c_str());
}

void Scene::Save(std::string_view name, const Picture& picture) const {
  const std::wstring path = folder_ + L"\\" + ToWide(std::string(name)) + L".png";
  SavePng(picture, path);
  std::printf("%s\n", FromWide(path).c_str());
  std::fflush(stdout);
}

}  // namespace desktop
