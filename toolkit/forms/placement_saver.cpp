#include "toolkit/forms/placement_saver.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "platform/scoped_value.h"
#include "toolkit/application.h"
#include "toolkit/forms/placement.h"

namespace toolkit {
namespace {

// No desktop reaches that far, and the sums of such numbers are still numbers.
constexpr std::int32_t kFarthest = 1000000;
constexpr int kLargest = 32767;  // a side of a window
constexpr int kLowestDpi = 48;
constexpr int kHighestDpi = 960;

std::optional<int> ReadNumber(platform::RegistryKey& key, std::string_view name, int lowest,
                              int highest) {
  const std::optional<std::uint32_t> stored = key.ReadDword(name);
  if (!stored) return std::nullopt;
  const auto number = static_cast<std::int32_t>(*stored);
  if (number < lowest || number > highest) return std::nullopt;
  return number;
}

// Reads a coordinate; one beyond kFarthest is moved to it.
std::optional<int> ReadPlace(platform::RegistryKey& key, std::string_view name) {
  const std::optional<std::uint32_t> stored = key.ReadDword(name);
  if (!stored) return std::nullopt;
  return std::clamp(static_cast<std::int32_t>(*stored), -kFarthest, kFarthest);
}

}  // namespace

PlacementSaver::PlacementSaver(Form& form, std::string_view key, Restores what)
    : FormComponent(form), key_(key), restores_(what) {}

PlacementSaver::~PlacementSaver() {
  if (active_) Save();
}

void PlacementSaver::Restore() {
  wanted_ = Stored();
  active_ = true;
  Place();
}

platform::Rect PlacementSaver::Stored() {
  platform::Rect bounds = form_.WindowBounds();
  const auto key = form_.App().Platform().registry.Open(key_, platform::KeyAccess::kExisting);
  if (key == nullptr) return bounds;
  const std::optional<int> left = ReadPlace(*key, "Left");
  const std::optional<int> top = ReadPlace(*key, "Top");
  if (!left || !top) return bounds;
  bounds.left = *left;
  bounds.top = *top;
  if (restores_ == Restores::kPlace) return bounds;
  const std::optional<int> width = ReadNumber(*key, "Width", 1, kLargest);
  const std::optional<int> height = ReadNumber(*key, "Height", 1, kLargest);
  if (!width || !height) return bounds;
  const int dpi = form_.App().Platform().screen.MonitorOf(bounds).dpi;
  const int stored_dpi = ReadNumber(*key, "Dpi", kLowestDpi, kHighestDpi).value_or(dpi);
  bounds.width = *width * dpi / stored_dpi;
  bounds.height = *height * dpi / stored_dpi;
  return bounds;
}

void PlacementSaver::Place() {
  platform::Screen& screen = form_.App().Platform().screen;
  monitors_ = screen.Monitors();
  const platform::Rect target =
      InSight(wanted_, form_.HeldBy(), monitors_) ? wanted_ : BroughtIntoView(wanted_, screen);
  displaced_ = target != wanted_;
  const platform::ScopedValue placing(placing_, true);
  // The bounds are set a second time, because a monitor of another resolution gives the form
  // another size.
  for (int attempt = 0; attempt < 2 && form_.WindowBounds() != target; ++attempt) {
    form_.SetWindowBounds(target);
  }
  // The form may have limited its size, so its actual bounds are taken.
  if (!displaced_) wanted_ = form_.WindowBounds();
}

void PlacementSaver::FormPlaced() {
  if (active_ && !placing_ && !form_.Window().Dragging()) TakePlace(false);
}

void PlacementSaver::FormDragEnded() {
  if (active_) TakePlace(true);
}

void PlacementSaver::FormDisplayChanged() {
  if (active_) Place();
}

void PlacementSaver::FormClosing() { SaveAsItStands(); }

void PlacementSaver::FormSessionEnds() { SaveAsItStands(); }

void PlacementSaver::SaveAsItStands() {
  if (!active_) return;
  if (form_.Window().Dragging()) TakePlace(true);  // nobody will hear of the end of this drag
  Save();
}

void PlacementSaver::TakePlace(bool dragged) {
  const platform::Rect bounds = form_.WindowBounds();
  if (bounds == wanted_) return;
  // When a monitor is removed, the system itself may move the form before the program is told.
  if (!dragged && MonitorsChanged() && !InSight(wanted_, form_.HeldBy(), monitors_)) {
    displaced_ = true;
    return;
  }
  wanted_ = bounds;
  displaced_ = false;
  Save();
}

bool PlacementSaver::MonitorsChanged() {
  const auto same = [](const platform::Monitor& a, const platform::Monitor& b) {
    return a.bounds == b.bounds;
  };
  std::vector<platform::Monitor> now = form_.App().Platform().screen.Monitors();
  const bool changed =
      !std::equal(now.begin(), now.end(), monitors_.begin(), monitors_.end(), same);
  monitors_ = std::move(now);
  return changed;
}

void PlacementSaver::Save() noexcept {
  try {
    const auto key = form_.App().Platform().registry.Open(key_, platform::KeyAccess::kCreate);
    if (key == nullptr) return;
    const std::pair<std::string_view, int> values[] = {{"Left", wanted_.left},
                                                       {"Top", wanted_.top},
                                                       {"Width", wanted_.width},
                                                       {"Height", wanted_.height},
                                                       {"Dpi", form_.Dpi()}};
    for (const auto& [name, value] : values) {
      key->WriteDword(name, static_cast<std::uint32_t>(value));
    }
  } catch (...) {
    return;  // the form will stand somewhere else the next time; nobody needs to be told
  }
}

}  // namespace toolkit
