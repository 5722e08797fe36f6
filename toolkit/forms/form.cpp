#include "toolkit/forms/form.h"

#include <algorithm>

#include "toolkit/application.h"

namespace toolkit {
namespace {

constexpr int kScrollLine = 16;  // design pixels

}  // namespace

class Form::Events final : public platform::TopWindowEvents {
 public:
  explicit Events(Form& form) : form_(form) {}

  void OnPaint(platform::Canvas& canvas) override {
    Guarded([&] { form_.FormPaint(canvas); });
  }
  void OnMouseMove(const platform::MouseEvent& event) override { form_.OnMouseMove(event); }
  void OnMouseUp(const platform::MouseEvent& event) override { form_.OnMouseUp(event); }
  void OnDoubleClick(const platform::MouseEvent& event) override { form_.OnDoubleClick(event); }
  void OnClicked() override { form_.OnClicked(); }
  void OnMouseEnter() override { form_.OnMouseEnter(); }
  void OnMouseLeave() override { form_.OnMouseLeave(); }
  void OnContextMenu(platform::Point screen) override { form_.OnContextMenu(screen); }
  void OnResize(platform::Size size) override { form_.OnResize(size); }
  void OnClose() override {
    Tell([](FormComponent& part) { part.FormClosing(); });
    Guarded([&] { form_.FormClose(); });
  }
  bool OnDialogKey(const platform::DialogKey& key) override {
    bool done = true;
    Guarded([&] { done = form_.keys_.Press(key); });
    return done;
  }
  void OnFocusWanted() override {
    Guarded([&] { form_.keys_.FocusFirst(); });
  }
  void OnMoving(platform::Rect& bounds) override {
    Tell([&bounds](FormComponent& part) { part.FormMoving(bounds); });
  }
  void OnDragEnded() override {
    Guarded([&] { form_.Settle(); });
    Tell([](FormComponent& part) { part.FormDragEnded(); });
  }
  void OnScroll(int position) override {
    Guarded([&] { form_.ScrollTo(position); });
  }
  void OnFocusMoved(const platform::Rect& area) override {
    const platform::Scroll& scroll = form_.scroll_;
    Guarded([&] {
      form_.ScrollTo(
          ScrolledToShow(scroll, area.top + scroll.position, area.Bottom() + scroll.position));
    });
  }
  void OnPlaced() override {
    Tell([](FormComponent& part) { part.FormPlaced(); });
    Guarded([&] { form_.FormPlaced(); });
  }
  void OnDpiChanged(const platform::Rect& bounds) override {
    Guarded([&] { form_.ChangeDpi(bounds); });
  }
  void OnDisplayChange() override {
    Tell([](FormComponent& part) { part.FormDisplayChanged(); });
    Guarded([&] { form_.Settle(); });
    Guarded([&] { form_.FormDisplayChange(); });
  }
  void OnResume() override {
    Guarded([&] { form_.FormResumed(); });
  }
  void OnEndSession() override {
    Tell([](FormComponent& part) { part.FormSessionEnds(); });
    Guarded([&] { form_.FormEndSession(); });
  }
  void OnSettingChange() override {
    Guarded([&] { form_.FormSettingChange(); });
  }

 private:
  template <class Handler>
  void Guarded(const Handler& handler) {
    form_.App().Guard(handler);
  }

  template <class Call>
  void Tell(const Call& call) {
    for (FormComponent* part : form_.components_) Guarded([&] { call(*part); });
  }

