// A dialog that the contract tests of the controls put their controls into.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/windowing.h"
#include "tests/contract/desk.h"

namespace contract {

// Writes down what a control reports.
struct Reports : platform::WidgetEvents {
  void OnClicked() override {
    ++clicks;
    if (on_clicked) on_clicked();
  }
  void OnChanged() override {
    ++changes;
    if (on_changed) on_changed();
  }
  void OnRowChecked(int row) override { rows.push_back(row); }
  bool OnKey(platform::Key key) override {
    keys.push_back(key);
    return keep_keys;
  }
  bool OnCharacter(char16_t unit) override { return keep_digits && unit >= u'0' && unit <= u'9'; }
  void OnWheel(int notches) override { turned += notches; }
  void OnFocusLost() override { ++focus_lost; }
  void OnFocusChanged() override { ++focus_changes; }

  int clicks = 0;
  int changes = 0;
  int turned = 0;
  int focus_lost = 0;
  int focus_changes = 0;
  std::vector<int> rows;
  std::vector<platform::Key> keys;
  bool keep_keys = false;
  bool keep_digits = false;
  std::function<void()> on_clicked, on_changed;
};

struct DialogReports : platform::TopWindowEvents {
  // As a window in which the arrows move nothing: the control gets them.
  bool OnDialogKey(const platform::DialogKey& key) override {
    keys.push_back(key);
    return key.kind != platform::DialogKey::Kind::kArrow;
  }
  void OnFocusWanted() override { ++focus_wanted; }

  std::vector<platform::DialogKey> keys;
  int focus_wanted = 0;
};

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() {
    dialog_ = Windowing().CreateTopWindow(
        {"T_frmControls", "Controls", platform::Frame::kDialog, false}, nullptr, dialog_reports_);
    dialog_->SetBounds({50, 50, 400, 400});
  }

  platform::Windowing& Windowing() { return desk_->Platform().windowing; }

  // Gives a new control a place of its own and shows it.
  template <class Control>
  std::unique_ptr<Control> Placed(std::unique_ptr<Control> control, int height = 22) {
    control->SetBounds({10, next_top_, 200, height});
    control->SetVisible(true);
    next_top_ += height + 2;
    return control;
  }
  std::unique_ptr<platform::Button> Button(const char* name, platform::ButtonKind kind,
                                           Reports& reports) {
    auto button = Placed(Windowing().CreateButton(*dialog_, name, kind, reports));
    button->SetText(name);
    return button;
  }
  std::unique_ptr<platform::Edit> Edit(const char* name, platform::EditKind kind,
                                       Reports& reports) {
    return Placed(
        Windowing().CreateEdit(*dialog_, name, {kind, platform::Border::kSunken}, reports));
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
  DialogReports dialog_reports_;
  std::unique_ptr<platform::TopWindow> dialog_;
  int next_top_ = 5;
};

}  // namespace contract
