// Windows and controls that record what is done to them and let tests play the user.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/memory/peers.h"
#include "platform/other_windows.h"
#include "platform/windowing.h"

namespace platform::memory {

class Windowing final : public platform::Windowing, public Desktop {
 public:
  using Desktop::Desktop;

  void SetApplicationTitle(std::string_view title) override { application_title = title; }
  void HideTaskbarButton() override { taskbar_button = false; }
  std::unique_ptr<TopWindow> CreateTopWindow(const TopWindowParams& params, TopWindow* /*owner*/,
                                             TopWindowEvents& events) override {
    return std::make_unique<TopWindowPeer>(*this, params, events);
  }
  std::unique_ptr<Widget> CreateSurface(Widget& parent, std::string_view name,
                                        WidgetEvents& events) override {
    return Make<PeerOf<Widget>>(Kind::kSurface, parent, name, events);
  }
  std::unique_ptr<Widget> CreateText(Widget& parent, std::string_view name, const TextStyle& style,
                                     WidgetEvents& events) override {
    auto text = Make<PeerOf<Widget>>(Kind::kText, parent, name, events);
    text->text_style = style;
    if (style.border == Border::kSunken) text->Sink(1);
    return text;
  }
  std::unique_ptr<Button> CreateButton(Widget& parent, std::string_view name, ButtonKind kind,
                                       WidgetEvents& events) override {
    auto button = Make<ButtonPeer>(Kind::kButton, parent, name, events);
    button->button = kind;
    return button;
  }
  std::unique_ptr<Edit> CreateEdit(Widget& parent, std::string_view name, const EditStyle& style,
                                   WidgetEvents& events) override {
    auto edit = Make<EditPeer>(Kind::kEdit, parent, name, events);
    edit->edit = style;
    if (style.border == Border::kSunken) edit->Sink(2);
    return edit;
  }
  std::unique_ptr<ItemList> CreateList(Widget& parent, std::string_view name, ListKind kind,
                                       WidgetEvents& events) override {
    auto list = Make<ListPeer>(Kind::kList, parent, name, events);
    list->list = kind;
    return list;
  }
  std::unique_ptr<Tree> CreateTree(Widget& parent, std::string_view name,
                                   WidgetEvents& events) override {
    return Make<TreePeer>(Kind::kTree, parent, name, events);
  }
  std::unique_ptr<Tabs> CreateTabs(Widget& parent, std::string_view name,
                                   WidgetEvents& events) override {
    return Make<TabsPeer>(Kind::kTabs, parent, name, events);
  }
  std::unique_ptr<TrackBar> CreateTrackBar(Widget& parent, std::string_view name,
                                           WidgetEvents& events) override {
    return Make<TrackBarPeer>(Kind::kTrackBar, parent, name, events);
  }
  std::unique_ptr<ProgressBar> CreateProgressBar(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) override {
    return Make<ProgressBarPeer>(Kind::kProgressBar, parent, name, events);
  }

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
  void PressEsc(std::string_view window) { Report(window, {DialogKey::Kind::kEscape}); }
  void PressTab(std::string_view window, bool backwards = false) {
    Report(window, {DialogKey::Kind::kTab, backwards});
  }
  void PressCtrlTab(std::string_view window, bool backwards = false) {
    Report(window, {DialogKey::Kind::kControlTab, backwards});
  }
  // Alt and the letter that a control is marked with.
  void PressAlt(std::string_view window, char letter) {
    Report(window, {DialogKey::Kind::kLetter, false, std::string(1, letter)});
  }
  // An arrow key, upwards or down.
  void PressArrow(std::string_view window, bool backwards = false);

  // Moves a top window by dragging, in one go from where it is.
  void Drag(std::string_view window, Point to);
  // Moves or sizes a top window, within its limits.
  void Place(std::string_view window, const Rect& bounds) {
    Find(window).window->SetBounds(bounds);
  }
  void ClickCloseBox(std::string_view window);

  // The system's doings.
  void ChangeDpi(std::string_view window, int dpi, const Rect& bounds);
  // Tells all windows, such as of OnResume.
  void Tell(void (TopWindowEvents::*report)());

  // Visible or not, in order of creation.
  [[nodiscard]] std::vector<WidgetState*> TopWindows() const;

  std::string application_title;
  bool taskbar_button = true;

 private:
  using Kind = WidgetState::Kind;

  template <class PeerKind>
  std::unique_ptr<PeerKind> Make(Kind kind, Widget& parent, std::string_view name,
                                 WidgetEvents& events) {
    return std::make_unique<PeerKind>(*this, kind, name, &dynamic_cast<WidgetState&>(parent),
                                      events);
  }
  // The control, when the user can reach it and it is of this kind; else null.
  [[nodiscard]] WidgetState* Reach(std::string_view name);
  [[nodiscard]] WidgetState* Reach(std::string_view name, Kind kind);
  [[nodiscard]] WidgetState* ReachDialog(std::string_view window);
  void EnterLetter(WidgetState& edit, std::string_view letter);
  // Tells the window of a key; true when it is done with.
  bool Report(std::string_view window, const DialogKey& key);
};

}  // namespace platform::memory
