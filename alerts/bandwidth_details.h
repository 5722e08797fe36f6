// The group of figures about the bandwidth limit, as the alert window and the
// statistics window show it.
#pragma once

#include <cstdint>
#include <optional>

#include "alerts/bandwidth_alert.h"
#include "language/language.h"
#include "quantity/figure_row.h"
#include "quantity/quantity.h"
#include "settings/store.h"
#include "toolkit/controls/buttons.h"

namespace alerts {

class BandwidthDetails {
 public:
  // All arguments outlive the details.
  BandwidthDetails(toolkit::Control& parent, settings::Store& store,
                   const language::Language& language);

  // `bounds` is in design pixels, at least 200 wide and 134 high.
  void SetBounds(const platform::Rect& bounds);
  void SetVisible(bool visible) { group_.SetVisible(visible); }

  // Gives the rows their texts and hints in the user's language.
  void Localise();

  // Shows the stored figures. When the stored unit or period does not exist, the rows that depend
  // on it keep their text. Throws settings::ConversionError when a stored total is no number.
  void Refresh(const quantity::Formatter& format);

 private:
  void ShowLeft(std::int64_t left, const quantity::Formatter& format);

  settings::Store& store_;
  const language::Language& language_;

  toolkit::GroupBox group_;
  quantity::FigureRow limit_;
  quantity::FigureRow type_;  // without a unit
  quantity::FigureRow current_dl_;
  quantity::FigureRow current_ul_;
  quantity::FigureRow left_;
};

}  // namespace alerts
