// Windows and controls that record what is done to them and let tests play the user.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/memory/desktop.h"
#include "platform/memory/widget_state.h"
#include "platform/other_windows.h"
#include "platform/windowing.h"

namespace platform::memory {

class Windowing final : public platform::Windowing {
  Desktop desktop_;  // first: what tests set is in it

 public:
  explicit Windowing(Screen& screen) : desktop_(screen) {}

  void SetApplicationTitle(std::string_view title) override { application_title = title; }
  void HideTaskbarButton() override { taskbar_button = false; }
  [[nodiscard]] std::unique_ptr<TopWindow> CreateTopWindow(const TopWindowParams& params,
                                                           TopWindow* owner,
                                                           TopWindowEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateSurface(Widget& parent, std::string_view name,
                                                      WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateText(Widget& parent, std::string_view name,
                                                   const TextStyle& style,
                                                   WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Button> CreateButton(Widget& parent, std::string_view name,
                                                     ButtonKind kind,
                                                     WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Edit> CreateEdit(Widget& parent, std::string_view name,
                                                 const EditStyle& style,
                                                 WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<ItemList> CreateList(Widget& parent, std::string_view name,
                                                     ListKind kind, WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Tree> CreateTree(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Tabs> CreateTabs(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<TrackBar> CreateTrackBar(Widget& parent, std::string_view name,
                                                         WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<ProgressBar> CreateProgressBar(Widget& parent,
                                                               std::string_view name,
                                                               WidgetEvents& events) override;

  // The control with this name, in any window; throws std::out_of_range when there is none.
  [[nodiscard]] WidgetState& Find(std::string_view name);
  [[nodiscard]] bool Exists(std::string_view name) const;
  // The name of the control with the keyboard; empty for none.
  [[nodiscard]] std::string Focused() const;
  // The controls of a window that Tab stops at now, in its order: goes through them with Tab once,
  // and back to where the keyboard was.
  [[nodiscard]] std::vector<std::string> TabOrder(std::string_view window);

  // The user's doings. Controls that are hidden or disabled, also through a parent, do not hear
  // them. One that makes no sense for a control of its kind throws std::logic_error.

  void MoveMouse(std::string_view name, Point at, bool left_down = false);
  // The pointer comes onto a control, or away from all. As on the real system the control that it
  // comes onto may hear of it before the one that it left.
  void PointAt(std::string_view name);
  void PointAway();
  void PressMouse(std::string_view name, Point at = {}, MouseButton button = MouseButton::kLeft);
  void ReleaseMouse(std::string_view name, Point at = {}, MouseButton button = MouseButton::kLeft);
  void DoubleClick(std::string_view name, Point at = {});
  void RightClick(std::string_view name, Point at = {});

  // A click on a button, a box, a text or a surface.
  void Press(std::string_view name);
  // Letter by letter, behind the text or in the place of what is selected.
  void Type(std::string_view name, std::string_view text);
  // In an edit or a painted button.
  void PressKey(std::string_view name, Key key);
  void Wheel(std::string_view name, int notches);
  // A row of a list, an item of a tree, a tab.
  void Choose(std::string_view name, int index);
  // Ticks a row of a check list, or takes the tick away.
  void Tick(std::string_view name, int row);
  // The slider of a track bar, as far as it goes.
  void Drag(std::string_view name, int position);

  // Keys in the window, wherever the keyboard is in it.
  void PressEnter(std::string_view window);
  void PressEsc(std::string_view window);
  void PressTab(std::string_view window, bool backwards = false);
  void PressCtrlTab(std::string_view window, bool backwards = false);
  // Alt and the letter that a control is marked with.
  void PressAlt(std::string_view window, char letter);
  // An arrow key, upwards or down.
  void PressArrow(std::string_view window, bool backwards = false);

  // Moves a top window by dragging, in one go from where it is.
  void Drag(std::string_view window, Point to);
  // Moves or sizes a top window, within its limits.
  void Place(std::string_view window, const Rect& bounds);
  void ClickCloseBox(std::string_view window);

  // The system's doings.
  void ChangeDpi(std::string_view window, int dpi, const Rect& bounds);
  // For all windows.
  void ChangeDisplay();
  void ChangeSettings();
  void Resume();
  void EndSession();

  // Visible or not, in order of creation.
  [[nodiscard]] std::vector<const WidgetState*> TopWindows() const;
  // Null when it is none of the program's.
  [[nodiscard]] WidgetState* OwnTopWindow(WindowId id);

  // Whether the system has layered windows.
  bool& layered_windows = desktop_.layered_windows;
  std::string application_title;
  bool taskbar_button = true;

 private:
  // The control, when the user can reach it and it is of this kind; else null.
  [[nodiscard]] WidgetState* Reach(std::string_view name);
  [[nodiscard]] WidgetState* Reach(std::string_view name, WidgetState::Kind kind);
  [[nodiscard]] WidgetState* ReachDialog(std::string_view window);
  void EnterLetter(WidgetState& edit, std::string_view letter);
  // Tells the window of a key; true when it is done with.
  bool Report(std::string_view window, const DialogKey& key);
  void ForAllWindows(const std::function<void(TopWindowEvents&)>& report);
};

}  // namespace platform::memory
