#include "toolkit/hint_window.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/text.h"
#include "toolkit/application.h"
#include "toolkit/controls/control.h"
#include "toolkit/design_pixels.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

constexpr int kShortestTimer = 10;  // ms, what the system can do
constexpr int kMargin = 3;          // design pixels between frame and text
constexpr int kBelowPointer = 20;   // design pixels, so that the arrow covers nothing
constexpr int kWidest = 600;        // design pixels of text in a line
constexpr int kGap = 4;             // design pixels between a hint and what it explains
constexpr int kHighestRow = 40;     // design pixels; of what is higher, the pointer tells the place
const platform::FontStyle kFont{"Tahoma", 11, false};

// A hint may have several lines, each ended by a carriage return.
std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\r') {
      lines.emplace_back();
    } else if (c != '\n') {
      lines.back() += c;
    }
  }
  return lines;
}

// How many bytes of `text` make a line: up to the last blank that `fits`, or else, of a word that
// is longer than a line, as many characters as do; at least one.
template <class Fits>
std::size_t LineLength(std::string_view text, const Fits& fits) {
  if (fits(text)) return text.size();
  std::size_t by_words = 0;
  for (std::size_t at = text.find(' '); at != std::string_view::npos; at = text.find(' ', at + 1)) {
    if (!fits(text.substr(0, at))) break;
    by_words = at;
  }
  if (by_words > 0) return by_words;
  std::size_t characters = 1;
  while (fits(platform::CutCharacters(text, characters + 1))) ++characters;
  return platform::CutCharacters(text, characters).size();
}

template <class Fits>
std::vector<std::string> Wrapped(const std::vector<std::string>& lines, const Fits& fits) {
  std::vector<std::string> wrapped;
  for (const std::string& line : lines) {
    std::string_view rest = line;
    do {
      const std::size_t length = LineLength(rest, fits);
      wrapped.emplace_back(rest.substr(0, length));
      rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(' ', length)));
    } while (!rest.empty());
  }
  return wrapped;
}

}  // namespace

class HintWindow::Window final : public platform::TopWindowEvents {
 public:
  Window(Application& app, platform::Colour colour) : app_(app), colour_(colour) {
    platform::TopWindowParams params;
    params.name = "TremoluxHint";
    params.frame = platform::Frame::kHint;
    window_ = app.Platform().windowing.CreateTopWindow(params, nullptr, *this);
  }

  // `beside` is empty for a place at the pointer.
  void Show(const std::string& text, const platform::Rect& beside, bool opens_submenu, int dpi) {
    dpi_ = dpi;
    lines_ = Lines(text);
    window_->SetText(text);
    const platform::Point pointer = app_.Platform().screen.Pointer();
    const platform::Rect at = beside.Empty() ? platform::Rect{pointer.x, pointer.y, 1, 1} : beside;
    const platform::Rect work = app_.Platform().screen.MonitorOf(at).work_area;
    const platform::Size size = Extent(work);
    const platform::Point place =
        beside.Empty() ? UnderPointer(size, work) : Beside(size, work, beside, opens_submenu);
    window_->SetBounds(
        {std::max(place.x, work.left), std::max(place.y, work.top), size.width, size.height});
    window_->Invalidate();
    window_->Show(platform::Activation::kLeaveFocus);
  }

