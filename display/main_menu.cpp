#include "display/main_menu.h"

#include <string_view>

#include "display/menu_images.h"

namespace display {
namespace {

using Item = toolkit::MenuItem* MainMenu::*;

constexpr Item kMainLevel = nullptr;
constexpr int kNoImage = -1;
constexpr bool kSeparatorBefore = true;

// The menu from top to bottom. An item's name is also the key of its text.
struct Row {
  Item item;
  Item parent;
  std::string_view name;
  std::string_view caption;
  int image = kNoImage;
  bool separator_before = false;
};

constexpr Row kRows[] = {
    {&MainMenu::ConnectionInformations1, kMainLevel, "ConnectionInformations1", "DL-UL Statistics",
     kStatisticsImage},
    {&MainMenu::conenctionMonitor1, kMainLevel, "conenctionMonitor1", "Connection Statistics",
     kAdapterImage},
    {&MainMenu::ConnectionSources1, kMainLevel, "ConnectionSources1", "Connection Sources",
     kSourcesImage},
    {&MainMenu::GraphDisplayOptions1, kMainLevel, "GraphDisplayOptions1", "Graph Options",
     kGraphImage, kSeparatorBefore},
    {&MainMenu::mnuAlwaysTopOn, &MainMenu::GraphDisplayOptions1, "mnuAlwaysTopOn", "Always on Top"},
    {&MainMenu::ShowHide1, &MainMenu::GraphDisplayOptions1, "ShowHide1", "Show / Hide Graph"},
    {&MainMenu::mnuGraphMode, &MainMenu::GraphDisplayOptions1, "mnuGraphMode", "Graphic", kNoImage,
     kSeparatorBefore},
    {&MainMenu::mnuTextMode, &MainMenu::GraphDisplayOptions1, "mnuTextMode", "Numeric"},
    {&MainMenu::mnuTextandGraph, &MainMenu::GraphDisplayOptions1, "mnuTextandGraph",
     "Graph&&Numeric"},
    {&MainMenu::Clear1, &MainMenu::GraphDisplayOptions1, "Clear1", "Clear Graph", kNoImage,
     kSeparatorBefore},
    {&MainMenu::Transparent1, &MainMenu::GraphDisplayOptions1, "Transparent1",
     "Graph Transparency Options"},
    {&MainMenu::mnuTransparent2k, &MainMenu::Transparent1, "mnuTransparent2k", "Windows XP Style"},
    {&MainMenu::mnuTransparent, &MainMenu::Transparent1, "mnuTransparent", "Custom Transparency"},
    {&MainMenu::Settings1, kMainLevel, "Settings1", "Settings...", kSettingsImage},
    {&MainMenu::HElp1, kMainLevel, "HElp1", "Help", kHelpImage, kSeparatorBefore},
    {&MainMenu::HelpContents1, &MainMenu::HElp1, "HelpContents1", "Help Contents"},
    {&MainMenu::AboutBrisantoXP1, &MainMenu::HElp1, "AboutBrisantoXP1", "About Korvane Tremolux"},
    {&MainMenu::Close1, kMainLevel, "Close1", "Exit", kExitImage, kSeparatorBefore},
};

}  // namespace

MainMenu::MainMenu(toolkit::Application& app) : popup(app, kMenuImages) {
  for (const Row& row : kRows) {
    toolkit::MenuItem& parent = row.parent == kMainLevel ? popup.Items : *(this->*row.parent);
    if (row.separator_before) parent.AddSeparator();
    toolkit::MenuItem& item = parent.Add(row.caption);
    item.ImageIndex = row.image;
    this->*row.item = &item;
  }
  mnuAlwaysTopOn->SetChecked(true);
  mnuGraphMode->RadioItem = true;
  mnuTextMode->RadioItem = true;
  mnuTextandGraph->RadioItem = true;
  mnuTextandGraph->SetChecked(true);
  mnuTransparent2k->ShortCut = toolkit::kCtrl | toolkit::kAlt | 'D';
  mnuTransparent->ShortCut = toolkit::kCtrl | toolkit::kAlt | 'F';
  // No such key is registered; users know the hint as it is.
  Transparent1->Hint = "ShortCut [ Ctrl+Alt+S ]";
}

void MainMenu::Localise(const settings::Language& language) {
  for (const Row& row : kRows) {
    (this->*row.item)->Caption = language.Text("MainForm", row.name, row.caption);
  }
}

}  // namespace display
