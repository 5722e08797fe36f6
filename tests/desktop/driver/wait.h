// Waiting for what another program does.
#pragma once

#include <functional>
#include <string_view>

namespace desktop {

// Ample for anything that happens at all, on a busy machine too.
inline constexpr int kAmpleMs = 15000;

// Lets time pass, and the windows of this thread answer, until `condition` is true. Throws
// std::runtime_error that names what was waited for when it is not within `within_ms`.
void Await(std::string_view what, const std::function<bool()>& condition, int within_ms = kAmpleMs);

// Milliseconds of a clock that setting the date does not move.
[[nodiscard]] double SteadyMs();

}  // namespace desktop
