#include "preferences/graph_grids_page.h"

#include <string>
#include <vector>

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr Range kSpace{0, 1000, 1, text::LineSpaceHint};
constexpr Items kStyles{"LineStyle"};

}  // namespace

GraphGridsPage::GraphGridsPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "GraphGrids", context) {
  constexpr int kHeight = 134;
  constexpr FieldColumn kFields{kGroupTop + kRow + 2, 170};
  // What a list shows until its lines are shown for the first time.
  const std::vector<std::string> styles(5);
  for (toolkit::ComboBox* list :
       std::initializer_list<toolkit::ComboBox*>{&cmbVLineStyle, &cmbHLineStyle}) {
    list->SetItems(styles);
    list->SetItemIndex(static_cast<int>(setting::cmbVLineStyle.read));
  }
  const auto read_styles = [this] { ReadStyles(); };
  Add(ReadStep::kGrids,
      {
          {grpVertical, {kMargin, kMargin, kWidth, kHeight}},
          {vGridsVisibleCheckBox, GroupLine(0), setting::vGridVisible, read_styles},
          {grpHorizontal, {kMargin, kMargin + kHeight + kMargin, kWidth, kHeight}},
          {hGridsVisibleCheckBox, GroupLine(0), setting::hGridVisible, read_styles},
      });
  Add(ReadStep::kGrids, read_styles);
  Add({
      {cmbVLineStyle, kFields.At(0, 150), setting::cmbVLineStyle, kStyles},
      {cmbHLineStyle, kFields.At(0, 150), setting::cmbHLineStyle, kStyles},
  });
  Add(ReadStep::kGrids, {
                            {vLineSpace, kFields.At(1, 80), setting::vLineSpace, kSpace},
                            {vLineColor, kFields.At(2, 80), setting::vLineColor},
                            {hLineSpace, kFields.At(1, 80), setting::hLineSpace, kSpace},
                            {hLineColor, kFields.At(2, 80), setting::hLineColor},
                        });
}

void GraphGridsPage::Localise(const language::Translation& say) {
  Page::Localise(say);
  Say(say, {{cmbVLineStyle, {}, text::LineStyleHint}, {cmbHLineStyle, {}, text::LineStyleHint}});
}

// A style is read with its lines, and only while they are shown: what is drawn and what the list
// says are the same.
void GraphGridsPage::ReadStyles() {
  const Context::Reading reading(context_);
  if (vGridsVisibleCheckBox.Checked()) {
    ShowIn(cmbVLineStyle, context_.store.Read(setting::cmbVLineStyle));
  }
  if (hGridsVisibleCheckBox.Checked()) {
    ShowIn(cmbHLineStyle, context_.store.Read(setting::cmbHLineStyle));
  }
}

}  // namespace preferences
