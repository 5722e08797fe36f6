// An owner for the system's handles. It does not depend on the system, so that it is tested
// everywhere; the kinds stand beside the services that use them.
#pragma once

#include <utility>

namespace platform::windows {

// Owns one handle and closes it. `Kind` says what "none" is and how a handle is closed: Raw (the
// type), None(), Close(Raw).
template <class Kind>
class Handle {
 public:
  using Raw = typename Kind::Raw;

  Handle() = default;
  explicit Handle(Raw raw) noexcept : raw_(raw) {}
  Handle(Handle&& other) noexcept : raw_(std::exchange(other.raw_, Kind::None())) {}
  Handle& operator=(Handle other) noexcept {
    std::swap(raw_, other.raw_);
    return *this;
  }
  ~Handle() {
    if (*this) Kind::Close(raw_);
  }

  explicit operator bool() const noexcept { return raw_ != Kind::None(); }
  [[nodiscard]] Raw get() const noexcept { return raw_; }
  // Gives the handle up without closing it.
  [[nodiscard]] Raw release() noexcept { return std::exchange(raw_, Kind::None()); }

 private:
  Raw raw_ = Kind::None();
};

// The kind of the handles that `kClose` closes and that are none when they are zero.
template <class RawHandle, auto kClose>
struct ZeroIsNone {
  using Raw = RawHandle;
  static constexpr Raw None() { return {}; }
  static void Close(Raw raw) { kClose(raw); }
};

}  // namespace platform::windows
