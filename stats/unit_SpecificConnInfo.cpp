#include "stats/unit_SpecificConnInfo.h"

#include "language/texts.h"
#include "settings/adapter_values.h"
#include "settings/placement_keys.h"

namespace stats {
namespace {

namespace text = language::text::BandwidthStatisticsForm;

// Design pixels.
constexpr platform::Size kClientSize{261, 264};

// Five pairs, although an address has six.
constexpr std::string_view kNoAddress = "00-00-00-00-00";

}  // namespace

T_frmSpecificConnInfo::T_frmSpecificConnInfo(const StatisticsContext& context,
                                             std::string_view description)
    : StatisticsForm(context,
                     {kSpecificConnInfoForm, settings::placement_key::kSpecificConnInfo,
                      text::MacLabel, "-----------", true},
                     engine::CounterOwner::AdapterWindow(context.store, description)) {
  SetCaption(description);
  SetClientSize(kClientSize);
  Arrange();
  FormCreate();
  Timer1.SetEnabled(true);
}

void T_frmSpecificConnInfo::FormCreate() { Localise(); }

void T_frmSpecificConnInfo::FormShow() {
  App().Guard([this] { Timer1Timer(); });
}

void T_frmSpecificConnInfo::Timer1Timer() {
  const std::string name =
      settings::AdapterName(Caption()) + std::string(settings::kMacAddressSuffix);
  IpAddress.SetCaption(
      context_.store.ReadString(settings::KeyIndex::kAdapterDatas, name, kNoAddress));
  const quantity::Formatter format = context_.quantity.ForStep();
  ShowFigures(ReadFigures(counters_, engine::kInfoGroup, faults_), format);
  faults_.Tell();
}

void T_frmSpecificConnInfo::Button3Click() {
  RestartSince();
  counters_.Reset(engine::kInfoGroup);
}

}  // namespace stats
