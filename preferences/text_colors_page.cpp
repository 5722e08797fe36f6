#include "preferences/text_colors_page.h"

#include <algorithm>

#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

}  // namespace

TextColorsPage::TextColorsPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "TextColors", context),
      lblFontColor(*this, "lblFontColor", toolkit::kCaptionText),
      FontColor(*this, "FontColor"),
      lblFontBackground(*this, "lblFontBackground", toolkit::kCaptionText),
      FontBackground(*this, "FontBackground"),
      lblFont(*this, "lblFont", toolkit::kCaptionText),
      FontChoose(*this, "FontChoose"),
      colours_(context) {
  PlaceControls();
  colours_.Connect({
      {FontColor, setting::GraphColor_Font, text::GraphColor_Font,
       [](const Meter& m, platform::Colour colour) { m.label.SetFontColour(colour); }},
      {FontBackground, setting::GraphColor_FontBackground, text::GraphColor_FontBackground,
       [](const Meter& m, platform::Colour colour) { m.label.SetColour(colour); }},
  });
  FontChoose.OnChange = [this] { FontChooseChange(); };
}

void TextColorsPage::PlaceControls() {
  constexpr FieldColumn kFields{kMargin, 170};
  toolkit::ApplyLayout({
      {lblFontColor, kFields.Label(0)},
      {FontColor, kFields.Field(0, 80)},
      {lblFontBackground, kFields.Label(1)},
      {FontBackground, kFields.Field(1, 80)},
      {lblFont, kFields.Label(2)},
      {FontChoose, kFields.Field(2, kFields.FieldWidth())},
  });
}

void TextColorsPage::Localise(const language::Translation& say) {
  Say(say, {
               {lblFontColor, text::GraphColor_Font},
               {FontColor, text::GraphColor_Font, text::ColorPanelHint},
               {lblFontBackground, text::GraphColor_FontBackground},
               {FontBackground, text::GraphColor_FontBackground, text::ColorPanelHint},
               {lblFont, text::lblFont},
               {FontChoose, {}, text::FontChooseHint},
           });
}

void TextColorsPage::Read() {
  colours_.Read();
  ReadFont();
}

// The name counts, as the system reads it in small letters or capitals: another font may have come
// to stand at the stored index. One that is not installed leaves the list without a choice.
void TextColorsPage::ReadFont() {
  const std::int64_t index = context_.store.Read(setting::FontNameIndex);
  const std::string name = context_.store.Read(setting::FontName);
  const std::vector<std::string> fonts = context_.app.Platform().fonts.Families();
  if (fonts != FontChoose.Items()) {
    FontChoose.SetItemIndex(-1);
    FontChoose.SetItems(fonts);
  }
  platform::Locale& locale = context_.app.Platform().locale;
  const auto is_named = [&locale, wanted = locale.Lower(name)](const std::string& font) {
    return locale.Lower(font) == wanted;
  };
  if (index >= 0 && index < std::ssize(fonts) && is_named(fonts[static_cast<std::size_t>(index)])) {
    FontChoose.SetItemIndex(static_cast<int>(index));
    return;
  }
  const auto found = std::find_if(fonts.begin(), fonts.end(), is_named);
  FontChoose.SetItemIndex(found != fonts.end() ? static_cast<int>(found - fonts.begin()) : -1);
}

void TextColorsPage::FontChooseChange() {
  const int index = FontChoose.ItemIndex();
  if (index < 0) return;
  const std::string& name = FontChoose.Items()[static_cast<std::size_t>(index)];
  platform::FontSpec font = context_.meter.label.Font();
  font.face = name;
  context_.meter.label.SetFont(font);
  context_.Save(setting::FontName, name);
  context_.Save(setting::FontNameIndex, index);
}

}  // namespace preferences
