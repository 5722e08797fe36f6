// What the keys do in a form with a caption: Tab, Enter, Esc, marked letters, Ctrl+Tab, arrows
// among radio buttons.
//
// Tab goes through the controls in the order in which they were made, those on a panel in the place
// of the panel; of radio buttons that exclude each other it takes the chosen one, and the arrow
// keys move among them. A marked letter reaches a control; Enter presses the default button, unless
// another push button has the keyboard; Esc closes the form; Ctrl+Tab goes to the next of the tabs
// that the keyboard is in, or of the first ones.
#pragma once

#include <string>
#include <vector>

#include "platform/top_window.h"

namespace toolkit {

class Control;
class Form;
class PageControl;

class DialogKeys {
 public:
  explicit DialogKeys(Form& form) : form_(form) {}

  // Returns true when the key is done with; the form may be gone then.
  bool Press(const platform::DialogKey& key);
  // Puts the keyboard into the first control.
  void FocusFirst();
  // Is called before `leaving` is hidden or disabled. If the keyboard is in it, gives the keyboard
  // to the control that follows in the order of Tab.
  void PassOn(const Control& leaving);
  // Gives what Enter presses the look of the default button.
  void ShowWhatEnterPresses();

 private:
  using Controls = std::vector<Control*>;

  // Returns what the user can reach, in order of creation; what lies on a control stands behind it.
  [[nodiscard]] Controls Reachable() const;
  // Returns the control with the keyboard, or null for none.
  [[nodiscard]] static Control* Focused(const Controls& controls);
  [[nodiscard]] static bool IsStop(const Controls& controls, const Control& control);
  [[nodiscard]] static Controls Stops(const Controls& controls);
  [[nodiscard]] static Controls Group(const Controls& controls, const Control& radio);
  // Returns the control that Enter presses, or null for none.
  [[nodiscard]] static Control* WhatEnterPresses(const Controls& controls);
  [[nodiscard]] PageControl* Tabs() const;

  void Tab(bool backwards);
  void Enter();
  bool StepTabs(bool backwards);
  bool MoveInGroup(bool backwards);
  bool MarkedLetter(const std::string& letter);
  void Activate(const Controls& controls, Control& marked);
  void GoTo(Control* control);
  // Gives the keyboard to a control. Returns whether the control is still there.
  [[nodiscard]] bool Focus(Control& control);

  Form& form_;
};

}  // namespace toolkit
