#include "preferences/unit_SettingsForm.h"

#include <algorithm>
#include <iterator>

#include "settings/placement_keys.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

// Sizes in design pixels.
constexpr int kTreeWidth = 164;
constexpr int kFormWidth = kMargin + kTreeWidth + kMargin + kPageWidth;
constexpr int kFormHeight = kPageHeight + 5 * kMargin;

// Makes the pages in the order of the notebook.
std::vector<std::unique_ptr<Page>> MakePages(toolkit::Notebook& notebook, Context& context) {
  const auto empty = [](toolkit::Notebook& of, Context& with) {
    return std::make_unique<Page>(of, "SpeedUp", with);
  };
  std::vector<std::unique_ptr<Page>> pages;
  for (MakePage* make : std::initializer_list<MakePage*>{
           MakeGeneralPage, MakeGraphColorsPage, MakeGraphGridsPage, MakeGraphOthersPage,
           MakeTextColorsPage, MakeTextOtherPage, empty, MakeAdminPage, MakeInterfacesPage,
           MakeBandwidthAlertPage, MakeNotificationPage, MakeOtherPage, MakeResetSettingsPage}) {
    pages.push_back(make(notebook, context));
  }
  return pages;
}

struct PageTreeItem {
  int number;  // identifies the item, wherever it stands
  int level;   // 0 at the root
  language::TextEntry text;
  std::string_view page;  // empty for a heading, which leads nowhere
};

// The items stand in the order of the expanded tree.
constexpr PageTreeItem kTree[] = {
    {0, 0, text::TreeItem0, "General"},
    {4, 0, text::TreeItem4, ""},
    {1, 1, text::TreeItem1, "GraphColors"},
    {15, 1, text::TreeItem15, "GraphGrids"},
    {2, 1, text::TreeItem2, "GraphOthers"},
    {9, 0, text::TreeItem9, ""},
    {3, 1, text::TreeItem3, "TextColors"},
    {11, 1, text::TreeItem11, "TextOther"},
    {14, 0, text::TreeItem14, ""},
    {5, 1, text::TreeItem5, "Notification"},
    {13, 1, text::TreeItem13, "BandwidthAlert"},
    {6, 0, text::TreeItem6, "Interfaces"},
    {7, 0, text::TreeItem7, "Admin"},
    {8, 0, text::TreeItem8, "Other"},
    // These items are kept although they show nothing: two have an empty page, one a page that does
    // not exist.
    {10, 0, text::TreeItem10, "SpeedUp"},
    {16, 0, text::TreeItem16, "BrisantoScript"},
    {17, 0, text::TreeItem17, "SpeedUp"},
    {12, 0, text::TreeItem12, "ResetSettings"},
};

ReadStep Next(ReadStep step) { return static_cast<ReadStep>(static_cast<int>(step) + 1); }

}  // namespace

T_frmPreferences::T_frmPreferences(toolkit::Application& app, const display::RunningMeter& meter)
    : Form(app, "T_frmPreferences", platform::Frame::kDialog),
      context_(app, meter),
      pages_(MakePages(PrefNotebook, context_)),
      placement_(*this, settings::placement_key::kSettings,
                 toolkit::PlacementSaver::Restores::kPlace) {
  context_.ReadSettings = [this] { ReadSettings(); };
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
  for (const PageTreeItem& item : kTree) items.push_back({say(item.text), item.level});
  TreeItems.SetItems(items);
  for (const auto& page : pages_) page->Localise(say);
  btnClose.SetCaption(say(text::btnClose));
  btnClose.SetHint(say(text::btnCloseHint));
}

void T_frmPreferences::Open(std::string_view page) {
  if (Showing()) {
    Raise();
  } else {
    ReadSettings();
    TreeItems.FullExpand();
    Show();
  }
  const auto item =
      std::ranges::find_if(kTree, [page](const PageTreeItem& i) { return i.page == page; });
  if (!page.empty() && item != std::end(kTree)) {
    TreeItems.SetItemIndex(static_cast<int>(item - std::begin(kTree)));
  }
}

void T_frmPreferences::ReadSettings() {
  const Context::Reading scope(context_);
  for (ReadStep step{}; step != ReadStep::kEnd; step = Next(step)) {
    for (const auto& page : pages_) page->Read(step);
  }
}

void T_frmPreferences::TreeItemsChange() {
  const int row = TreeItems.ItemIndex();
  if (row < 0) return;
  PrefNotebook.SetActivePage(kTree[row].page);
}

std::function<void(std::string_view page)> PreferencesOf(toolkit::Application& app,
                                                         const display::RunningMeter& meter) {
  return [&app, meter,
          form = std::make_shared<std::unique_ptr<T_frmPreferences>>()](std::string_view page) {
    if (!*form) *form = std::make_unique<T_frmPreferences>(app, meter);
    (*form)->Open(page);
  };
}

}  // namespace preferences
