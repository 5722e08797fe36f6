// The page "TextColors": colours and font of the numeric line.
#pragma once

#include "settings/preferences/options.h"
#include "settings/preferences/page.h"
#include "toolkit/label.h"
#include "toolkit/list_box.h"

namespace settings::preferences {

class TextColorsPage final : public Page {
 public:
  TextColorsPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const Translation& say) override;
  void Read();

 private:
  void PlaceControls();
  void ReadFont();
  void FontChooseChange();

  toolkit::Label lblFontColor;
  toolkit::ColourPanel FontColor;
  toolkit::Label lblFontBackground;
  toolkit::ColourPanel FontBackground;
  toolkit::Label lblFont;
  toolkit::FontComboBox FontChoose;

  Options colours_;
};

}  // namespace settings::preferences
