// The base of all controls: properties, events, placement. A control is portable; a native peer
// shows it. Positions and sizes are design pixels (at 96 dpi) unless a name says otherwise.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/widget.h"

namespace platform {
class Windowing;
}

namespace toolkit {

class Application;
class DialogKeys;
class Form;
class PopupMenu;

// What a control is to the keys of its form (toolkit/forms/dialog_keys.h).
enum class KeyRole {
  kNone,
  kStop,   // Tab stops at it
  kPush,   // and Enter presses it
  kRadio,  // one of several between which the arrow keys move
};

enum class Align {
  kNone,
  kBottom,  // at the lower edge of the area that is left, over its whole width
  kClient,  // fills the area that is left
};

// On a page that has not been seen a control has no peer yet: what is set is kept, and the peer
// gets it all when the page is shown. So a form of many pages opens in the time that its first one
// takes.
//
// Setting a property to the value that it has does nothing. A changed value fires the change
// handler (OnClick of boxes, OnChange of the others), whether the user or the code changed it; a
// form gives its controls the values of their design before it connects the handlers.
//
// The keyboard goes through the controls of a form in the order in which they were made: the
// members of a form are declared in that order.
class Control : protected platform::WidgetEvents {
 public:
  ~Control() override;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] Application& App() const { return app_; }
  // Returns the form that the control lies on; for a form, the form itself.
  [[nodiscard]] virtual Form& ParentForm();
  // Returns null for a form.
  [[nodiscard]] Control* Parent() const { return parent_; }
  // Returns the controls that lie on this one, in order of creation.
  [[nodiscard]] const std::vector<Control*>& Children() const { return children_; }
  [[nodiscard]] virtual KeyRole Role() const { return KeyRole::kNone; }
  // Whether "&" in its caption marks a key.
  [[nodiscard]] virtual bool MarksKey() const { return false; }
  // Made of controls that it places by itself.
  [[nodiscard]] virtual bool IsComposite() const { return false; }

  [[nodiscard]] const platform::Rect& Bounds() const { return bounds_; }
  void SetBounds(const platform::Rect& bounds);
  void SetAlign(Align align);
  [[nodiscard]] Align Alignment() const { return align_; }

  // The text that the control shows and that screen readers say.
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  [[nodiscard]] bool Visible() const { return visible_; }
  // Hiding or disabling what has the keyboard passes it on to the control that follows in the order
  // of Tab.
  void SetVisible(bool visible);
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  // Puts the keyboard into it; not while it, or what it lies on, is hidden or disabled.
  virtual void SetFocus();
  // Whether the keyboard is in it or in something that lies on it.
  [[nodiscard]] bool Focused() const { return peer_ && peer_->HasFocus(); }

  // The background colour. Controls without a background of their own start with that of their
  // parent.
  [[nodiscard]] platform::Colour Colour() const { return colour_; }
  void SetColour(platform::Colour colour);
  [[nodiscard]] platform::Colour FontColour() const { return font_colour_; }
  void SetFontColour(platform::Colour colour);
  // The font; its `height` is in design pixels. A control starts with the font of its parent.
  [[nodiscard]] const platform::FontStyle& Font() const { return font_; }
  void SetFont(const platform::FontStyle& font);

  // The text that the hint window shows while the pointer rests on the control; empty for none.
  [[nodiscard]] const std::string& Hint() const { return hint_; }
  void SetHint(std::string_view hint);

  // Sets the menu that a right click or the menu key opens. A control without a menu opens that of
  // its parent. The menu is not owned.
  void SetPopupMenu(PopupMenu* menu) { popup_menu_ = menu; }

  // Asks for a repaint.
  void Invalidate();
  // Returns the place of the client area on the screen, in real pixels; nothing without a peer.
  [[nodiscard]] platform::Rect OnScreen() const;
  // Returns the size of the client area in real pixels.
  [[nodiscard]] platform::Size ClientPixels() const;
  // Convert design pixels into real pixels, and back, at the resolution of the control's form.
  [[nodiscard]] int Scale(int design_pixels);
  [[nodiscard]] int Unscale(int pixels);
  [[nodiscard]] platform::Rect Scale(const platform::Rect& design);
  [[nodiscard]] platform::FontStyle Scale(const platform::FontStyle& design);

  int Tag = 0;

  // Every handler runs inside the application's guard.
  std::function<void()> OnClick;
  std::function<void()> OnDblClick;
  std::function<void(const platform::MouseEvent&)> OnMouseMoved;
  std::function<void(const platform::MouseEvent&)> OnMousePressed;
  std::function<void(const platform::MouseEvent&)> OnMouseReleased;
  std::function<void()> OnMouseEntered;
  std::function<void()> OnMouseLeft;

