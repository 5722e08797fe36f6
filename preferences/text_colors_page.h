// The page "TextColors": colours and font of the numeric line.
#pragma once

#include "preferences/page.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class TextColorsPage final : public Page {
 public:
  TextColorsPage(toolkit::Notebook& notebook, Context& context);

 private:
  void ReadFont();
  void FontChooseChange();

  Labelled<toolkit::ColourPanel> FontColor{*this, "FontColor"};
  Labelled<toolkit::ColourPanel> FontBackground{*this, "FontBackground"};
  Labelled<toolkit::FontComboBox> FontChoose{*this, "lblFont", "FontChoose"};
};

}  // namespace preferences
