#include "platform/menus.h"

#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

using platform::MenuEntry;

class PlainPainter final : public platform::MenuPainter {
 public:
  platform::Size Measure(const MenuEntry&, platform::Canvas&, int) override { return {150, 18}; }
  void Paint(const MenuEntry&, const platform::MenuEntryState&, platform::Canvas&,
             const platform::Rect&) override {}
  void Highlighted(const MenuEntry*, const platform::Rect&) override {}
};

MenuEntry Entry(int id, const char* text) {
  MenuEntry entry;
  entry.id = id;
  entry.text = text;
  return entry;
}

class MenusTest : public testing::Test {
 protected:
  MenusTest() {
    MenuEntry separator;
    separator.separator = true;
    MenuEntry disabled = Entry(2, "Disabled");
    disabled.enabled = false;
    MenuEntry submenu = Entry(3, "More");
    submenu.children = {Entry(31, "First"), separator, Entry(32, "Graph&&Numeric")};
    submenu.children[0].shortcut = "Ctrl+Alt+F";
    entries_ = {Entry(1, "&Top"), separator, disabled, submenu, Entry(4, "Exit")};

    window_ = desk_->Platform().windowing.CreateTopWindow(
        {"T_frmMenuOwner", "Owner", platform::Frame::kSizeableTool, true}, nullptr, events_);
    window_->SetBounds({300, 300, 200, 100});
    window_->Show(platform::Activation::kActivate);
  }

  int Popup() { return desk_->Platform().menus.Popup(*window_, {310, 310}, entries_, painter_); }

  std::unique_ptr<Desk> desk_ = MakeDesk();
  platform::TopWindowEvents events_;
  std::unique_ptr<platform::TopWindow> window_;
  std::vector<MenuEntry> entries_;
  PlainPainter painter_;
};

TEST_F(MenusTest, TheIdOfTheChosenEntryComesBack) {
  struct Row {
    const char* why;
    const char* text;
    int id;
  };
  static constexpr Row kRows[] = {
      {"the first", "&Top", 1},
      {"behind a separator and a submenu", "Exit", 4},
      {"in a submenu, with a shortcut", "First", 31},
      {"a doubled ampersand stays so in the menu", "Graph&&Numeric", 32},
      {"a disabled one cannot be chosen", "Disabled", 0},
      {"Esc", "", 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    desk_->WillChoose(row.text);
    EXPECT_EQ(Popup(), row.id);
  }
}

TEST_F(MenusTest, ACancelWithoutAMenuDoesNothing) {
  desk_->Platform().menus.Cancel();
  desk_->WillChoose("Exit");
  EXPECT_EQ(Popup(), 4);
}

}  // namespace
}  // namespace contract
