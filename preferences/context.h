// What the pages of the preferences work with.
#pragma once

#include <functional>

#include "display/running_meter.h"
#include "language/language.h"
#include "platform/scoped_value.h"
#include "settings/store.h"
#include "toolkit/application.h"

namespace preferences {

class Context {
 public:
  // Both outlive it.
  Context(toolkit::Application& app, const display::RunningMeter& meter)
      : app(app), meter(meter), store(meter.store), language(meter.language) {}
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  toolkit::Application& app;
  const display::RunningMeter meter;
  settings::Store& store;
  language::Language& language;
  // Shows what is stored, on all pages; the window sets it.
  std::function<void()> ReadSettings;

  // While one exists, the controls take over what is stored. Their handlers push it into the meter
  // as ever but write nothing: it is stored already, perhaps in a form that a control cannot show,
  // and opening the preferences changes no stored value.
  struct Reading : platform::ScopedValue<bool> {
    explicit Reading(Context& context) : ScopedValue(context.reading_, true) {}
  };
  [[nodiscard]] bool IsReading() const { return reading_; }

  // The last step of every handler: pushes the value into the meter and then stores it.
  template <class Setting, class Value>
  void Change(const Setting& setting, const Value& value) {
    if (reading_) {
      meter.options.Take(setting, value);
    } else {
      meter.options.Change(setting, value);
    }
  }

 private:
  bool reading_ = false;
};

}  // namespace preferences
