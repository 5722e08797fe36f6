#include "display/statistics_windows.h"

#include <utility>

#include "stats/unit_ConnInfo.h"
#include "stats/unit_SpecificConnInfo.h"

namespace display {

StatisticsWindows::StatisticsWindows(const stats::StatisticsContext& context,
                                     std::function<void()> open_settings)
    : context_(context), open_settings_(std::move(open_settings)) {}

StatisticsWindows::~StatisticsWindows() = default;

void StatisticsWindows::OpenMachine() {
  if (context_.app.Modals().RaiseTop()) return;
  if (machine_ != nullptr) {
    machine_->Raise();
    return;
  }
  machine_ = std::make_unique<stats::T_frmConnInfo>(context_);
  machine_->OpenSettings = open_settings_;
  machine_->OnClosed = [this] { machine_.reset(); };
  machine_->Show();
}

void StatisticsWindows::OpenAdapter(const std::string& description) {
  toolkit::ModalStack& modals = context_.app.Modals();
  if (modals.RaiseTop()) return;
  stats::T_frmSpecificConnInfo window(context_, description);
  modals.Show(window);
}

}  // namespace display
