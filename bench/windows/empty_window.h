// The least that a program with a window is: what the meter's start and memory are seen beside.
#pragma once

#include <cstdint>

namespace bench {

inline constexpr wchar_t kEmptyWindow[] = L"BenchEmptyWindow";  // its class

// Bytes of this process with a white window; before anything else is made.
[[nodiscard]] std::int64_t BytesWithEmptyWindow();

// Shows it until the process is ended.
void RunEmptyWindow();

}  // namespace bench