 protected:
  // Makes the peer on that of the parent.
  using PeerMaker = std::function<std::unique_ptr<platform::Widget>(platform::Windowing& windowing,
                                                                    platform::Widget& parent)>;

  // `parent` is null for a form. Attach follows, before anything else is called.
  Control(Application& app, Control* parent, std::string_view name);
  Control(Control& parent, std::string_view name) : Control(parent.app_, &parent, name) {}

  // Of a form: takes the peer.
  void Attach(std::unique_ptr<platform::Widget> peer);
  // Of all others: makes the peer, or does so when the page that they lie on is shown.
  void Attach(PeerMaker make);
  // The same for a control that the program paints, as an area of this name (Windowing).
  void AttachSurface(std::string_view name);
  // Returns the peer, or null while there is none.
  [[nodiscard]] platform::Widget* Peer() const { return peer_.get(); }
  // Destroys the peer; a class whose members hear its reports does so before they go.
  void Detach() { peer_.reset(); }
  // Gives the peer, if there is one, its bounds on that of the parent, in real pixels.
  static void PlacePixels(const Control& control, const platform::Rect& pixels);

  // What lies on it gets no peers until RealiseChildren; called before anything lies on it.
  void LetChildrenWait() { children_wait_ = true; }
  // Gives what lies on `parent` its peers, if it has none yet. Throws std::runtime_error when the
  // system refuses one.
  static void RealiseChildren(Control& parent);
  // It has a peer now, which has the properties of all controls: gives it those of its kind.
  virtual void Realised() {}

  // Gives a property a value. Returns whether that changed the property.
  template <class Property, class Value>
  [[nodiscard]] static bool Assign(Property& property, const Value& value) {
    if (property == value) return false;
    property = value;
    return true;
  }
  // Runs a handler, if there is one, inside the guard. The handler may destroy the control.
  void Fire(const std::function<void()>& handler);
  void Fire(const std::function<void(const platform::MouseEvent&)>& handler,
            const platform::MouseEvent& event);

  // Places the children that have an Align in `area` (real pixels), in order of creation, those of
  // kClient last; of these the hidden ones too, so that nothing moves when they are shown.
  void ArrangeChildren(const platform::Rect& area);
  // Returns the area that is left for children; a panel's bevels are outside of it.
  [[nodiscard]] virtual platform::Rect ChildArea() const;
  // Returns the real pixels by which the children are scrolled upwards.
  [[nodiscard]] virtual int ScrolledBy() const { return 0; }
  // Gives the children their bounds anew.
  void PlaceChildren();
  // Gives the peer its bounds and font anew after the resolution changed.
  virtual void Rescale();
  // Is called when the size of the client area, in real pixels, changed.
  virtual void Resized() {}
  // Paints the control, if the program paints it; it runs inside the guard. The canvas has the size
  // of the client area.
  virtual void Paint(platform::Canvas& /*canvas*/) {}
  // The keyboard came to it by Tab.
  virtual void ReachedByTab() {}
  // A key presses it, as a click does.
  virtual void PressByKey() {}
  // The user has clicked it.
  virtual void Clicked() { Fire(OnClick); }
  // Are called when the property was changed.
  virtual void CaptionChanged() {}
  virtual void EnabledChanged() {}
  virtual void HintChanged() {}

  // Its name is its caption, else the caption of the label that leads to it, else its hint; what
  // has the keyboard and none of them is called as its form. The hint describes it.
  [[nodiscard]] platform::Spoken Describe() const override;

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
  void OnFocusChanged() override;

 private:
  friend class DialogKeys;

  void Realise();
  void ApplyBounds();
  void ApplyFont();
  void ApplyColours();
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
  platform::FontStyle font_;
  std::string hint_;
  PopupMenu* popup_menu_ = nullptr;
  bool children_wait_ = false;
  PeerMaker make_;                          // until there is a peer
  std::unique_ptr<platform::Widget> peer_;  // null until its page is shown
};

// A control whose peer can do more than every widget: the function that Attach gets makes a `Kind`.
template <class Kind>
class ControlOf : public Control {
 protected:
  ControlOf(Control& parent, std::string_view name) : Control(parent, name) {}

  // Returns the peer, or null while there is none.
  [[nodiscard]] Kind* Peer() const { return static_cast<Kind*>(Control::Peer()); }
};

}  // namespace toolkit
