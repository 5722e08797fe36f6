// What the keyboard does in windows and controls.
#include <algorithm>
#include <stdexcept>

#include "platform/memory/windowing.h"
#include "platform/text.h"

namespace platform::memory {
namespace {

using Kind = WidgetState::Kind;

// The neighbour of `from` in a ring that is not empty; the first or last when it is not in it.
WidgetState* Neighbour(const std::vector<WidgetState*>& ring, const WidgetState* from,
                       bool backwards) {
  const auto at = std::find(ring.begin(), ring.end(), from);
  if (backwards) return at == ring.begin() || at == ring.end() ? ring.back() : *(at - 1);
  return at == ring.end() || at + 1 == ring.end() ? ring.front() : *(at + 1);
}

bool IsPush(const WidgetState& state) {
  return state.IsButton(ButtonKind::kPush) || state.IsButton(ButtonKind::kPainted);
}

bool MarksKey(const WidgetState& state) {
  if (state.kind == Kind::kText) return state.text_style.mnemonic;
  return state.kind == Kind::kButton && state.button != ButtonKind::kPainted;
}

char MarkedKey(const std::string& text) {
  for (std::size_t at = 0; at + 1 < text.size(); ++at) {
    if (text[at] != '&') continue;
    ++at;
    if (text[at] != '&') return AsciiLower(text.substr(at, 1))[0];
  }
  return '\0';
}

std::size_t Characters(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

void Windowing::Type(std::string_view name, std::string_view text) {
  WidgetState* edit = Reach(name, Kind::kEdit);
  if (edit == nullptr) return;
  if (!edit->focused) desktop_.MoveFocus(edit);
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
  if (!state->focused) desktop_.MoveFocus(state);
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
  WidgetState* pressed = nullptr;
  for (WidgetState* state : desktop_.ReachableIn(*top)) {
    if (!IsPush(*state)) continue;
    if (state->is_default && pressed == nullptr) pressed = state;
    if (state->focused) pressed = state;
  }
  if (pressed != nullptr) pressed->events->OnClicked();
}

void Windowing::PressEsc(std::string_view window) {
  if (WidgetState* top = ReachDialog(window)) top->top_events->OnCancelKey();
}

void Windowing::PressTab(std::string_view window, bool backwards) {
  const WidgetState* top = ReachDialog(window);
  if (top == nullptr) return;
  const std::vector<WidgetState*> stops = desktop_.StopsIn(*top);
  if (stops.empty()) return;
  WidgetState* next = Neighbour(stops, desktop_.Focused(), backwards);
  desktop_.MoveFocus(next);
  if (desktop_.Alive(next) && next->kind == Kind::kEdit) {
    next->all_selected = next->edit.kind != EditKind::kMemo;
  }
}

void Windowing::PressCtrlTab(std::string_view window, bool backwards) {
  const WidgetState* top = ReachDialog(window);
  if (top == nullptr) return;
  WidgetState* chosen = nullptr;
  for (WidgetState* state : desktop_.ReachableIn(*top)) {
    if (state->kind != Kind::kTabs) continue;
    if (chosen == nullptr) chosen = state;
    if (desktop_.Focused() != nullptr && desktop_.Focused()->IsIn(*state)) {
      chosen = state;
      break;
    }
  }
  if (chosen != nullptr) ChooseTab(*chosen, backwards ? -1 : 1);
}

void Windowing::ChooseTab(WidgetState& tabs, int by) {
  const int count = static_cast<int>(tabs.items.size());
  if (count < 2) return;
  tabs.Select((tabs.index + by + count) % count);
  tabs.events->OnChanged();
}

void Windowing::PressAlt(std::string_view window, char letter) {
  const WidgetState* top = ReachDialog(window);
  if (top == nullptr) return;
  const std::vector<WidgetState*> widgets = desktop_.ReachableIn(*top);
  std::vector<WidgetState*> from_focus = widgets;
  const auto focused = std::find(from_focus.begin(), from_focus.end(), desktop_.Focused());
  if (focused != from_focus.end()) std::rotate(from_focus.begin(), focused + 1, from_focus.end());
  const char wanted = AsciiLower(std::string(1, letter))[0];
  const auto marked =
      std::find_if(from_focus.begin(), from_focus.end(), [wanted](const WidgetState* state) {
        return MarksKey(*state) && MarkedKey(state->text) == wanted;
      });
  if (marked == from_focus.end()) return;
  WidgetState* state = *marked;
  if (state->kind == Kind::kButton && state->button != ButtonKind::kGroup) {
    desktop_.MoveFocus(state);
    if (desktop_.Alive(state)) Click(*state);
    return;
  }
  const std::vector<WidgetState*> stops = desktop_.StopsIn(*top);
  for (auto next = std::find(widgets.begin(), widgets.end(), state); next != widgets.end();
       ++next) {
    if (std::find(stops.begin(), stops.end(), *next) == stops.end()) continue;
    desktop_.MoveFocus(*next);
    return;
  }
}

void Windowing::PressArrow(std::string_view window, bool backwards) {
  WidgetState* focused = desktop_.Focused();
  const WidgetState* top = ReachDialog(window);
  if (top == nullptr || focused == nullptr || !focused->IsIn(*top)) return;
  if (!focused->IsButton(ButtonKind::kRadio)) {
    throw std::logic_error("the keyboard is in no radio button");
  }
  std::vector<WidgetState*> group = desktop_.GroupOf(*focused);
  std::erase_if(group, [](const WidgetState* radio) { return !radio->Reachable(); });
  WidgetState* next = Neighbour(group, focused, backwards);
  desktop_.MoveFocus(next);
  if (desktop_.Alive(next)) Click(*next);
}

}  // namespace platform::memory
