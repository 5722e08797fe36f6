// The base of all controls: properties, events, placement. A control is portable; a native peer
// shows it. Positions and sizes are design pixels (at 96 dpi) unless a name says otherwise.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/widget.h"

namespace toolkit {

class Application;
class Form;
class PopupMenu;

enum class Align {
  kNone,
  kBottom,  // the whole width of what is left, at the lower edge
  kClient,  // all that is left
};

// Setting a property to the value that it has does nothing. A changed value fires the change
// handler (OnClick of boxes, OnChange of the others), whether the user or the code changed it; a
// form gives its controls the values of their design before it connects the handlers.
//
// The keyboard goes through the controls of a form in the order in which they were made: members of
// a form are declared in that order.
class Control : protected platform::WidgetEvents {
 public:
  ~Control() override;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] Application& App() const { return app_; }
  // The form it lies on; itself for a form.
  [[nodiscard]] virtual Form& ParentForm();
  // Null for a form.
  [[nodiscard]] Control* Parent() const { return parent_; }
  // What lies on it, in order of creation.
  [[nodiscard]] const std::vector<Control*>& Children() const { return children_; }
  // Made of controls that it places by itself.
  [[nodiscard]] virtual bool IsComposite() const { return false; }

  [[nodiscard]] const platform::Rect& Bounds() const { return bounds_; }
  void SetBounds(const platform::Rect& bounds);
  void SetAlign(Align align);
  [[nodiscard]] Align Alignment() const { return align_; }

  // The text it shows and is known by to screen readers.
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  // Puts the keyboard into it; not while it, or what it lies on, is hidden or disabled.
  virtual void SetFocus() { peer_->Focus(); }
  // Whether the keyboard is in it or in something that lies on it.
  [[nodiscard]] bool Focused() const { return peer_->HasFocus(); }

  // Background; at first that of its parent, for what shows its parent's.
  [[nodiscard]] platform::Colour Colour() const { return colour_; }
  void SetColour(platform::Colour colour);
  [[nodiscard]] platform::Colour FontColour() const { return font_colour_; }
  void SetFontColour(platform::Colour colour);
  // `height` is in design pixels. At first that of its parent.
  [[nodiscard]] const platform::FontSpec& Font() const { return font_; }
  void SetFont(const platform::FontSpec& font);

  // Shown in the hint window while the pointer rests on it; empty for none.
  [[nodiscard]] const std::string& Hint() const { return hint_; }
  void SetHint(std::string_view hint);

  // Opened by a right click or the menu key on it or, where it has none, its parent's. Not owned.
  void SetPopupMenu(PopupMenu* menu) { popup_menu_ = menu; }

  // Asks for a repaint.
  void Invalidate();
  // Where its client area is on the screen, in real pixels.
  [[nodiscard]] platform::Rect OnScreen() const;
  // Its client area in real pixels.
  [[nodiscard]] platform::Size ClientPixels() const;
  // Real pixels for so many design pixels, at the resolution of its form.
  [[nodiscard]] int Scale(int design_pixels);
  [[nodiscard]] int Unscale(int pixels);
  [[nodiscard]] platform::Rect Scale(const platform::Rect& design);
  [[nodiscard]] platform::FontSpec Scale(const platform::FontSpec& design);

  int Tag = 0;

  // Every one runs inside the application's guard.
  std::function<void()> OnClick;
  std::function<void()> OnDblClick;
  std::function<void(const platform::MouseEvent&)> OnMouseMoved;
  std::function<void(const platform::MouseEvent&)> OnMousePressed;
  std::function<void(const platform::MouseEvent&)> OnMouseReleased;
  std::function<void()> OnMouseEntered;
  std::function<void()> OnMouseLeft;

 protected:
  // `parent` is null for a form. The peer follows with Attach, before anything else is called.
  Control(Application& app, Control* parent, std::string_view name);

  // Takes the native peer and gives it the present properties.
  void Attach(std::unique_ptr<platform::Widget> peer);
  // Destroys the peer; a class whose members hear its reports does so before they go.
  void Detach() { peer_.reset(); }
  [[nodiscard]] platform::Widget& Peer() const { return *peer_; }
  [[nodiscard]] static platform::Widget& PeerOf(const Control& control) { return *control.peer_; }

  // Runs a handler, if there is one, inside the guard. The handler may destroy the control.
  void Fire(const std::function<void()>& handler);

  // Places the children with an Align in `area` (real pixels), in order of creation, the client one
  // last.
  void ArrangeChildren(const platform::Rect& area);
  // What is left for children; the panel's bevels are outside of it.
  [[nodiscard]] virtual platform::Rect ChildArea() const;
  // Real pixels by which what lies on it is pushed upwards.
  [[nodiscard]] virtual int ScrolledBy() const { return 0; }
  // Gives the children their bounds anew.
  void PlaceChildren();
  // The resolution changed: bounds and font are given to the peer anew.
  virtual void Rescale();
  // The pixels of the client area changed.
  virtual void Resized() {}
  // Paints what the program paints of it, inside the guard; the canvas has the client area.
  virtual void Paint(platform::Canvas& /*canvas*/) {}
  // The user has clicked it.
  virtual void Clicked() { Fire(OnClick); }
  // A property was changed.
  virtual void CaptionChanged() {}
  virtual void EnabledChanged() {}
  virtual void HintChanged() {}

  // platform::WidgetEvents
  void OnPaint(platform::Canvas& canvas) final;
  void OnMouseMove(const platform::MouseEvent& event) override;
  void OnMouseDown(const platform::MouseEvent& event) override;
  void OnMouseUp(const platform::MouseEvent& event) override;
  void OnDoubleClick(const platform::MouseEvent& event) override;
  void OnMouseEnter() override;
  void OnMouseLeave() override;
  void OnContextMenu(platform::Point screen) override;
  void OnResize(platform::Size size) override;
  void OnClicked() override;

 private:
  void ApplyBounds();
  void ApplyFont();
  void ParentRearranges();

  Application& app_;
  Control* parent_;
  std::string name_;
  std::vector<Control*> children_;
  platform::Rect bounds_;
  Align align_ = Align::kNone;
  std::string caption_;
  bool visible_ = true;
  bool enabled_ = true;
  platform::Colour colour_ = platform::colour::kButtonFace;
  platform::Colour font_colour_ = platform::colour::kWindowText;
  platform::FontSpec font_;
  std::string hint_;
  PopupMenu* popup_menu_ = nullptr;
  std::unique_ptr<platform::Widget> peer_;
};

}  // namespace toolkit
