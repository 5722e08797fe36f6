// The objects and calls that the pages of the preferences share.
#pragma once

#include <functional>

#include "display/option_table.h"
#include "language/language.h"
#include "platform/scoped_value.h"
#include "settings/store.h"
#include "toolkit/application.h"

namespace preferences {

class Context {
 public:
  // Both arguments outlive the context.
  Context(toolkit::Application& app, const display::RunningMeter& meter)
      : app(app), meter(meter), store(meter.store), language(meter.language) {}
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  toolkit::Application& app;
  const display::RunningMeter meter;
  settings::Store& store;
  language::Language& language;
  // Shows the stored values on all pages. The preferences window sets this function.
  std::function<void()> ReadSettings;

  // While a Reading exists, the controls take over what is stored. Their handlers push the values
  // into the meter as usual but write nothing: the values are stored already, perhaps in a form
  // that a control cannot show, and opening the preferences changes no stored value.
  struct Reading : platform::ScopedValue<bool> {
    explicit Reading(Context& context) : ScopedValue(context.reading_, true) {}
  };
  [[nodiscard]] bool IsReading() const { return reading_; }

  // Pushes the value into the meter and, unless IsReading, then stores it. It is the last step of
  // every handler.
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
