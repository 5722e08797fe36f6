// What the pages of the preferences work with.
#pragma once

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

  // While one exists, the controls take over what is stored. Their handlers push it into the meter
  // as ever but write nothing: it is stored already, perhaps in a form that a control cannot show,
  // and opening the preferences changes no stored value.
  struct Reading : platform::ScopedValue<bool> {
    explicit Reading(Context& context) : ScopedValue(context.reading_, true) {}
  };
  [[nodiscard]] bool IsReading() const { return reading_; }

  // The last step of every handler, behind the push: stores the value, and the meter shows what
  // both have changed.
  template <class Setting, class Value>
  void Save(const Setting& setting, const Value& value) {
    if (reading_) return;
    store.Write(setting, value);
    meter.transparency.ApplyShape();
  }

 private:
  bool reading_ = false;
};

}  // namespace preferences
