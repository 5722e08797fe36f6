#include <optional>
#include <string>

#include "display/tray/pictures.h"
#include "preferences/page.h"
#include "toolkit/controls/panel.h"
#include "toolkit/forms/form.h"
#include "toolkit/open_dialog.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kPanelWidth = 48;
constexpr int kMeterHeight = kGroupTop + 4 * kFieldRow + 2;

// Returns the places of a colour in one of the two columns that both groups have.
constexpr Place ColourAt(int column, int top) {
  constexpr int kColumn = (kWidth - 3 * kMargin) / 2;
  return LabelAndField(kMargin + column * (kColumn + kMargin), top, kColumn - kPanelWidth - kMargin,
                       kPanelWidth);
}

// A button that shows the four activity pictures of the tray icon; a click on it chooses others.
class PicturePanel final : public toolkit::ButtonControl {
 public:
  PicturePanel(toolkit::Control& parent, std::string_view name)
      : ButtonControl(parent, name, platform::ButtonKind::kPainted) {}

  // Shows the pictures of a file, or else of `fallback`, or else none.
  void Load(const std::string& path, const std::string& fallback) {
    pictures_.Load(App().Platform().files, path, fallback);
    Invalidate();
  }

  // The size of the whole panel in design pixels.
  static constexpr int kWidth = 94;
  static constexpr int kHeight = 26;

 protected:
  void Paint(platform::Canvas& canvas) override {
    // Sizes in design pixels.
    constexpr int kSide = 16;
    constexpr int kGap = 6;
    constexpr int kPictures = 4;
    const platform::Rect inside = toolkit::DrawFrame(canvas, canvas.Area());
    canvas.Fill(inside, platform::colour::kButtonFace);
    const int side = Scale(kSide);
    const auto picture = App().Platform().graphics.CreateBitmap({side, side});
    if (!pictures_.Loaded() || !picture) return;
    for (int i = 0; i < kPictures; ++i) {
      pictures_.Draw(static_cast<display::TrayActivity>(i), picture->GetCanvas(),
                     platform::colour::kButtonFace);
      canvas.Draw(*picture,
                  {Scale(kGap + i * (kSide + kGap)), (canvas.Extent().height - side) / 2});
    }
  }

 private:
  display::TrayPictures pictures_;
};

// The page of the graph's colours and of the tray icon's kind and colours.
class GraphColorsPage final : public Page {
 public:
  GraphColorsPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "GraphColors", context) {
    const auto at = [](int column, int row) {
      return ColourAt(column, kGroupTop + row * kFieldRow);
    };
    Add(ReadStep::kGraphColours,
        {
            {grpMeterColors, {kMargin, kMargin, kWidth, kMeterHeight}},
            {DownloadColor, at(0, 0), setting::GraphColor_Download},
            {DownloadLightColor, at(0, 1), setting::GraphColor_DownloadLight},
            {DownloadShadowColor, at(0, 2), setting::GraphColor_DownloadShadow},
            {UploadColor, at(1, 0), setting::GraphColor_Upload},
            {UploadLightColor, at(1, 1), setting::GraphColor_UploadLight},
            {UploadShadowColor, at(1, 2), setting::GraphColor_UploadShadow},
            {BackgroundColor, at(0, 3), setting::GraphColor_Background},
            {BorderColor, at(1, 3), setting::GraphColor_Border},
        });
    AddTrayIcon();
  }

  void Localise(const language::Translation& say) override {
    Page::Localise(say);
    OpenPicture.Title = say(text::OpenPictureTitle);
    OpenPicture.Kinds = {{say(text::PictureFilter), "*.bmp"}, {say(text::AllFilesFilter), "*.*"}};
  }

 private:
  void AddTrayIcon() {
    constexpr int kButtonRow = 30;
    constexpr int kRadioWidth = kGroupWidth - PicturePanel::kWidth - kMargin;
    constexpr int kColours = kGroupTop + 3 * kButtonRow;
    constexpr Place kPictures{kMargin + kRadioWidth + kMargin, kGroupTop, PicturePanel::kWidth,
                              PicturePanel::kHeight};
    const auto radio = [](int row) { return Line(kGroupTop + row * kButtonRow + 4, kRadioWidth); };
    Add(ReadStep::kGraphColours,
        {
            {grpTrayIcon,
             {kMargin, kMargin + kMeterHeight + kMargin, kWidth, kColours + kFieldRow + 2}},
            {HisRecColor, ColourAt(0, kColours), setting::GraphColor_HistogramReceiving},
            {HisSendColor, ColourAt(1, kColours), setting::GraphColor_HistogramSend},
        });
    Add(ReadStep::kIconKind, {
                                 {Ic1, radio(0), Choice{setting::IconType, 0}},
                                 {Ic2, radio(1), Choice{setting::IconType, 1}},
                                 {Ic3, radio(2), Choice{setting::IconType, 2}},
                                 {ImagesTrayIcon, kPictures, Says{text::OpenPictureTitle}},
                             });
    Add(ReadStep::kIconFile, [this] { ReadIconFile(); });
    ImagesTrayIcon.OnClick = [this] { ImagesTrayIconClick(); };
  }

  void ReadIconFile() {
    OpenPicture.InitialFolder = context_.store.ProgramFile("Icons");
    ImagesTrayIcon.Load(context_.store.Read(setting::TrayIconFile),
                        context_.store.Resolve(setting::TrayIconFile.read));
  }

  void ImagesTrayIconClick() {
    const std::optional<std::string> path = OpenPicture.Execute(ParentForm());
    if (!path) return;
    context_.Change(setting::TrayIconFile, *path);
    ReadIconFile();
  }

  using LabelledColour = Labelled<toolkit::ColourPanel>;
  toolkit::GroupBox grpMeterColors{*this, "grpMeterColors"};
  LabelledColour DownloadColor{grpMeterColors, "DownloadColor"};
  LabelledColour DownloadLightColor{grpMeterColors, "DownloadLightColor"};
  LabelledColour DownloadShadowColor{grpMeterColors, "DownloadShadowColor"};
  LabelledColour UploadColor{grpMeterColors, "UploadColor"};
  LabelledColour UploadLightColor{grpMeterColors, "UploadLightColor"};
  LabelledColour UploadShadowColor{grpMeterColors, "UploadShadowColor"};
  LabelledColour BackgroundColor{grpMeterColors, "BackgroundColor"};
  LabelledColour BorderColor{grpMeterColors, "BorderColor"};
  toolkit::GroupBox grpTrayIcon{*this, "grpTrayIcon"};
  toolkit::RadioButton Ic1{grpTrayIcon, "Ic1"};
  toolkit::RadioButton Ic2{grpTrayIcon, "Ic2"};
  toolkit::RadioButton Ic3{grpTrayIcon, "Ic3"};
  PicturePanel ImagesTrayIcon{grpTrayIcon, "ImagesTrayIcon"};
  LabelledColour HisRecColor{grpTrayIcon, "HisRecColor"};
  LabelledColour HisSendColor{grpTrayIcon, "HisSendColor"};

  toolkit::OpenDialog OpenPicture;
};

}  // namespace

std::unique_ptr<Page> MakeGraphColorsPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<GraphColorsPage>(notebook, context);
}

}  // namespace preferences
