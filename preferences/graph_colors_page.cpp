#include "preferences/graph_colors_page.h"

#include <optional>
#include <string>

#include "toolkit/forms/form.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kPanelWidth = 48;

}  // namespace

GraphColorsPage::GraphColorsPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "GraphColors", context) {
  constexpr int kHeight = kGroupTop + 4 * kFieldRow + 2;
  const auto at = [](int column, int row) {
    constexpr int kColumn = (kWidth - 3 * kMargin) / 2;
    return LabelAndField(kMargin + column * (kColumn + kMargin), kGroupTop + row * kFieldRow,
                         kColumn - kPanelWidth - kMargin, kPanelWidth);
  };
  Add(ReadStep::kGraphColours,
      {
          {grpMeterColors, {kMargin, kMargin, kWidth, kHeight}},
          {DownloadColor, at(0, 0), setting::GraphColor_Download},
          {DownloadLightColor, at(0, 1), setting::GraphColor_DownloadLight},
          {DownloadShadowColor, at(0, 2), setting::GraphColor_DownloadShadow},
          {UploadColor, at(1, 0), setting::GraphColor_Upload},
          {UploadLightColor, at(1, 1), setting::GraphColor_UploadLight},
          {UploadShadowColor, at(1, 2), setting::GraphColor_UploadShadow},
          {BackgroundColor, at(0, 3), setting::GraphColor_Background},
          {BorderColor, at(1, 3), setting::GraphColor_Border},
      });
  AddTrayIcon(kMargin + kHeight + kMargin);
}

void GraphColorsPage::AddTrayIcon(int top) {
  constexpr int kButtonRow = 30;
  constexpr int kRadioWidth = kGroupWidth - PicturePanel::kWidth - kMargin;
  constexpr int kLabelWidth = 200;
  constexpr int kColours = kGroupTop + 3 * kButtonRow;
  const auto radio = [](int row) { return Line(kGroupTop + row * kButtonRow + 4, kRadioWidth); };
  Add(ReadStep::kGraphColours,
      {
          {grpTrayIcon, {kMargin, top, kWidth, kColours + 2 * kFieldRow + 2}},
          {HisRecColor, LabelAndField(kMargin, kColours, kLabelWidth, kPanelWidth),
           setting::GraphColor_HistogramReceiving},
          {HisSendColor, LabelAndField(kMargin, kColours + kFieldRow, kLabelWidth, kPanelWidth),
           setting::GraphColor_HistogramSend},
      });
  Add(ReadStep::kIconKind, {
                               {Ic1, radio(0), Choice{setting::IconType, 0}},
                               {Ic2, radio(1), Choice{setting::IconType, 1}},
                               {Ic3, radio(2), Choice{setting::IconType, 2}},
                               {ImagesTrayIcon,
                                {kMargin + kRadioWidth + kMargin, kGroupTop, PicturePanel::kWidth,
                                 PicturePanel::kHeight}},
                           });
  Add(ReadStep::kIconFile, [this] { ReadIconFile(); });
  ImagesTrayIcon.OnClick = [this] { ImagesTrayIconClick(); };
}

void GraphColorsPage::Localise(const language::Translation& say) {
  Page::Localise(say);
  Say(say, {{ImagesTrayIcon, text::OpenPictureTitle}});
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
  context_.Change(setting::TrayIconFile, *path);
  ReadIconFile();
}

}  // namespace preferences
