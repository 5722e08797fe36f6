#include "toolkit/controls/control.h"

#include <algorithm>

#include "toolkit/application.h"
#include "toolkit/design_pixels.h"
#include "toolkit/forms/form.h"
#include "toolkit/menus/popup_menu.h"

namespace toolkit {

Control::Control(Application& app, Control* parent, std::string_view name)
    : app_(app), parent_(parent), name_(name) {
  if (parent_ == nullptr) {
    visible_ = false;  // forms are shown when they are ready
    return;
  }
  parent_->children_.push_back(this);
  font_ = parent_->font_;
  colour_ = parent_->colour_;
}

Control::~Control() {
  app_.Hints().Forget(*this);
  if (parent_ != nullptr) std::erase(parent_->children_, this);
}

void Control::Attach(std::unique_ptr<platform::Widget> peer) {
  peer_ = std::move(peer);
  ApplyFont();
  ApplyColours();
}

void Control::Attach(PeerMaker make) {
  make_ = std::move(make);
  if (parent_->peer_ && !parent_->children_wait_) Realise();
}

void Control::AttachSurface(std::string_view name) {
  Attach([this, shown = std::string(name)](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateSurface(on, shown, *this);
  });
}

// What lies on it comes before its bounds, whose report places it.
void Control::Realise() {
  if (peer_ || !make_) return;
  Attach(make_(app_.Platform().windowing, *parent_->peer_));
  make_ = nullptr;
  if (!caption_.empty()) peer_->SetText(caption_);
  if (!enabled_) peer_->SetEnabled(false);
  if (!children_wait_) RealiseChildren(*this);
  if (align_ != Align::kNone) {
    ParentRearranges();
  } else if (bounds_ != platform::Rect{}) {
    ApplyBounds();
  }
  peer_->SetVisible(visible_);
  Realised();
}

void Control::RealiseChildren(Control& parent) {
  if (!parent.peer_) RealiseChildren(*parent.parent_);
  parent.children_wait_ = false;
  for (Control* child : parent.children_) child->Realise();
}

Form& Control::ParentForm() { return parent_->ParentForm(); }

void Control::SetBounds(const platform::Rect& bounds) {
  if (!Assign(bounds_, bounds)) return;
  if (align_ == Align::kNone) {
    ApplyBounds();
  } else {
    ParentRearranges();
  }
}

void Control::SetAlign(Align align) {
  if (Assign(align_, align)) ParentRearranges();
}

void Control::SetCaption(std::string_view caption) {
  if (!Assign(caption_, caption)) return;
  if (peer_) peer_->SetText(caption_);
  CaptionChanged();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  if (!visible) ParentForm().Keys().PassOn(*this);
  visible_ = visible;
  if (peer_) peer_->SetVisible(visible_);
  ParentRearranges();
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  if (!enabled) ParentForm().Keys().PassOn(*this);
  enabled_ = enabled;
  if (peer_) peer_->SetEnabled(enabled_);
  EnabledChanged();
}

void Control::SetFocus() {
  if (peer_) peer_->Focus();
}

void Control::SetColour(platform::Colour colour) {
  if (Assign(colour_, colour)) ApplyColours();
}

void Control::SetFontColour(platform::Colour colour) {
  if (Assign(font_colour_, colour)) ApplyColours();
}

void Control::SetFont(const platform::FontStyle& font) {
  if (Assign(font_, font)) ApplyFont();
}

void Control::SetHint(std::string_view hint) {
  if (!Assign(hint_, hint)) return;
  app_.Hints().TextChanged(*this);
  HintChanged();
}

void Control::Fire(const std::function<void()>& handler) {
  if (!handler) return;
  const std::function<void()> kept = handler;  // a copy: it may go with the control
  app_.Guard(kept);
}

void Control::Fire(const std::function<void(const platform::MouseEvent&)>& handler,
                   const platform::MouseEvent& event) {
  if (handler) Fire([handler, event] { handler(event); });
}

void Control::Invalidate() {
  if (peer_) peer_->Invalidate();
}

platform::Rect Control::OnScreen() const {
  if (!peer_) return {};
  const platform::Point origin = peer_->ToScreen({0, 0});
  const platform::Size size = peer_->ClientSize();
  return {origin.x, origin.y, size.width, size.height};
}

// What has no peer yet lies on a page, where nothing that holds others has a frame.
platform::Size Control::ClientPixels() const {
  if (peer_) return peer_->ClientSize();
  const int dpi = parent_->ParentForm().Dpi();
  return {ScaleTo(dpi, bounds_.width), ScaleTo(dpi, bounds_.height)};
}

int Control::Scale(int design_pixels) { return ScaleTo(ParentForm().Dpi(), design_pixels); }
int Control::Unscale(int pixels) { return UnscaleFrom(ParentForm().Dpi(), pixels); }
platform::Rect Control::Scale(const platform::Rect& design) {
  return {Scale(design.left), Scale(design.top), Scale(design.width), Scale(design.height)};
}
platform::FontStyle Control::Scale(const platform::FontStyle& design) {
  return {design.face, Scale(design.height), design.bold};
}

void Control::ApplyBounds() {
  if (parent_ == nullptr) return;
  platform::Rect bounds = Scale(bounds_);
  bounds.top -= parent_->ScrolledBy();
  PlacePixels(*this, bounds);
}

void Control::PlacePixels(const Control& control, const platform::Rect& pixels) {
  if (control.peer_) control.peer_->SetBounds(pixels);
}

void Control::PlaceChildren() {
  for (Control* child : children_) {
    if (child->align_ == Align::kNone) child->ApplyBounds();
  }
}

void Control::ApplyFont() {
  if (peer_) peer_->SetFont(Scale(font_));
}

void Control::ApplyColours() {
  if (peer_) peer_->SetColours(font_colour_, colour_);
}

void Control::ParentRearranges() {
  if (parent_ != nullptr) parent_->ArrangeChildren(parent_->ChildArea());
}

void Control::ArrangeChildren(const platform::Rect& area) {
  platform::Rect left = area;
  for (Control* child : children_) {
    if (child->align_ != Align::kBottom || !child->visible_) continue;
    const int height = std::min(Scale(child->bounds_.height), left.height);
    PlacePixels(*child, {left.left, left.Bottom() - height, left.width, height});
    left.height -= height;
  }
  for (Control* child : children_) {
    if (child->align_ == Align::kClient) PlacePixels(*child, left);
  }
}

platform::Rect Control::ChildArea() const {
  const platform::Size size = peer_ ? peer_->ClientSize() : platform::Size{};
  return {0, 0, size.width, size.height};
}

void Control::Rescale() {
  ApplyFont();
  if (align_ == Align::kNone) ApplyBounds();
  for (Control* child : children_) child->Rescale();
  ArrangeChildren(ChildArea());
}

void Control::OnPaint(platform::Canvas& canvas) {
  app_.Guard([&] { Paint(canvas); });
}

void Control::OnMouseMove(const platform::MouseEvent& event) { Fire(OnMouseMoved, event); }
void Control::OnMouseDown(const platform::MouseEvent& event) { Fire(OnMousePressed, event); }
void Control::OnMouseUp(const platform::MouseEvent& event) { Fire(OnMouseReleased, event); }
void Control::OnDoubleClick(const platform::MouseEvent& /*event*/) { Fire(OnDblClick); }

void Control::OnMouseEnter() {
  app_.Guard([&] { app_.Hints().PointerOn(*this); });
  Fire(OnMouseEntered);
}

void Control::OnMouseLeave() {
  app_.Guard([&] { app_.Hints().Forget(*this); });
  Fire(OnMouseLeft);
}

void Control::OnContextMenu(platform::Point screen) {
  app_.Guard([&] {
    for (Control* control = this; control != nullptr; control = control->parent_) {
      if (control->popup_menu_ == nullptr) continue;
      control->popup_menu_->Popup(screen);
      return;
    }
  });
}

void Control::OnClicked() {
  app_.Guard([&] { Clicked(); });
}

void Control::OnFocusChanged() {
  app_.Guard([&] { ParentForm().Keys().ShowWhatEnterPresses(); });
}

void Control::OnResize(platform::Size /*size*/) {
  app_.Guard([&] {
    ArrangeChildren(ChildArea());
    Resized();
  });
}

}  // namespace toolkit
