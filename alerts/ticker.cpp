#include "alerts/ticker.h"

#include "platform/wrapping.h"

namespace alerts {

namespace setting = settings::setting;

void Ticker::Update(const engine::ScanAmounts& scan) {
  if (scan.ScanSumDL == 0 || scan.ScanSumUL == 0) return;
  if (!store_.Read(setting::TickerActive)) return;
  const std::int64_t moved = platform::WrappingAdd(scan.ScanSumDL, scan.ScanSumUL);
  TickerByteCount = platform::WrappingAdd(TickerByteCount, moved);
  const std::int64_t per_tick = store_.Read(setting::TickerBytes);
  if (TickerByteCount < per_tick) return;
  TickerByteCount = platform::WrappingSubtract(TickerByteCount, per_tick);
  reactions_.PlayWave(store_.Read(setting::TickerWav));
}

}  // namespace alerts
