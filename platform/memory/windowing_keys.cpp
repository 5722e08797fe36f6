// What the keyboard does in windows and controls.
#include <algorithm>

#include "platform/memory/windowing.h"
#include "platform/text.h"

namespace platform::memory {
namespace {

std::size_t Characters(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

void Windowing::Type(std::string_view name, std::string_view text) {
  WidgetState* edit = Reach(name, Kind::kEdit);
  if (edit == nullptr) return;
  desktop_.MoveFocus(edit);
  std::string rest = ValidUtf8(text);
  while (!rest.empty() && desktop_.Alive(edit)) {
    const std::string letter = CutCharacters(rest, 1);
    rest.erase(0, letter.size());
    bool kept = false;
    for (const char16_t unit : ToUtf16(letter)) kept = edit->events->OnCharacter(unit) || kept;
    if (!kept && desktop_.Alive(edit)) EnterLetter(*edit, letter);
  }
}

void Windowing::EnterLetter(WidgetState& edit, std::string_view letter) {
  if (edit.read_only) return;
  const std::string before = edit.text;
  if (edit.all_selected) edit.text.clear();
  edit.all_selected = false;
  const std::size_t limit = edit.max_length > 0 ? static_cast<std::size_t>(edit.max_length) : 0;
  if (limit == 0 || Characters(edit.text) < limit) edit.text += letter;
  if (edit.text != before) edit.events->OnChanged();
}

void Windowing::PressKey(std::string_view name, Key key) {
  const WidgetState& found = Find(name);
  const bool painted = found.IsButton(ButtonKind::kPainted);
  const bool box = found.kind == Kind::kList && found.list == ListKind::kBox;
  WidgetState* state = painted || box ? Reach(name) : Reach(name, Kind::kEdit);
  if (state == nullptr) return;
  desktop_.MoveFocus(state);
  if (key == Key::kEnter && Desktop::TakesDialogKeys(Desktop::TopOf(*state))) {
    PressEnter(Desktop::TopOf(*state).name);
  } else {
    state->events->OnKey(key);
  }
}

void Windowing::Wheel(std::string_view name, int notches) {
  const WidgetState* edit = Reach(name, Kind::kEdit);
  if (edit != nullptr && edit->edit.kind != EditKind::kMemo) edit->events->OnWheel(notches);
}

WidgetState* Windowing::ReachDialog(std::string_view window) {
  WidgetState* top = Reach(window, Kind::kTopWindow);
  return top != nullptr && Desktop::TakesDialogKeys(*top) ? top : nullptr;
}

void Windowing::PressEnter(std::string_view window) {
  const WidgetState* top = ReachDialog(window);
  if (top == nullptr) return;
  WidgetState* focused = desktop_.Focused();
  if (focused != nullptr && focused->kind == Kind::kEdit && focused->IsIn(*top)) {
    if (focused->events->OnKey(Key::kEnter) || !desktop_.Alive(focused)) return;
    if (focused->edit.kind == EditKind::kMemo) {
      EnterLetter(*focused, "\n");
      return;
    }
  }
  Report(window, {DialogKey::Kind::kEnter});
}

bool Windowing::Report(std::string_view window, const DialogKey& key) {
  const WidgetState* top = ReachDialog(window);
  return top != nullptr && top->top_events->OnDialogKey(key);
}

void Windowing::PressArrow(std::string_view window, bool backwards) {
  WidgetState* focused = desktop_.Focused();
  if (Report(window, {DialogKey::Kind::kArrow, backwards}) || !desktop_.Alive(focused)) return;
  if (focused->kind == Kind::kEdit) focused->events->OnKey(backwards ? Key::kUp : Key::kDown);
}

}  // namespace platform::memory
