// The group of figures about the bandwidth limit, as the alert window and the
// statistics window show it.
#pragma once

#include <cstdint>
#include <optional>

#include "alerts/bandwidth_limit.h"
#include "language/language.h"
#include "quantity/quantity.h"
#include "settings/store.h"
#include "toolkit/controls/group_box.h"
#include "toolkit/controls/label.h"

namespace alerts {

class BandwidthDetails {
 public:
  // All outlive the details.
  BandwidthDetails(toolkit::Control& parent, settings::Store& store,
                   const language::Language& language);

  // Design pixels; at least 200 wide and 134 high.
  void SetBounds(const platform::Rect& bounds);

  // Texts and hints in the user's language.
  void Localise();

  // Shows the stored figures. A stored unit or period that does not exist
  // leaves its rows at their text. Throws settings::ConversionError when a
  // stored total is no number.
  void Refresh(const quantity::Formatter& format);

 private:
  // One row: what it is, the value, its unit.
  struct Row {
    Row(toolkit::Control& parent, std::string_view caption_name, std::string_view value_name,
        std::string_view unit_name, platform::Colour colour);

    void SetFontColour(platform::Colour colour);
    void Show(const quantity::QuantityText& text);

    toolkit::Label caption;
    toolkit::Label value;
    toolkit::Label unit;
  };

  void ShowLeft(std::int64_t left, const quantity::Formatter& format);

  settings::Store& store_;
  const language::Language& language_;

  toolkit::GroupBox group_;
  Row limit_;
  Row type_;  // its value is as wide as value and unit of the others
  Row current_dl_;
  Row current_ul_;
  Row left_;
};

}  // namespace alerts
