#include "settings/scale_choice.h"

namespace settings {

std::optional<AppliedScale> ScaleOf(std::int64_t index, std::int64_t custom_limit) {
  if (index < 0 || index >= std::ssize(kScaleChoices)) return std::nullopt;
  const ScaleChoice& choice = kScaleChoices[static_cast<std::size_t>(index)];
  const bool custom = index == std::int64_t{kCustomScale};
  const std::int64_t limit = custom ? custom_limit : choice.SpeedLimit;
  return AppliedScale{choice.AutoScale, limit, limit};
}

std::optional<AppliedScale> ReadScale(Store& store) {
  const std::int64_t index = store.Read(setting::GraphScaleType);
  if (index != std::int64_t{kCustomScale}) return ScaleOf(index, 0);
  // The value is read twice, with two defaults. When it is missing, the first read stores its own
  // default, so the second default counts only when that could not be stored.
  auto scale = ScaleOf(index, LimitOfStoredSpeed(store.Read(setting::SpeedLimit)));
  scale->SpeedCap = LimitOfStoredSpeed(store.ReadWith(setting::SpeedLimit, 1024));
  return scale;
}

}  // namespace settings
