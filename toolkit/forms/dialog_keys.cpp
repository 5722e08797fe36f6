#include "toolkit/forms/dialog_keys.h"

#include <algorithm>

#include "platform/marked_text.h"
#include "toolkit/application.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/pages.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

void Collect(const Control& parent, std::vector<Control*>& found) {
  for (Control* child : parent.Children()) {
    if (!child->Visible() || !child->Enabled()) continue;
    found.push_back(child);
    Collect(*child, found);
  }
}

bool Holds(const Control& root, const Control* sought) {
  return std::any_of(
      root.Children().begin(), root.Children().end(),
      [sought](const Control* child) { return child == sought || Holds(*child, sought); });
}

bool IsIn(const Control& control, const Control& outer) {
  return &control == &outer || Holds(outer, &control);
}

// The neighbour of `from` in a ring, which is none of it when null; null without others.
Control* Neighbour(const std::vector<Control*>& ring, const Control* from, bool backwards) {
  if (ring.empty()) return nullptr;
  const auto at = std::find(ring.begin(), ring.end(), from);
  if (backwards) return at == ring.begin() || at == ring.end() ? ring.back() : *(at - 1);
  return at == ring.end() || at + 1 == ring.end() ? ring.front() : *(at + 1);
}

}  // namespace

bool DialogKeys::Press(const platform::DialogKey& key) {
  using Kind = platform::DialogKey::Kind;
  switch (key.kind) {
    case Kind::kTab:
      Tab(key.backwards);
      return true;
    case Kind::kControlTab:
      return StepTabs(key.backwards);
    case Kind::kEnter:
      Enter();
      return true;
    case Kind::kEscape:
      form_.Close();
      return true;
    case Kind::kArrow:
      return MoveInGroup(key.backwards);
    case Kind::kLetter:
      break;
  }
  return MarkedLetter(key.letter);
}

DialogKeys::Controls DialogKeys::Reachable() const {
  Controls found;
  Collect(form_, found);
  return found;
}

// From behind: what lies on a control stands behind it.
Control* DialogKeys::Focused(const Controls& controls) {
  const auto found = std::find_if(controls.rbegin(), controls.rend(),
                                  [](const Control* control) { return control->Focused(); });
  return found != controls.rend() ? *found : nullptr;
}

DialogKeys::Controls DialogKeys::Group(const Controls& controls, const Control& radio) {
  Controls group;
  for (RadioButton* each : dynamic_cast<const RadioButton&>(radio).Group()) {
    if (std::find(controls.begin(), controls.end(), each) != controls.end()) group.push_back(each);
  }
  return group;
}

// Of a group of radio buttons Tab stops only at the one with the keyboard, else the checked one,
// else the first.
bool DialogKeys::IsStop(const Controls& controls, const Control& control) {
  if (control.Role() != KeyRole::kRadio) return control.Role() != KeyRole::kNone;
  const Controls group = Group(controls, control);
  if (const Control* focused = Focused(group)) return focused == &control;
  const auto checked = std::find_if(group.begin(), group.end(), [](const Control* each) {
    return dynamic_cast<const RadioButton&>(*each).Checked();
  });
  return (checked != group.end() ? *checked : group.front()) == &control;
}

DialogKeys::Controls DialogKeys::Stops(const Controls& controls) {
  Controls stops;
  std::copy_if(controls.begin(), controls.end(), std::back_inserter(stops),
               [&controls](const Control* control) { return IsStop(controls, *control); });
  return stops;
}

bool DialogKeys::Focus(Control& control) {
  control.SetFocus();
  return Holds(form_, &control);
}

void DialogKeys::GoTo(Control* control) {
  if (control != nullptr && Focus(*control)) control->ReachedByTab();
}

void DialogKeys::Tab(bool backwards) {
  form_.Window().ShowKeyMarks();
  const Controls stops = Stops(Reachable());
  GoTo(Neighbour(stops, Focused(stops), backwards));
}

