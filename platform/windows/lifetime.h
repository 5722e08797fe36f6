// Tells a handler whether a report that it made destroyed the object that it belongs to.
#pragma once

namespace platform::windows {

class Lifetime {
 public:
  // On the stack of the handler, around the report.
  class Watch {
   public:
    explicit Watch(Lifetime& lifetime) : lifetime_(&lifetime), outer_(lifetime.innermost_) {
      lifetime.innermost_ = this;
    }
    ~Watch() {
      if (lifetime_ != nullptr) lifetime_->innermost_ = outer_;
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    // Whether the object has gone; then nothing of it may be touched any more.
    [[nodiscard]] bool Gone() const { return lifetime_ == nullptr; }

   private:
    friend class Lifetime;
    Lifetime* lifetime_;
    Watch* outer_;
  };

  Lifetime() = default;
  ~Lifetime() {
    for (Watch* watch = innermost_; watch != nullptr; watch = watch->outer_) {
      watch->lifetime_ = nullptr;
    }
  }
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;

 private:
  Watch* innermost_ = nullptr;
};

}  // namespace platform::windows
