#include "preferences/graph_colors_page.h"

#include "toolkit/controls/layout.h"
#include "toolkit/forms/form.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

}  // namespace

GraphColorsPage::GraphColorsPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "GraphColors", context),
      grpMeterColors(*this, "grpMeterColors"),
      lblDownloadColor(grpMeterColors, "lblDownloadColor", toolkit::kCaptionText),
      DownloadColor(grpMeterColors, "DownloadColor"),
      lblDownloadLightColor(grpMeterColors, "lblDownloadLightColor", toolkit::kCaptionText),
      DownloadLightColor(grpMeterColors, "DownloadLightColor"),
      lblDownloadShadowColor(grpMeterColors, "lblDownloadShadowColor", toolkit::kCaptionText),
      DownloadShadowColor(grpMeterColors, "DownloadShadowColor"),
      lblUploadColor(grpMeterColors, "lblUploadColor", toolkit::kCaptionText),
      UploadColor(grpMeterColors, "UploadColor"),
      lblUploadLightColor(grpMeterColors, "lblUploadLightColor", toolkit::kCaptionText),
      UploadLightColor(grpMeterColors, "UploadLightColor"),
      lblUploadShadowColor(grpMeterColors, "lblUploadShadowColor", toolkit::kCaptionText),
      UploadShadowColor(grpMeterColors, "UploadShadowColor"),
      lblBackgroundColor(grpMeterColors, "lblBackgroundColor", toolkit::kCaptionText),
      BackgroundColor(grpMeterColors, "BackgroundColor"),
      lblBorderColor(grpMeterColors, "lblBorderColor", toolkit::kCaptionText),
      BorderColor(grpMeterColors, "BorderColor"),
      grpTrayIcon(*this, "grpTrayIcon"),
      Ic1(grpTrayIcon, "Ic1"),
      Ic2(grpTrayIcon, "Ic2"),
      Ic3(grpTrayIcon, "Ic3"),
      ImagesTrayIcon(grpTrayIcon, "ImagesTrayIcon"),
      lblHisRecColor(grpTrayIcon, "lblHisRecColor", toolkit::kCaptionText),
      HisRecColor(grpTrayIcon, "HisRecColor"),
      lblHisSendColor(grpTrayIcon, "lblHisSendColor", toolkit::kCaptionText),
      HisSendColor(grpTrayIcon, "HisSendColor"),
      colours_(context),
      icon_(context) {
  PlaceControls();
  ConnectHandlers();
}

void GraphColorsPage::ConnectHandlers() {
  colours_.Connect({
      {DownloadColor, setting::GraphColor_Download, text::GraphColor_Download,
       [](const Meter& m, platform::Colour c) { m.graph.InColor = c; }},
      {DownloadLightColor, setting::GraphColor_DownloadLight, text::GraphColor_DownloadLight,
       [](const Meter& m, platform::Colour c) { m.graph.InLight = c; }},
      {DownloadShadowColor, setting::GraphColor_DownloadShadow, text::GraphColor_DownloadShadow,
       [](const Meter& m, platform::Colour c) { m.graph.InShadow = c; }},
      {UploadColor, setting::GraphColor_Upload, text::GraphColor_Upload,
       [](const Meter& m, platform::Colour c) { m.graph.OutColor = c; }},
      {UploadLightColor, setting::GraphColor_UploadLight, text::GraphColor_UploadLight,
       [](const Meter& m, platform::Colour c) { m.graph.OutLight = c; }},
      {UploadShadowColor, setting::GraphColor_UploadShadow, text::GraphColor_UploadShadow,
       [](const Meter& m, platform::Colour c) { m.graph.OutShadow = c; }},
      {BackgroundColor, setting::GraphColor_Background, text::GraphColor_Background,
       [](const Meter& m, platform::Colour c) { m.graph.DisplayColor = c; }},
      {BorderColor, setting::GraphColor_Border, text::GraphColor_Border,
       [](const Meter& m, platform::Colour c) { m.graph.BorderColor = c; }},
      {HisRecColor, setting::GraphColor_HistogramReceiving, text::GraphColor_HistogramReceiving,
       [this](const Meter& m, platform::Colour c) {
         m.tray.ChangeColours(c, HisSendColor.Colour());
       }},
      {HisSendColor, setting::GraphColor_HistogramSend, text::GraphColor_HistogramSend,
       [this](const Meter& m, platform::Colour c) {
         m.tray.ChangeColours(HisRecColor.Colour(), c);
       }},
  });
  icon_.Connect({
      {{&Ic1, &Ic2, &Ic3},
       setting::IconType,
       [](const Meter& m, std::int64_t kind) { m.tray.ChangeKind(kind); }},
  });
  ImagesTrayIcon.OnClick = [this] { ImagesTrayIconClick(); };
}

