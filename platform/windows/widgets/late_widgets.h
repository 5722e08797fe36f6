// Widgets on a hidden page. They get their windows when the page is shown, or before that as soon
// as nothing else is to be done: a window of many pages opens in the time that its first page
// takes, and a moment later every control is there for screen readers all the same.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls.h"
#include "platform/timers.h"

namespace platform::windows {

class LateWidget;
class Surface;

// The late widgets of the program that are still to be made.
class LateWidgets {
 public:
  // `timers` outlives this.
  explicit LateWidgets(platform::Timers& timers) : timers_(timers) {}

  // From here on it waits. Should the system refuse a timer (SetTimer), then until its page is
  // shown.
  void Add(LateWidget& widget);
  // It waits no more: it is made, or goes.
  void Remove(LateWidget& widget) { std::erase(waiting_, &widget); }
  // Makes those of `page`, in the order in which they were added: that of Tab. Throws
  // std::runtime_error when the system refuses a window; that widget stays without one.
  void MakeAllOf(const Surface& page);
  // `page` goes; what waits for it is not made any more.
  void Forget(const Surface& page);

 private:
  void MakeSome();
  void Make(LateWidget& widget);

  platform::Timers& timers_;
  std::vector<LateWidget*> waiting_;       // not owned
  std::unique_ptr<platform::Timer> idle_;  // while some wait
};

class LateWidget {
 public:
  virtual ~LateWidget() { queue_.Remove(*this); }
  LateWidget(const LateWidget&) = delete;
  LateWidget& operator=(const LateWidget&) = delete;

  // The page whose being shown it waits for; null when that is gone.
  [[nodiscard]] Surface* Page() const { return page_; }
  // What it is once it has been made; null until then.
  [[nodiscard]] virtual Widget* Made() const = 0;
  // Makes it and the others of its page, if it has not been made; throws std::runtime_error when
  // the system refuses its window.
  void Need() const;

 protected:
  LateWidget(LateWidgets& queue, Surface& page) : queue_(queue), page_(&page) { queue_.Add(*this); }

  virtual void Make() = 0;

 private:
  friend class LateWidgets;

  LateWidgets& queue_;
  Surface* page_;
};

// Stands for a widget that `make` makes later: what is set is kept until then, what is asked makes
// it.
template <class Interface>
class LateOf : public Interface, public LateWidget {
 public:
  using Maker = std::function<std::unique_ptr<Interface>()>;

  LateOf(LateWidgets& queue, Surface& page, Maker make)
      : LateWidget(queue, page), make_(std::move(make)) {}

  void SetText(std::string_view text) override {
    Set([text = std::string(text)](Interface& made) { made.SetText(text); });
  }
  [[nodiscard]] std::string Text() const override { return Now().Text(); }
  void SetBounds(const Rect& bounds) override {
    bounds_ = bounds;
    Set([bounds](Interface& made) { made.SetBounds(bounds); });
  }
  [[nodiscard]] Rect Bounds() const override { return Now().Bounds(); }
  // Asked for what lies on it, and what holds other widgets has no frame.
  [[nodiscard]] Size ClientSize() const override {
    return made_ ? made_->ClientSize() : Size{bounds_.width, bounds_.height};
  }
  void SetVisible(bool visible) override {
    Set([visible](Interface& made) { made.SetVisible(visible); });
  }
  [[nodiscard]] bool Visible() const override { return Now().Visible(); }
  void SetEnabled(bool enabled) override {
    Set([enabled](Interface& made) { made.SetEnabled(enabled); });
  }
  [[nodiscard]] bool Enabled() const override { return Now().Enabled(); }
  void SetFont(const FontSpec& font) override {
    Set([font](Interface& made) { made.SetFont(font); });
  }
  void SetColours(Colour text, Colour background) override {
    Set([text, background](Interface& made) { made.SetColours(text, background); });
  }
  // It lies on what is hidden, so the keyboard does not come to it.
  void Focus() override {
    if (made_) made_->Focus();
  }
  [[nodiscard]] bool HasFocus() const override { return made_ && made_->HasFocus(); }
  void Invalidate() override {
    if (made_) made_->Invalidate();
  }
  [[nodiscard]] Point ToScreen(Point client) const override { return Now().ToScreen(client); }

  [[nodiscard]] Widget* Made() const override { return made_.get(); }

 protected:
  template <class Call>
  void Set(Call call) {
    if (made_ && kept_.empty()) {
      call(*made_);
    } else {
      kept_.push_back(std::move(call));
    }
  }

  [[nodiscard]] Interface& Now() const {
    Need();
    return *made_;
  }

  void Make() override {
    made_ = make_();
    // A report of a new size may set something: it comes behind what was set before.
    for (std::size_t i = 0; i < kept_.size(); ++i) {
      const auto call = std::move(kept_[i]);
      call(*made_);
    }
    kept_ = {};
    make_ = nullptr;
  }

 private:
  Maker make_;
  std::vector<std::function<void(Interface&)>> kept_;  // in the order of the calls
  Rect bounds_;
  std::unique_ptr<Interface> made_;
};

class LateButton final : public LateOf<Button> {
 public:
  using LateOf::LateOf;
  void SetChecked(bool checked) override {
    Set([checked](Button& made) { made.SetChecked(checked); });
  }
  [[nodiscard]] bool Checked() const override { return Now().Checked(); }
  void SetDefault(bool is_default) override {
    Set([is_default](Button& made) { made.SetDefault(is_default); });
  }
};

class LateEdit final : public LateOf<Edit> {
 public:
  using LateOf::LateOf;
  void SetMaxLength(int characters) override {
    Set([characters](Edit& made) { made.SetMaxLength(characters); });
  }
  void SetReadOnly(bool read_only) override {
    Set([read_only](Edit& made) { made.SetReadOnly(read_only); });
  }
  void SelectAll() override {
    Set([](Edit& made) { made.SelectAll(); });
  }
};

class LateList final : public LateOf<ItemList> {
 public:
  using LateOf::LateOf;
  void SetItems(std::span<const std::string> items) override {
    Set([items = std::vector<std::string>(items.begin(), items.end())](ItemList& made) {
      made.SetItems(items);
    });
  }
  [[nodiscard]] int Count() const override { return Now().Count(); }
  void SetIndex(int index) override {
    Set([index](ItemList& made) { made.SetIndex(index); });
  }
  [[nodiscard]] int Index() const override { return Now().Index(); }
  void SetChecked(int row, bool checked) override {
    Set([row, checked](ItemList& made) { made.SetChecked(row, checked); });
  }
  [[nodiscard]] bool Checked(int row) const override { return Now().Checked(row); }
};

class LateTrackBar final : public LateOf<TrackBar> {
 public:
  using LateOf::LateOf;
  void SetRange(int lowest, int highest, int page) override {
    Set([=](TrackBar& made) { made.SetRange(lowest, highest, page); });
  }
  void SetPosition(int position) override {
    Set([position](TrackBar& made) { made.SetPosition(position); });
  }
  [[nodiscard]] int Position() const override { return Now().Position(); }
};

class LateProgressBar final : public LateOf<ProgressBar> {
 public:
  using LateOf::LateOf;
  void SetRange(int lowest, int highest) override {
    Set([=](ProgressBar& made) { made.SetRange(lowest, highest); });
  }
  void SetPosition(int position) override {
    Set([position](ProgressBar& made) { made.SetPosition(position); });
  }
};

}  // namespace platform::windows