  Form& form_;
};

Form::Form(Application& app, const platform::TopWindowParams& params, Form* owner)
    : Control(app, nullptr, params.name),
      held_by_(params.bare_popup ? Hold::kAnywhere : Hold::kCaption),
      owner_(owner),
      events_(std::make_unique<Events>(*this)) {
  auto window = app.Platform().windowing.CreateTopWindow(
      params, owner != nullptr ? &owner->Window() : nullptr, *events_);
  window_ = window.get();
  Attach(std::move(window));
  SetCaption(params.caption);
  app.forms_.push_back(this);
}

Form::Form(Application& app, std::string_view name, platform::Frame frame)
    : Form(app, {std::string(name), {}, frame, false}) {}

Form::~Form() {
  App().Modals().Forget(*this);
  std::erase(App().forms_, this);
  Detach();
}

void Form::Show(platform::Activation activation) {
  Settle();
  const std::vector<Form*>& forms = App().Forms();
  const bool any_topmost = std::any_of(forms.begin(), forms.end(),
                                       [](const Form* form) { return form->Window().Topmost(); });
  if (any_topmost && !Window().Topmost()) Window().SetTopmost(true);
  Window().Show(activation);
  FormShow();
}

void Form::SetTopmost(bool topmost) {
  Window().SetTopmost(topmost);
  for (Form* form : App().Forms()) {
    if (form != this) form->Window().SetTopmost(topmost);
  }
}

void Form::Close() { events_->OnClose(); }

void Form::SetClientSize(platform::Size design) {
  client_size_ = design;
  FitToScreen();
  const platform::Rect own = WindowBounds();
  if (!Window().Dragging()) SetWindowBounds(BroughtIntoView(own, App().Platform().screen));
}

void Form::FitToScreen() {
  if (!client_size_) return;
  const platform::Size whole{Scale(client_size_->width), Scale(client_size_->height)};
  // A window without an inside tells nothing of its frame.
  if (ClientPixels().height == 0) Window().SetClientSize(whole);
  const platform::Rect own = WindowBounds();
  const int frame = own.height - ClientPixels().height;
  const int room = App().Platform().screen.MonitorOf(own).work_area.height - frame;
  scroll_ = {whole.height, std::min(whole.height, room), scroll_.position, Scale(kScrollLine)};
  ScrollTo(scroll_.position);
  Window().SetClientSize({whole.width, scroll_.page});
}

void Form::ScrollTo(int position) {
  scroll_.position = std::clamp(position, 0, scroll_.content - scroll_.page);
  Window().SetScroll(scroll_);
  PlaceChildren();
}

void Form::CentreOnScreen() {
  platform::Screen& screen = App().Platform().screen;
  const platform::Monitor monitor =
      owner_ != nullptr ? screen.MonitorOf(owner_->WindowBounds()) : screen.Monitors().front();
  platform::Rect own = WindowBounds();
  SetWindowBounds({monitor.work_area.left, monitor.work_area.top, own.width, own.height});
  FitToScreen();
  own = WindowBounds();
  SetWindowBounds(Centred({own.width, own.height}, monitor));
}

void Form::Settle() {
  FitToScreen();
  platform::Screen& screen = App().Platform().screen;
  const platform::Rect own = WindowBounds();
  if (!InSight(own, held_by_, screen.Monitors())) SetWindowBounds(BroughtIntoView(own, screen));
}

void Form::Hide() { Window().SetVisible(false); }

void Form::EndModal(ModalResult result) { App().Modals().End(*this, result); }

void Form::FormClose() {
  if (!App().Modals().Cancel(*this)) Hide();
}

void Form::FormPaint(platform::Canvas& canvas) {
  const platform::Size size = canvas.Extent();
  canvas.Fill({0, 0, size.width, size.height}, Colour());
}

void Form::Resized() { FormResize(); }

void Form::ChangeDpi(const platform::Rect& bounds) {
  FormDpiChanged();  // sets the limits that the new size has to keep to
  SetWindowBounds(bounds);
  if (client_size_) SetClientSize(*client_size_);  // that of the frame is not in proportion
  Rescale();
}

FormComponent::FormComponent(Form& form) : form_(form) { form_.components_.push_back(this); }

FormComponent::~FormComponent() { std::erase(form_.components_, this); }

}  // namespace toolkit
