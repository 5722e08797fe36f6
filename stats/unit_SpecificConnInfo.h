// The statistics window of one network adapter.
#pragma once

#include "stats/statistics_form.h"

namespace stats {

inline constexpr std::string_view kSpecificConnInfoForm = "T_frmSpecificConnInfo";

class T_frmSpecificConnInfo final : public StatisticsForm {
 public:
  // Makes the window hidden; filled when it is shown. `description` is the adapter's, becomes the
  // caption and is the only link to it: an adapter that is gone keeps what was stored of it.
  T_frmSpecificConnInfo(const StatisticsContext& context, std::string_view description);

 private:
  void FormCreate();
  void FormShow() override;
  void Timer1Timer() override;
  void Button3Click() override;
};

}  // namespace stats
