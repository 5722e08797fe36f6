// The page "GraphColors": colours of the graph, kind and colours of the tray icon.
#pragma once

#include "preferences/page.h"
#include "preferences/picture_panel.h"
#include "toolkit/open_dialog.h"

namespace preferences {

class GraphColorsPage final : public Page {
 public:
  GraphColorsPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

 private:
  using LabelledColour = Labelled<toolkit::ColourPanel>;

  void AddTrayIcon(int top);
  void ReadIconFile();
  void ImagesTrayIconClick();

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

}  // namespace preferences
