#include <algorithm>
#include <string>
#include <vector>

#include "preferences/page.h"
#include "toolkit/controls/lists.h"

namespace preferences {
namespace {

namespace setting = settings::setting;

// The page of the colours and the font of the numeric line.
class TextColorsPage final : public Page {
 public:
  TextColorsPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "TextColors", context) {
    constexpr FieldColumn kFields{kMargin, 170};
    Add(ReadStep::kNumericColours,
        {
            {FontColor, kFields.At(0, 80), setting::GraphColor_Font},
            {FontBackground, kFields.At(1, 80), setting::GraphColor_FontBackground},
            {FontChoose, kFields.At(2)},
        });
    Add(ReadStep::kNumericColours, [this] { ReadFont(); });
    FontChoose.OnChange = [this] { FontChooseChange(); };
  }

 private:
  // The name counts, in small letters or capitals as for the system: another font may have come to
  // stand at the stored index. A font that is not installed is in use all the same, and stands
  // behind the others.
  void ReadFont() {
    const std::string name = context_.store.Read(setting::FontName);
    std::vector<std::string> fonts = context_.app.Platform().fonts.Families();
    platform::Locale& locale = context_.app.Platform().locale;
    const auto is_named = [&locale, wanted = locale.Lower(name)](const std::string& font) {
      return locale.Lower(font) == wanted;
    };
    if (!name.empty() && std::ranges::none_of(fonts, is_named)) fonts.push_back(name);
    if (fonts != FontChoose.Items()) {
      FontChoose.SetItemIndex(-1);
      FontChoose.SetItems(fonts);
    }
    const auto found = std::find_if(fonts.begin(), fonts.end(), is_named);
    FontChoose.SetItemIndex(found != fonts.end() ? static_cast<int>(found - fonts.begin()) : -1);
  }

  void FontChooseChange() {
    const int index = FontChoose.ItemIndex();
    if (index < 0) return;
    const std::string& name = FontChoose.Items()[static_cast<std::size_t>(index)];
    context_.Change(setting::FontName, name);
    context_.Change(setting::FontNameIndex, index);
  }

  Labelled<toolkit::ColourPanel> FontColor{*this, "FontColor"};
  Labelled<toolkit::ColourPanel> FontBackground{*this, "FontBackground"};
  Labelled<toolkit::FontComboBox> FontChoose{*this, "lblFont", "FontChoose"};
};

}  // namespace

std::unique_ptr<Page> MakeTextColorsPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<TextColorsPage>(notebook, context);
}

}  // namespace preferences
