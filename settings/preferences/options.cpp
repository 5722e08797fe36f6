#include "settings/preferences/options.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace settings::preferences {
namespace {

template <class Setting, class Value>
void Change(Context& context, const Setting& setting, const Push<Value>& push, Value value) {
  if (push) push(context.meter, value);
  context.Save(setting, value);
}

// Lists and radio groups.
template <class Choices>
void ShowChoice(Choices& choices, std::int64_t stored) {
  if (stored >= 0 && stored < choices.Count()) choices.SetItemIndex(static_cast<int>(stored));
}

int Nearest(std::int64_t stored) {
  return static_cast<int>(std::clamp<std::int64_t>(stored, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

}  // namespace

Option::Option(toolkit::CheckBox& box, const BooleanSetting& setting, Push<bool> push)
    : connect_([&box, setting, push = std::move(push)](Context& context) {
        box.OnClick = [&, setting, push] { Change(context, setting, push, box.Checked()); };
      }),
      read_([&box, setting](Context& context) { box.SetChecked(context.store.Read(setting)); }) {}

Option::Option(toolkit::ListControl& list, const IntegerSetting& setting, Push<std::int64_t> push)
    : connect_([&list, setting, push = std::move(push)](Context& context) {
        list.OnChange = [&, setting, push] {
          Change<IntegerSetting, std::int64_t>(context, setting, push, list.ItemIndex());
        };
      }),
      read_([&list, setting](Context& context) { ShowChoice(list, context.store.Read(setting)); }) {
}

Option::Option(toolkit::RadioGroup& group, const IntegerSetting& setting, Push<std::int64_t> push)
    : connect_([&group, setting, push = std::move(push)](Context& context) {
        group.OnClick = [&, setting, push] {
          Change<IntegerSetting, std::int64_t>(context, setting, push, group.ItemIndex());
        };
      }),
      read_([&group, setting](Context& context) {
        ShowChoice(group, context.store.Read(setting));
      }) {}

Option::Option(toolkit::SpinEdit& spin, const IntegerSetting& setting, Push<std::int64_t> push)
    : connect_([&spin, setting, push = std::move(push)](Context& context) {
        spin.OnChange = [&, setting, push] { Change(context, setting, push, spin.Value()); };
      }),
      read_([&spin, setting](Context& context) { spin.SetValue(context.store.Read(setting)); }) {}

Option::Option(toolkit::TrackBar& bar, const IntegerSetting& setting, Push<std::int64_t> push)
    : connect_([&bar, setting, push = std::move(push)](Context& context) {
        bar.OnChange = [&, setting, push] {
          const std::int64_t value =
              context.IsReading() ? context.store.Read(setting) : bar.Position();
          Change(context, setting, push, value);
        };
      }),
      read_([&bar, setting](Context& context) {
        bar.SetPosition(Nearest(context.store.Read(setting)));
      }) {}

void Options::Connect(std::initializer_list<Option> options) {
  options_.assign(options);
  for (const Option& option : options_) option.connect_(context_);
}

void Options::Read() {
  for (const Option& option : options_) option.read_(context_);
}

}  // namespace settings::preferences