void GraphColorsPage::PlaceControls() {
  constexpr int kPanelWidth = 48;
  constexpr int kColumn = (kWidth - 3 * kMargin) / 2;
  const auto left = [](int column) { return kMargin + column * (kColumn + kMargin); };
  const auto label = [&](int column, int row) {
    return platform::Rect{left(column), kGroupTop + row * kFieldRow + 2,
                          kColumn - kPanelWidth - kMargin, kBoxHeight};
  };
  const auto panel = [&](int column, int row) {
    return platform::Rect{left(column) + kColumn - kPanelWidth, kGroupTop + row * kFieldRow,
                          kPanelWidth, kFieldHeight};
  };
  constexpr int kHeight = kGroupTop + 4 * kFieldRow + 2;
  toolkit::ApplyLayout({
      {grpMeterColors, {kMargin, kMargin, kWidth, kHeight}},
      {lblDownloadColor, label(0, 0)},
      {DownloadColor, panel(0, 0)},
      {lblDownloadLightColor, label(0, 1)},
      {DownloadLightColor, panel(0, 1)},
      {lblDownloadShadowColor, label(0, 2)},
      {DownloadShadowColor, panel(0, 2)},
      {lblUploadColor, label(1, 0)},
      {UploadColor, panel(1, 0)},
      {lblUploadLightColor, label(1, 1)},
      {UploadLightColor, panel(1, 1)},
      {lblUploadShadowColor, label(1, 2)},
      {UploadShadowColor, panel(1, 2)},
      {lblBackgroundColor, label(0, 3)},
      {BackgroundColor, panel(0, 3)},
      {lblBorderColor, label(1, 3)},
      {BorderColor, panel(1, 3)},
  });
  PlaceTrayControls(kMargin + kHeight + kMargin);
}

void GraphColorsPage::PlaceTrayControls(int top) {
  constexpr int kButtonRow = 30;
  constexpr int kRadioWidth = kGroupWidth - PicturePanel::kWidth - kMargin;
  constexpr int kPanelWidth = 48;
  constexpr int kLabelWidth = 200;
  constexpr int kColours = kGroupTop + 3 * kButtonRow;
  const auto radio = [](int row) {
    return platform::Rect{kMargin, kGroupTop + row * kButtonRow + 4, kRadioWidth, kBoxHeight};
  };
  toolkit::ApplyLayout({
      {grpTrayIcon, {kMargin, top, kWidth, kColours + 2 * kFieldRow + 2}},
      {Ic1, radio(0)},
      {ImagesTrayIcon,
       {kMargin + kRadioWidth + kMargin, kGroupTop, PicturePanel::kWidth, PicturePanel::kHeight}},
      {Ic2, radio(1)},
      {Ic3, radio(2)},
      {lblHisRecColor, {kMargin, kColours + 2, kLabelWidth, kBoxHeight}},
      {HisRecColor, {kMargin + kLabelWidth + kMargin, kColours, kPanelWidth, kFieldHeight}},
      {lblHisSendColor, {kMargin, kColours + kFieldRow + 2, kLabelWidth, kBoxHeight}},
      {HisSendColor,
       {kMargin + kLabelWidth + kMargin, kColours + kFieldRow, kPanelWidth, kFieldHeight}},
  });
}

void GraphColorsPage::Localise(const language::Translation& say) {
  struct Row {
    toolkit::Label& label;
    toolkit::ColourPanel& panel;
    const language::TextEntry& name;
  };
  const Row rows[] = {
      {lblDownloadColor, DownloadColor, text::GraphColor_Download},
      {lblDownloadLightColor, DownloadLightColor, text::GraphColor_DownloadLight},
      {lblDownloadShadowColor, DownloadShadowColor, text::GraphColor_DownloadShadow},
      {lblUploadColor, UploadColor, text::GraphColor_Upload},
      {lblUploadLightColor, UploadLightColor, text::GraphColor_UploadLight},
      {lblUploadShadowColor, UploadShadowColor, text::GraphColor_UploadShadow},
      {lblBackgroundColor, BackgroundColor, text::GraphColor_Background},
      {lblBorderColor, BorderColor, text::GraphColor_Border},
      {lblHisRecColor, HisRecColor, text::GraphColor_HistogramReceiving},
      {lblHisSendColor, HisSendColor, text::GraphColor_HistogramSend},
  };
  for (const Row& row : rows) {
    Say(say, {{row.label, row.name}, {row.panel, row.name, text::ColorPanelHint}});
  }
  Say(say, {
               {grpMeterColors, text::grpMeterColors},
               {grpTrayIcon, text::grpTrayIcon},
               {Ic1, text::Ic1, text::Ic1Hint},
               {Ic2, text::Ic2, text::Ic2Hint},
               {Ic3, text::Ic3, text::Ic3Hint},
               {ImagesTrayIcon, text::OpenPictureTitle, text::ImagesTrayIconHint},
           });
  OpenPicture.Title = say(text::OpenPictureTitle);
  OpenPicture.Kinds = {{say(text::PictureFilter), "*.bmp"}, {say(text::AllFilesFilter), "*.*"}};
}

void GraphColorsPage::ReadIconFile() {
  OpenPicture.InitialFolder = context_.store.ProgramFile("Icons");
  ImagesTrayIcon.Load(context_.store.Read(setting::TrayIconFile),
                      context_.store.Resolve(setting::TrayIconFile.read));
}

void GraphColorsPage::ImagesTrayIconClick() {
  const std::optional<std::string> path = OpenPicture.Execute(ParentForm());
  if (!path) return;
  context_.meter.tray.ChangePictures(*path);
  context_.Save(setting::TrayIconFile, *path);
  ReadIconFile();
}

}  // namespace preferences
