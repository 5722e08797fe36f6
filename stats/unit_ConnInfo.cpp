#include "stats/unit_ConnInfo.h"

#include <algorithm>

#include "engine/local_ip.h"
#include "language/texts.h"
#include "settings/placement_keys.h"
#include "toolkit/controls/layout.h"

namespace stats {
namespace {

constexpr std::int64_t kSlowMs = 50;
constexpr std::int64_t kRestFactor = 20;

}  // namespace

const std::string& HostAddress::Get() {
  const std::int64_t begin = clock_.SteadyMilliseconds();
  if (begin < not_before_) return address_;
  address_ = engine::GetLocalIP(sockets_);
  const std::int64_t end = clock_.SteadyMilliseconds();
  const std::int64_t took = end - begin;
  if (took > kSlowMs) not_before_ = end + kRestFactor * took;
  return address_;
}

namespace {

namespace setting = settings::setting;
namespace text = language::text::BandwidthStatisticsForm;

// Design pixels: the size on the screen, and what the controls need inside the frame.
constexpr platform::Size kSize{265, 258};
constexpr platform::Size kSmallestClient{258, 228};

}  // namespace

T_frmConnInfo::T_frmConnInfo(const StatisticsContext& context)
    : StatisticsForm(
          context, {kConnInfoForm, settings::placement_key::kConnInfo, text::IpLabel, "127.0.0.1"},
          engine::CounterOwner::Machine(context.store)),
      host_address_(context.app.Platform().sockets, context.app.Platform().clock),
      details_(BandwidthTab, context.store, context.language) {
  SetDesignSize();
  Arrange();
  ArrangeBandwidthTab();
  FormCreate();
  Label1.OnClick = [this] { Label1Click(); };
  ISBAShown.OnClick = [this] { ISBAShownClick(); };
  Timer1.SetEnabled(true);
}

void T_frmConnInfo::SetDesignSize() {
  const platform::Rect place = WindowBounds();
  SetWindowBounds({place.left, place.top, Scale(kSize.width), Scale(kSize.height)});
  // Where the user's scheme has larger frames and captions the window grows around its controls.
  const platform::Size client = ClientPixels();
  const platform::Size room{std::max(Unscale(client.width), kSmallestClient.width),
                            std::max(Unscale(client.height), kSmallestClient.height)};
  SetClientSize(room);
}

void T_frmConnInfo::ArrangeBandwidthTab() {
  constexpr int kDetailsTop = 18;
  constexpr int kCheckHeight = 17;
  const platform::Size room = RoomOf(BandwidthTab);
  const int check_top = room.height - kCheckHeight - 1;
  toolkit::ApplyLayout({{Label1, {1, 1, room.width - 2, 16}},
                        {ISBAShown, {5, check_top, room.width - 10, kCheckHeight}}});
  details_.SetBounds({0, kDetailsTop, room.width, check_top - kDetailsTop - 1});
}

void T_frmConnInfo::FormCreate() {
  ShowSince();
  Localise();
  App().Guard([this] { Timer1Timer(); });
}

void T_frmConnInfo::Localise() {
  StatisticsForm::Localise();
  SetCaption(context_.language.Text(text::Title));
  details_.Localise();
}

void T_frmConnInfo::FormClose() {
  const std::function<void()> closed = OnClosed;  // it goes with the window
  if (closed) {
    closed();
  } else {
    StatisticsForm::FormClose();
  }
}

void T_frmConnInfo::Timer1Timer() {
  IpAddress.SetCaption(host_address_.Get());
  ISBAShown.SetChecked(context_.store.Read(setting::BAShow));
  // The totals are those of this run: the stored ones of this kind are an adapter's alone.
  const engine::TrafficState& traffic = context_.traffic;
  const quantity::Formatter format = context_.quantity.ForStep();
  ShowFigures(
      {ReadFigure(counters_, setting::InfoMaxDL, faults_),
       ReadFigure(counters_, setting::InfoMaxUL, faults_), traffic.RunTotalDL, traffic.RunTotalUL},
      format);
  faults_.Try([&] { details_.Refresh(format); });
  faults_.Tell();
}

void T_frmConnInfo::Button3Click() {
  RestartSince();
  InfoGroupBox.ShowZeros();
  engine::TrafficState& traffic = context_.traffic;
  for (engine::AdapterCounters& adapter : traffic.adapter_counters) {
    adapter.MaxIn = 0;
    adapter.MaxOut = 0;
  }
  counters_.Reset(setting::InfoMaxDL);
  counters_.Reset(setting::InfoMaxUL);
  traffic.RunTotalDL = 0;
  traffic.RunTotalUL = 0;
}

void T_frmConnInfo::Label1Click() {
  if (OpenSettings) OpenSettings();
}

void T_frmConnInfo::ISBAShownClick() { context_.store.Write(setting::BAShow, ISBAShown.Checked()); }

}  // namespace stats
