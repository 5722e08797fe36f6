// The page "GraphColors": colours of the graph, kind and colours of the tray icon.
#pragma once

#include "preferences/options.h"
#include "preferences/page.h"
#include "preferences/picture_panel.h"
#include "toolkit/controls/group_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/open_dialog.h"

namespace preferences {

class GraphColorsPage final : public Page {
 public:
  GraphColorsPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Parts of the settings read, which has other pages between them.
  void ReadColours() { colours_.Read(); }
  void ReadIconKind() { icon_.Read(); }
  void ReadIconFile();

 private:
  void PlaceControls();
  void PlaceTrayControls(int top);
  void ConnectHandlers();
  void ImagesTrayIconClick();

  toolkit::GroupBox grpMeterColors;
  toolkit::Label lblDownloadColor;
  toolkit::ColourPanel DownloadColor;
  toolkit::Label lblDownloadLightColor;
  toolkit::ColourPanel DownloadLightColor;
  toolkit::Label lblDownloadShadowColor;
  toolkit::ColourPanel DownloadShadowColor;
  toolkit::Label lblUploadColor;
  toolkit::ColourPanel UploadColor;
  toolkit::Label lblUploadLightColor;
  toolkit::ColourPanel UploadLightColor;
  toolkit::Label lblUploadShadowColor;
  toolkit::ColourPanel UploadShadowColor;
  toolkit::Label lblBackgroundColor;
  toolkit::ColourPanel BackgroundColor;
  toolkit::Label lblBorderColor;
  toolkit::ColourPanel BorderColor;
  toolkit::GroupBox grpTrayIcon;
  toolkit::RadioButton Ic1;
  toolkit::RadioButton Ic2;
  toolkit::RadioButton Ic3;
  PicturePanel ImagesTrayIcon;
  toolkit::Label lblHisRecColor;
  toolkit::ColourPanel HisRecColor;
  toolkit::Label lblHisSendColor;
  toolkit::ColourPanel HisSendColor;

  toolkit::OpenDialog OpenPicture;
  Options colours_;
  Options icon_;
};

}  // namespace preferences
