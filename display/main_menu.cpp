#include "display/main_menu.h"

#include "display/images.h"

namespace display {
namespace {

namespace text = language::text;

using Item = toolkit::MenuItem* MainMenu::*;

constexpr Item kMainLevel = nullptr;
constexpr int kNoImage = -1;
constexpr bool kSeparatorBefore = true;

// The menu from top to bottom.
struct Row {
  Item item;
  Item parent;
  language::TextEntry text;
  int image = kNoImage;
  bool separator_before = false;
};

constexpr Row kRows[] = {
    {&MainMenu::ConnectionInformations1, kMainLevel, text::MainForm::ConnectionInformations1,
     kStatisticsImage},
    {&MainMenu::conenctionMonitor1, kMainLevel, text::MainForm::conenctionMonitor1, kAdapterImage},
    {&MainMenu::ConnectionSources1, kMainLevel, text::MainForm::ConnectionSources1, kSourcesImage},
    {&MainMenu::GraphDisplayOptions1, kMainLevel, text::MainForm::GraphDisplayOptions1, kGraphImage,
     kSeparatorBefore},
    {&MainMenu::mnuAlwaysTopOn, &MainMenu::GraphDisplayOptions1, text::MainForm::mnuAlwaysTopOn},
    {&MainMenu::ShowHide1, &MainMenu::GraphDisplayOptions1, text::MainForm::ShowHide1},
    {&MainMenu::mnuGraphMode, &MainMenu::GraphDisplayOptions1, text::MainForm::mnuGraphMode,
     kNoImage, kSeparatorBefore},
    {&MainMenu::mnuTextMode, &MainMenu::GraphDisplayOptions1, text::MainForm::mnuTextMode},
    {&MainMenu::mnuTextandGraph, &MainMenu::GraphDisplayOptions1, text::MainForm::mnuTextandGraph},
    {&MainMenu::Clear1, &MainMenu::GraphDisplayOptions1, text::MainForm::Clear1, kNoImage,
     kSeparatorBefore},
    {&MainMenu::Transparent1, &MainMenu::GraphDisplayOptions1, text::MainForm::Transparent1},
    {&MainMenu::mnuTransparent2k, &MainMenu::Transparent1, text::MainForm::mnuTransparent2k},
    {&MainMenu::mnuTransparent, &MainMenu::Transparent1, text::MainForm::mnuTransparent},
    {&MainMenu::Settings1, kMainLevel, text::MainForm::Settings1, kSettingsImage},
    {&MainMenu::HElp1, kMainLevel, text::MainForm::HElp1, kHelpImage, kSeparatorBefore},
    {&MainMenu::HelpContents1, &MainMenu::HElp1, text::MainForm::HelpContents1},
    {&MainMenu::AboutBrisantoXP1, &MainMenu::HElp1, text::MainForm::AboutBrisantoXP1},
    {&MainMenu::Close1, kMainLevel, text::MainForm::Close1, kExitImage, kSeparatorBefore},
};

}  // namespace

MainMenu::MainMenu(toolkit::Application& app) : popup(app, kMenuImages) {
  for (const Row& row : kRows) {
    toolkit::MenuItem& parent = row.parent == kMainLevel ? popup.Items : *(this->*row.parent);
    if (row.separator_before) parent.AddSeparator();
    toolkit::MenuItem& item = parent.Add(row.text.english);
    item.ImageIndex = row.image;
    this->*row.item = &item;
  }
  mnuGraphMode->RadioItem = true;
  mnuTextMode->RadioItem = true;
  mnuTextandGraph->RadioItem = true;
  mnuTextandGraph->SetChecked(true);
  mnuTransparent2k->ShortCut = toolkit::kCtrl | toolkit::kAlt | 'D';
  mnuTransparent->ShortCut = toolkit::kCtrl | toolkit::kAlt | 'F';
}

void MainMenu::Localise(const language::Language& language) {
  const language::Translation say = language.Chosen();
  for (const Row& row : kRows) (this->*row.item)->Caption = say(row.text);
  // The hint names a key that is not registered; its text is kept.
  Transparent1->Hint = say(text::MainForm::Transparent1Hint);
}

}  // namespace display