  void OnPaint(platform::Canvas& canvas) override {
    const platform::Size size = canvas.Extent();
    const platform::Rect all{0, 0, size.width, size.height};
    canvas.Fill(all, platform::colour::kWindowFrame);
    canvas.Fill(all.Shrunk(1), colour_);
    const int margin = ScaleTo(dpi_, kMargin);
    const int line_height =
        (size.height - 2 * margin) / std::max(1, static_cast<int>(lines_.size()));
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      canvas.Text({margin, margin + static_cast<int>(i) * line_height, size.width - 2 * margin,
                   line_height},
                  lines_[i], Font(), platform::colour::kBlack, platform::TextAlign::kLeft);
    }
  }

 private:
  [[nodiscard]] platform::FontStyle Font() const {
    return {kFont.face, ScaleTo(dpi_, kFont.height), kFont.bold};
  }

  // Breaks the lines that are longer than the work area, or than is read with ease.
  platform::Size Extent(const platform::Rect& work) {
    platform::Size size;
    const auto scratch = app_.Platform().graphics.CreateBitmap({1, 1});
    if (!scratch) return size;
    const int margins = 2 * ScaleTo(dpi_, kMargin);
    const int widest = std::min(ScaleTo(dpi_, kWidest), work.width - margins);
    lines_ = Wrapped(lines_, [&](std::string_view line) {
      return scratch->GetCanvas().TextSize(line, Font()).width <= widest;
    });
    for (const std::string& line : lines_) {
      const platform::Size extent =
          scratch->GetCanvas().TextSize(line.empty() ? " " : line, Font());
      size.width = std::max(size.width, extent.width);
      size.height += extent.height + 1;
    }
    return {size.width + margins, size.height + margins};
  }

  platform::Point UnderPointer(platform::Size size, const platform::Rect& work) {
    const platform::Point pointer = app_.Platform().screen.Pointer();
    const int below = pointer.y + ScaleTo(dpi_, kBelowPointer);
    return {std::min(pointer.x, work.Right() - size.width),
            below + size.height > work.Bottom() ? pointer.y - size.height : below};
  }

  // At a side, so that the rows around stay in sight; below or above where both are too narrow.
  platform::Point Beside(platform::Size size, const platform::Rect& work,
                         const platform::Rect& area, bool opens_submenu) const {
    const int gap = ScaleTo(dpi_, kGap);
    const int right = area.Right() + gap;
    const int left = area.left - gap - size.width;
    const int top = std::min(area.top, work.Bottom() - size.height);
    // The system opens a submenu at the right where it has room; it is about as wide as the menu.
    const bool right_is_taken = opens_submenu && area.Right() + area.width <= work.Right();
    const bool left_is_taken = opens_submenu && !right_is_taken;
    if (!right_is_taken && right + size.width <= work.Right()) return {right, top};
    if (!left_is_taken && left >= work.left) return {left, top};
    const int below = area.Bottom() + gap;
    const bool above = opens_submenu || below + size.height > work.Bottom();
    return {std::min(area.left, work.Right() - size.width),
            above ? area.top - gap - size.height : below};
  }

  Application& app_;
  platform::Colour colour_;
  int dpi_ = kDesignDpi;
  std::vector<std::string> lines_;
  std::unique_ptr<platform::TopWindow> window_;
};

HintWindow::HintWindow(Application& app) : app_(app) {}
HintWindow::~HintWindow() = default;

bool HintWindow::Showing() const { return window_ != nullptr; }

void HintWindow::PointerOn(Control& control) {
  Disappear();
  control_ = &control;
  text_ = control.Hint();
  dpi_ = control.ParentForm().Dpi();
  beside_ = control.OnScreen();
  if (beside_.height > ScaleTo(dpi_, kHighestRow)) beside_ = {};
  opens_submenu_ = false;
  Begin();
}

void HintWindow::TextChanged(const Control& control) {
  if (control_ != &control) return;
  text_ = control.Hint();
  if (!Showing()) {
    Begin();
  } else if (text_.empty()) {
    Disappear();
  } else {
    window_->Show(text_, beside_, opens_submenu_, dpi_);
  }
}

void HintWindow::Forget(const Control& control) {
  if (control_ != &control) return;
  control_ = nullptr;
  Disappear();
}

void HintWindow::ShowBeside(std::string_view text, const platform::Rect& area, int dpi,
                            bool opens_submenu) {
  Disappear();
  control_ = nullptr;
  text_ = text;
  beside_ = area;
  opens_submenu_ = opens_submenu;
  dpi_ = dpi;
  Begin();
}

void HintWindow::Begin() {
  timer_.reset();
  if (text_.empty() || HidePause <= 0) return;
  timer_ = app_.Platform().timers.Start(std::max(Pause, kShortestTimer),
                                        [this] { app_.Guard([this] { Appear(); }); });
}

void HintWindow::Appear() {
  window_ = std::make_unique<Window>(app_, Colour);
  window_->Show(text_, beside_, opens_submenu_, dpi_);
  timer_ = app_.Platform().timers.Start(std::max(HidePause, kShortestTimer),
                                        [this] { app_.Guard([this] { Disappear(); }); });
}

void HintWindow::Disappear() {
  timer_.reset();
  window_.reset();
}

}  // namespace toolkit
