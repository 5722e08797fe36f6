// Windows and controls that record what is done to them and let tests play the user.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/memory/canvas.h"
#include "platform/other_windows.h"
#include "platform/windowing.h"

namespace platform::memory {

class Windowing;

// The state of a native control. Tests hold it through a reference that is good as long as the
// control lives.
struct WidgetState {
  enum class Kind { kTopWindow, kSurface, kText };

  Kind kind = Kind::kSurface;
  std::string name;
  std::string text;
  Rect bounds;
  Point client_origin;  // within the bounds: what the frame and caption take at left and top
  Size frame;           // what they take in all
  bool visible = false;
  bool enabled = true;
  bool focused = false;
  FontSpec font;
  Colour text_colour = colour::kWindowText;
  Colour background = colour::kButtonFace;
  WidgetEvents* events = nullptr;
  WidgetState* parent = nullptr;  // null for a top window
  // How often each was asked for or changed since the test last looked.
  int invalidated = 0;
  int text_changes = 0;

  // Top windows only.
  TopWindowParams params;
  TopWindowEvents* top_events = nullptr;
  TopWindow* window = nullptr;
  WidgetState* owner = nullptr;  // null for the application
  bool topmost = false;
  Size smallest;
  Size largest;
  Activation shown_with = Activation::kActivate;
  int dpi = 96;
  int drags = 0;
  bool dragging = false;
  std::optional<std::uint8_t> alpha;       // nothing: not a layered window
  std::vector<std::uint8_t> alphas;        // every one that was set
  std::optional<std::vector<Rect>> shape;  // nothing: the whole window
  int shape_changes = 0;
  int raised = 0;

  [[nodiscard]] Size ClientSize() const {
    return {bounds.width - frame.width, bounds.height - frame.height};
  }
  // The place on the screen of a point of its client area.
  [[nodiscard]] Point ToScreen(Point client) const;
  // Whether it and all its parents are visible.
  [[nodiscard]] bool OnScreen() const;
  // Its client area as the user sees it, children not included.
  [[nodiscard]] std::unique_ptr<Raster> Paint(Screen& screen) const;
};

class Windowing final : public platform::Windowing {
 public:
  explicit Windowing(Screen& screen) : screen_(screen) {}

  void SetApplicationTitle(std::string_view title) override { application_title = title; }
  void HideTaskbarButton() override { taskbar_button = false; }
  [[nodiscard]] std::unique_ptr<TopWindow> CreateTopWindow(const TopWindowParams& params,
                                                           TopWindow* owner,
                                                           TopWindowEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateSurface(Widget& parent, std::string_view name,
                                                      WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateText(Widget& parent, std::string_view name,
                                                   WidgetEvents& events) override;

  // The control with this name, in any window; throws std::out_of_range when there is none.
  [[nodiscard]] WidgetState& Find(std::string_view name);
  [[nodiscard]] bool Exists(std::string_view name) const;

  // The user's doings. Controls that are hidden or disabled, also through a parent, do not hear
  // them.
  void MoveMouse(std::string_view name, Point at, bool left_down = false);
  void DoubleClick(std::string_view name, Point at = {});
  void RightClick(std::string_view name, Point at = {});
  // The pointer comes onto a control, or away from all. As on the real system the control that it
  // comes onto may hear of it before the one that it left.
  void PointAt(std::string_view name);
  void PointAway();
  // Moves a top window by dragging, in one go from where it is.
  void Drag(std::string_view name, Point to);
  // Moves or sizes a top window as the user would, within its limits.
  void Place(std::string_view name, const Rect& bounds);
  void ClickCloseBox(std::string_view name);

  // Visible or not, in order of creation.
  [[nodiscard]] std::vector<const WidgetState*> TopWindows() const;
  // Null when it is none of the program's.
  [[nodiscard]] WidgetState* OwnTopWindow(WindowId id);

  // Whether the system has layered windows.
  bool layered_windows = true;
  std::string application_title;
  bool taskbar_button = true;

 private:
  friend class WidgetPeer;
  friend class TopWindowPeer;

  [[nodiscard]] bool Reachable(const WidgetState& state) const;

  Screen& screen_;
  WidgetState* pointed_at_ = nullptr;
  std::vector<WidgetState*> widgets_;  // in order of creation
};

}  // namespace platform::memory
