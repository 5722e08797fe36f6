#include "toolkit/forms/form.h"

#include "toolkit/application.h"

namespace toolkit {

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
  void OnCancelKey() override { OnClose(); }
  void OnMoving(platform::Rect& bounds) override {
    Tell([&bounds](FormComponent& part) { part.FormMoving(bounds); });
  }
  void OnDragEnded() override {
    Tell([](FormComponent& part) { part.FormDragEnded(); });
  }
  void OnPlaced() override {
    Tell([](FormComponent& part) { part.FormPlaced(); });
    Guarded([&] { form_.FormPlaced(); });
  }
  void OnDpiChanged(int /*dpi*/, const platform::Rect& bounds) override {
    Guarded([&] { form_.ChangeDpi(bounds); });
  }
  void OnDisplayChange() override {
    Tell([](FormComponent& part) { part.FormDisplayChanged(); });
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
    : Control(app, nullptr, params.name), owner_(owner), events_(std::make_unique<Events>(*this)) {
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
  Window().Show(activation);
  FormShow();
}

void Form::Close() { events_->OnClose(); }

void Form::SetClientSize(platform::Size design) {
  client_size_ = design;
  Window().SetClientSize({Scale(design.width), Scale(design.height)});
}

void Form::CentreOnScreen() {
  platform::Screen& screen = App().Platform().screen;
  const platform::Monitor monitor =
      owner_ != nullptr ? screen.MonitorOf(owner_->WindowBounds()) : screen.Monitors().front();
  const platform::Rect& work = monitor.work_area;
  const platform::Rect own = WindowBounds();
  SetWindowBounds({work.left + (work.width - own.width) / 2,
                   work.top + (work.height - own.height) / 2, own.width, own.height});
}

void Form::Hide() { Window().SetVisible(false); }

void Form::EndModal(ModalResult result) { App().Modals().End(*this, result); }

void Form::FormClose() {
  if (App().Modals().Top() == this) {
    EndModal(ModalResult::kCancel);
  } else {
    Hide();
  }
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

}  // namespace toolkit
