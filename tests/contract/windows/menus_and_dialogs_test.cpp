// What runs a loop of the system's own: menus and its dialogs.
#include "platform/menus.h"
#include "platform/system_dialogs.h"
#include "tests/contract/windows/desk.h"

namespace contract {
namespace {

using platform::MenuEntry;
using platform::Rect;

struct Painter final : platform::MenuPainter {
  platform::Size Measure(const MenuEntry&, platform::Canvas&, int) override { return {150, 18}; }
  void Paint(const MenuEntry&, const platform::MenuEntryState&, platform::Canvas&,
             const Rect& area) override {
    painted = area;
  }
  void Highlighted(const MenuEntry*, const Rect&) override {}
  Rect painted;
};

MenuEntry Entry(int id, const char* text) {
  MenuEntry entry;
  entry.id = id;
  entry.text = text;
  return entry;
}

class MenusAndDialogs : public DeskTest {
 protected:
  MenusAndDialogs() { owner_->Show(platform::Activation::kActivate); }

  // What the user does as soon as the window of this class hears him. Asked again and again rather
  // than waited for: the system's loop shows it.
  void Then(const wchar_t* window_class, std::function<void()> step) {
    world_.Later([this, window_class, step = std::move(step)] {
      Listens(window_class) ? step() : Then(window_class, step);
    });
  }
  static bool Listens(const wchar_t* window_class) {
    for (const HWND window : desktop::VisibleTops(::GetCurrentProcessId())) {
      if (desktop::HasClass(window, window_class) && ::IsWindowEnabled(window) != FALSE)
        return true;
    }
    return false;
  }
  std::optional<std::string> AskForFile() {
    return Platform().system_dialogs.OpenFile(
        {"Choose", {{"Programs", "*.exe"}, {"All", "*.*"}}, Platform().files.ProgramFolder()},
        *owner_);
  }

  static constexpr wchar_t kMenu[] = L"#32768";
  static constexpr wchar_t kDialog[] = L"#32770";
  platform::TopWindowEvents events_;
  std::unique_ptr<platform::TopWindow> owner_ =
      Window("T_frmOwner", platform::Frame::kDialog, events_);
};

TEST_F(MenusAndDialogs, TheIdOfTheChosenEntryComesBack) {
  MenuEntry separator;
  separator.separator = true;
  MenuEntry disabled = Entry(2, "Disabled");
  disabled.enabled = false;
  MenuEntry submenu = Entry(3, "More");
  submenu.children = {separator, Entry(32, "Graph&&Numeric")};
  submenu.children[1].keys = {VK_F7};
  const std::vector<MenuEntry> entries = {Entry(1, "&Top"), separator, disabled, submenu,
                                          Entry(4, "Exit")};
  struct Row {
    const char* why;
    std::vector<int> keys;
    int id;
  };
  const Row rows[] = {
      {"the last", {VK_UP, VK_RETURN}, 4},
      {"by its own keys, in a closed submenu", {VK_F7}, 32},
      {"a disabled one cannot be chosen", {VK_DOWN, VK_DOWN, VK_RETURN, VK_ESCAPE}, 0},
  };
  Painter painter;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Then(kMenu, [&row] {
      for (const int key : row.keys) desktop::PressKey(key);
    });
    EXPECT_EQ(Platform().menus.Popup({310, 310}, entries, painter), row.id);
    Deliver();  // the keys that it left: under Wine, Enter on a disabled entry ends a menu
  }
  EXPECT_EQ(painter.painted.height, 18);
  EXPECT_NEAR(painter.painted.width, 150, 3) << "without the check mark that the system adds";
}

TEST_F(MenusAndDialogs, AFileOrColourIsChosenOrNoneWhileTheOwnerIsDisabled) {
  constexpr platform::Colour kOdd = 0x123456;
  Then(kDialog, [this] {
    EXPECT_FALSE(owner_->Enabled());
    Platform().system_dialogs.SetEnabled(false);
    EXPECT_FALSE(Listens(kDialog));
    Platform().system_dialogs.SetEnabled(true);
    desktop::Type(Platform().files.ProgramPath());
    desktop::PressKey(VK_RETURN);
  });
  EXPECT_EQ(AskForFile(), Platform().files.ProgramPath());
  EXPECT_TRUE(owner_->Enabled());
  Then(kDialog, [] { desktop::PressKey(VK_ESCAPE); });
  EXPECT_EQ(AskForFile(), std::nullopt);
  Then(kDialog, [] { desktop::PressKey(VK_RETURN); });
  EXPECT_EQ(Platform().system_dialogs.ChooseColour(kOdd, *owner_), kOdd);
  Then(kDialog, [] { desktop::PressKey(VK_ESCAPE); });
  EXPECT_EQ(Platform().system_dialogs.ChooseColour(kOdd, *owner_), std::nullopt);
}

TEST_F(MenusAndDialogs, TheEndOfTheProgramEndsADialogAndEveryLoopAroundIt) {
  bool asked = false;
  world_.Later([&] {
    Then(kDialog, [this] { Platform().message_loop.Quit(); });
    EXPECT_EQ(AskForFile(), std::nullopt);
    asked = true;
  });
  EXPECT_FALSE(Platform().message_loop.RunUntil([] { return false; }));
  EXPECT_TRUE(asked);
}

}  // namespace
}  // namespace contract