void DialogKeys::FocusFirst() {
  const Controls stops = Stops(Reachable());
  if (!stops.empty()) GoTo(stops.front());
}

bool DialogKeys::MoveInGroup(bool backwards) {
  const Controls controls = Reachable();
  Control* focused = Focused(controls);
  if (focused == nullptr || focused->Role() != KeyRole::kRadio) return false;
  form_.Window().ShowKeyMarks();
  Control& next = *Neighbour(Group(controls, *focused), focused, backwards);
  if (Focus(next)) next.PressByKey();
  return true;
}

PageControl* DialogKeys::Tabs() const {
  PageControl* first = nullptr;
  for (Control* control : Reachable()) {
    auto* tabs = dynamic_cast<PageControl*>(control);
    if (tabs == nullptr) continue;
    if (tabs->Focused()) return tabs;
    if (first == nullptr) first = tabs;
  }
  return first;
}

bool DialogKeys::StepTabs(bool backwards) {
  PageControl* tabs = Tabs();
  if (tabs != nullptr) tabs->Step(backwards ? -1 : 1);
  return tabs != nullptr;
}

Control* DialogKeys::WhatEnterPresses(const Controls& controls) {
  Control* found = nullptr;
  for (Control* control : controls) {
    if (control->Role() != KeyRole::kPush) continue;
    if (control->Focused()) return control;
    const auto* button = dynamic_cast<const Button*>(control);
    if (button != nullptr && button->IsDefault()) found = control;
  }
  return found;
}

void DialogKeys::Enter() {
  if (Control* pressed = WhatEnterPresses(Reachable())) pressed->OnClicked();
}

void DialogKeys::ShowWhatEnterPresses() {
  const Controls controls = Reachable();
  const Control* pressed = WhatEnterPresses(controls);
  for (Control* control : controls) {
    if (auto* button = dynamic_cast<Button*>(control)) button->ShowAsDefault(button == pressed);
  }
}

// Of several with the same letter, the one behind the keyboard.
bool DialogKeys::MarkedLetter(const std::string& letter) {
  platform::Locale& locale = form_.App().Platform().locale;
  const std::string wanted = locale.Lower(letter);
  const Controls controls = Reachable();
  Controls from_focus = controls;
  const auto focused = std::find(from_focus.begin(), from_focus.end(), Focused(controls));
  if (focused != from_focus.end()) std::rotate(from_focus.begin(), focused + 1, from_focus.end());
  const auto marked =
      std::find_if(from_focus.begin(), from_focus.end(), [&](const Control* control) {
        return control->MarksKey() &&
               locale.Lower(platform::ReadMarks(control->Caption()).Key()) == wanted;
      });
  if (wanted.empty() || marked == from_focus.end()) return false;
  form_.Window().ShowKeyMarks();
  Activate(controls, **marked);
  return true;
}

// A button is pressed, a text leads to the control behind it.
void DialogKeys::Activate(const Controls& controls, Control& marked) {
  if (marked.Role() != KeyRole::kNone) {
    if (Focus(marked)) marked.PressByKey();
    return;
  }
  const auto behind =
      std::find_if(std::find(controls.begin(), controls.end(), &marked), controls.end(),
                   [&controls](const Control* next) { return IsStop(controls, *next); });
  if (behind != controls.end()) GoTo(*behind);
}

void DialogKeys::PassOn(const Control& leaving) {
  if (form_.HeldBy() != Hold::kCaption || !leaving.Focused()) return;
  const Controls controls = Reachable();
  Controls following = controls;
  const auto begin = std::find(following.begin(), following.end(), &leaving);
  if (begin == following.end()) return;
  std::rotate(following.begin(), begin, following.end());
  const auto next = std::find_if(following.begin(), following.end(), [&](const Control* control) {
    return !IsIn(*control, leaving) && IsStop(controls, *control);
  });
  if (next != following.end()) GoTo(*next);
}

}  // namespace toolkit
