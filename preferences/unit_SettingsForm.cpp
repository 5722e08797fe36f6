#include "preferences/unit_SettingsForm.h"

#include <memory>
#include <vector>

#include "preferences/page_tree.h"
#include "settings/placement_keys.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

// Design pixels.
constexpr int kTreeWidth = 164;
constexpr int kFormWidth = kMargin + kTreeWidth + kMargin + kPageWidth;
constexpr int kFormHeight = kPageHeight + 5 * kMargin;

}  // namespace

T_frmPreferences::T_frmPreferences(toolkit::Application& app, const display::RunningMeter& meter)
    : Form(app, "T_frmPreferences", platform::Frame::kDialog),
      context_(app, meter),
      TreeItems(*this, "TreeItems"),
      PrefNotebook(*this, "PrefNotebook"),
      general_(PrefNotebook, context_),
      graph_colors_(PrefNotebook, context_),
      graph_grids_(PrefNotebook, context_),
      graph_others_(PrefNotebook, context_),
      text_colors_(PrefNotebook, context_),
      text_other_(PrefNotebook, context_),
      speed_up_(PrefNotebook, "SpeedUp", context_),
      admin_(PrefNotebook, context_),
      interfaces_(PrefNotebook, context_),
      bandwidth_alert_(PrefNotebook, context_),
      notification_(PrefNotebook, context_),
      other_(PrefNotebook, context_),
      reset_settings_(PrefNotebook, context_, [this] { ReadSettings(); }),
      btnClose(*this, "btnClose"),
      placement_(*this, settings::placement_key::kSettings,
                 toolkit::PlacementSaver::Restores::kPlace) {
  PlaceControls();
  Localise();
  TreeItems.SetItemIndex(0);
  TreeItems.OnChange = [this] { TreeItemsChange(); };
  btnClose.OnClick = [this] { Close(); };
}

void T_frmPreferences::PlaceControls() {
  constexpr int kButtonWidth = 90;
  SetClientSize({kFormWidth, kFormHeight});
  toolkit::ApplyLayout({
      {TreeItems, {kMargin, kMargin, kTreeWidth, kPageHeight - 2 * kMargin}},
      {PrefNotebook, {kMargin + kTreeWidth + kMargin, 0, kPageWidth, kPageHeight}},
      {btnClose,
       {kFormWidth - kMargin - kButtonWidth, kFormHeight - kMargin - kButtonHeight, kButtonWidth,
        kButtonHeight}},
  });
  CentreOnScreen();
  placement_.Restore();
}

void T_frmPreferences::Localise() {
  const language::Translation say = context_.language.Chosen();
  SetCaption(say(text::Title));
  std::vector<platform::TreeItem> items;
  for (const PageTreeItem& item : PageTree()) items.push_back({say(item.text), item.level});
  TreeItems.SetItems(items);
  for (Page* page :
       std::initializer_list<Page*>{&general_, &graph_colors_, &graph_grids_, &graph_others_,
                                    &text_colors_, &text_other_, &speed_up_, &admin_, &interfaces_,
                                    &bandwidth_alert_, &notification_, &other_, &reset_settings_}) {
    page->Localise(say);
  }
  btnClose.SetCaption(say(text::btnClose));
  btnClose.SetHint(say(text::btnCloseHint));
}

void T_frmPreferences::Open() {
  if (Showing()) {
    Raise();
  } else {
    ReadSettings();
    TreeItems.FullExpand();
    Show();
  }
}

// In this order; what a page has between others is read there.
void T_frmPreferences::ReadSettings() {
  {
    const Context::Reading scope(context_);
    graph_others_.ReadBevels();
    graph_grids_.Read();
    general_.Read();
    other_.ReadTransparency();
    graph_colors_.ReadColours();
    graph_colors_.ReadIconKind();
    graph_others_.ReadOthers();
    graph_others_.ReadScale();
    graph_colors_.ReadIconFile();
    text_colors_.Read();
    text_other_.ReadLine();
    admin_.Read();
    text_other_.ReadWindowTitle();
    other_.ReadExitAndFade();
    notification_.ReadTicker();
    bandwidth_alert_.Read();
    notification_.ReadRule();
    notification_.ReadActive();
    other_.ReadLeds();
    interfaces_.Read();
  }
  context_.meter.transparency.ApplyShape();
}

void T_frmPreferences::TreeItemsChange() {
  const int row = TreeItems.ItemIndex();
  if (row < 0) return;
  PrefNotebook.SetActivePage(PageTree()[static_cast<std::size_t>(row)].page);
}

std::function<void()> PreferencesOf(toolkit::Application& app, const display::RunningMeter& meter) {
  return [&app, meter, form = std::make_shared<std::unique_ptr<T_frmPreferences>>()] {
    if (!*form) *form = std::make_unique<T_frmPreferences>(app, meter);
    (*form)->Open();
  };
}

}  // namespace preferences
