#include "settings/scale_choice.h"

#include "settings/speed_limit.h"

namespace settings {

std::optional<AppliedScale> ReadScale(Store& store) {
  const std::int64_t index = store.Read(setting::GraphScaleType);
  if (index < 0 || index >= std::ssize(kScaleChoices)) return std::nullopt;
  const ScaleChoice& choice = kScaleChoices[static_cast<std::size_t>(index)];
  if (index != std::int64_t{kCustomScale}) {
    return AppliedScale{choice.AutoScale, choice.SpeedLimit, choice.SpeedLimit};
  }
  // Two reads with two defaults. Where the value is missing the first read stores its own, so the
  // second default shows only when that could not be stored.
  const std::int64_t limit = LimitOfStoredSpeed(store.Read(setting::SpeedLimit));
  const std::int64_t cap = LimitOfStoredSpeed(store.ReadWith(setting::SpeedLimit, 1024));
  return AppliedScale{choice.AutoScale, limit, cap};
}

}  // namespace settings
