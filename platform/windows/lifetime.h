// Tells a message handler whether a report that it made has destroyed the handler's object.
#pragma once

namespace platform::windows {

class Lifetime {
 public:
  // A watch lives on the stack of the handler, around the report.
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

    // Returns whether the object is destroyed; then no member of it may be used any more.
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
