#include "display/tray/tray_icon.h"

#include "toolkit/application.h"

namespace display {
namespace {

namespace setting = settings::setting;

constexpr std::int64_t kActivityPictures = 0;
constexpr std::int64_t kHistogram = 1;

// Every pixel becomes a block of whole pixels as far as the size allows, the rest by the nearest.
void Enlarge(const platform::Bitmap& picture, platform::Bitmap& target) {
  const platform::Size from = picture.Extent();
  const platform::Size to = target.Extent();
  const auto edge = [](int pixel, int from_side, int to_side) {
    return (pixel * to_side + from_side - 1) / from_side;
  };
  for (int y = 0; y < from.height; ++y) {
    const int top = edge(y, from.height, to.height);
    const int height = edge(y + 1, from.height, to.height) - top;
    for (int x = 0; x < from.width; ++x) {
      const int left = edge(x, from.width, to.width);
      const int width = edge(x + 1, from.width, to.width) - left;
      target.GetCanvas().Fill({left, top, width, height}, picture.Pixel({x, y}));
    }
  }
}

}  // namespace

TrayIcon::TrayIcon(toolkit::Application& app, settings::Store& store)
    : app_(app), store_(store), icon_(app.Platform().notification_area.CreateIcon(*this)) {}

TrayIcon::~TrayIcon() = default;

void TrayIcon::LoadPictures() { LoadPictures(store_.Read(setting::TrayIconFile)); }

void TrayIcon::LoadPictures(const std::string& path) {
  const std::string built_in = store_.Resolve(setting::TrayIconFile.read);
  pictures_.Load(app_.Platform().files, path, built_in);
  shown_activity_.reset();
}

void TrayIcon::TakeKind(std::int64_t type) {
  if (type == kind_) return;
  if (type == kActivityPictures) LoadPictures();
  kind_ = type;
}

void TrayIcon::ShowStart() {
  TakeKind(store_.Read(setting::IconType));
  if (kind_ == kActivityPictures) {
    ShowActivity(TrayActivity::kIdle);
  } else {
    ShowHistogram(TrayHistogram());
  }
}

void TrayIcon::ChangeKind(std::int64_t type) {
  if (type == kind_) return;
  TakeKind(type);
  if (kind_ == kActivityPictures) {
    ShowActivity(TrayActivity::kIdle);
  } else {
    ShowHistogram(kind_ == kHistogram ? histogram_ : TrayHistogram());
  }
}

void TrayIcon::ChangeColours(platform::Colour receiving, platform::Colour sending) {
  if (!shown_activity_) DrawHistogram(shown_histogram_, receiving, sending);
}

void TrayIcon::ChangePictures(const std::string& path) {
  if (kind_ != kActivityPictures) return;
  const TrayActivity activity = shown_activity_.value_or(TrayActivity::kIdle);
  LoadPictures(path);
  ShowActivity(activity);
}

void TrayIcon::ShowScan(const engine::ScanAmounts& scan) {
  TakeKind(store_.Read(setting::IconType));
  if (kind_ == kActivityPictures) {
    ShowActivity(ActivityOf(scan.ScanSumDL, scan.ScanSumUL));
  } else if (kind_ == kHistogram) {
    histogram_.Push(scan.ScanSumDL, scan.ScanSumUL);
    ShowHistogram(histogram_);
  }
}

void TrayIcon::Clear() {
  histogram_.Clear();
  ShowHistogram(histogram_);
}

void TrayIcon::ShowActivity(TrayActivity activity) {
  if (!pictures_.Loaded()) {
    // Without any picture file an empty histogram stands for the program.
    ShowHistogram(TrayHistogram());
    return;
  }
  const int size = icon_->PictureSize();
  if (activity == shown_activity_ && size == activity_size_) return;
  const auto picture = app_.Platform().graphics.CreateBitmap({size, size});
  if (!picture) return;
  pictures_.Draw(activity, picture->GetCanvas(), pictures_.SeeThrough());
  activity_size_ = icon_->SetPicture(*picture, pictures_.SeeThrough()) ? size : 0;
  shown_activity_ = activity;
  shown_size_ = 0;
}

void TrayIcon::ShowHistogram(const TrayHistogram& histogram) {
  DrawHistogram(histogram, store_.Read(setting::GraphColor_HistogramReceiving),
                store_.Read(setting::GraphColor_HistogramSend));
}

// The shell is given the picture after each half that has changed; the other half keeps what it
// showed, so that nothing flickers.
void TrayIcon::DrawHistogram(const TrayHistogram& histogram, platform::Colour receiving,
                             platform::Colour sending) {
  shown_activity_.reset();
  shown_histogram_ = histogram;
  if (!drawing_) {
    drawing_ = app_.Platform().graphics.CreateBitmap({kTrayPictureSize, kTrayPictureSize});
    if (!drawing_) return;
    drawing_->GetCanvas().Fill({0, 0, kTrayPictureSize, kTrayPictureSize},
                               platform::colour::kWhite);
  }
  platform::Canvas& canvas = drawing_->GetCanvas();
  const int size = icon_->PictureSize();
  const bool anew = size != shown_size_;
  const TrayHistogram::Half upper = histogram.Upper(receiving);
  const TrayHistogram::Half lower = histogram.Lower(sending);
  TrayHistogram::DrawFrame(canvas);
  if (anew || upper != shown_upper_) {
    TrayHistogram::DrawUpper(canvas, upper);
    shown_size_ = ShowEnlarged(*drawing_) ? size : 0;
  }
  if (anew || lower != shown_lower_) {
    TrayHistogram::DrawLower(canvas, lower);
    shown_size_ = ShowEnlarged(*drawing_) ? size : 0;
  }
  shown_upper_ = upper;
  shown_lower_ = lower;
}

bool TrayIcon::ShowEnlarged(const platform::Bitmap& picture) {
  const int size = icon_->PictureSize();
  if (size <= kTrayPictureSize) return icon_->SetPicture(picture);
  if (!enlarged_ || enlarged_->Extent().width != size) {
    enlarged_ = app_.Platform().graphics.CreateBitmap({size, size});
  }
  if (!enlarged_) return false;
  Enlarge(picture, *enlarged_);
  return icon_->SetPicture(*enlarged_);
}

void TrayIcon::OnTrayClick() {
  app_.Guard([this] {
    if (OnClick) OnClick();
  });
}

void TrayIcon::OnTrayMenu(platform::Point screen) {
  app_.Guard([&] {
    if (OnMenu) OnMenu(screen);
  });
}

}  // namespace display
