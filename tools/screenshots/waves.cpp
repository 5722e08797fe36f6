#include "tools/screenshots/waves.h"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr char kCard[] = "Ethernet";
constexpr char kStoredCard[] = "ethernet";

}  // namespace

Waves::Waves() : adapter_(kStoredCard) {
  if (line_.Available()) {
    line_.Add(kCard);
  } else {
    adapter_ = loopback_.FindAdapter();
  }
  thread_ = std::thread([this] { Run(); });
}

Waves::~Waves() {
  stop_ = true;
  thread_.join();
}

void Waves::Run() {
  constexpr int kStepsASecond = 10;
  for (int step = 0; !stop_; ++step) {
    const double seconds = static_cast<double>(step) / kStepsASecond;
    const double wave = 1.2 + std::sin(seconds / 4) + 0.7 * std::sin(seconds * 1.3);
    const double burst = std::fmod(seconds, 23) < 3 ? 2.5 : 1;
    Move(static_cast<int>(2500 * std::max(0.1, wave) * burst),
         static_cast<int>(600 * (1.5 + std::sin(seconds / 3 + 1))));
    ::Sleep(1000 / kStepsASecond);
  }
}

void Waves::Move(int received, int sent) {
  const Flow flow = flow_;
  if (flow == Flow::kNothing) return;
  if (!line_.Available()) {
    loopback_.Send(1, received);
    return;
  }
  line_.Move(kCard, flow == Flow::kUpload ? 0 : received, flow == Flow::kDownload ? 0 : sent);
}

}  // namespace desktop
