// The page "TextColors": colours and font of the numeric line.
#pragma once

#include "preferences/options.h"
#include "preferences/page.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class TextColorsPage final : public Page {
 public:
  TextColorsPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;
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

}  // namespace preferences
