#include "preferences/unit_SettingsForm.h"

#include <memory>
#include <vector>

#include "preferences/page_tree.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

// Design pixels.
constexpr int kTreeWidth = 164;
constexpr int kFormWidth = kMargin + kTreeWidth + kMargin + kPageWidth;
constexpr int kFormHeight = kPageHeight + 5 * kMargin;

constexpr std::string_view kPlacementKey = "\\Software\\BrisantoNET\\Settings\\SettingsScreen";

ReadStep Next(ReadStep step) { return static_cast<ReadStep>(static_cast<int>(step) + 1); }

}  // namespace

T_frmPreferences::T_frmPreferences(toolkit::Application& app, const display::RunningMeter& meter)
    : Form(app, "T_frmPreferences", platform::Frame::kDialog),
      context_(app, meter),
      placement_(*this, kPlacementKey, toolkit::PlacementSaver::Restores::kPlace) {
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
  for (Page* page : pages_) page->Localise(say);
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
  // A modal window that is open stays above it and keeps the keyboard.
  if (toolkit::Form* modal = App().Modals().Top()) modal->Raise();
}

void T_frmPreferences::ReadSettings() {
  const Context::Reading scope(context_);
  for (ReadStep step{}; step != ReadStep::kEnd; step = Next(step)) {
    for (Page* page : pages_) page->Read(step);
  }
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
