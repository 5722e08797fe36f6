// The smaller services, as other programs and the user see them.
#include <algorithm>

#include "platform/text.h"
#include "platform/windows/wide_text.h"
#include "tests/contract/windows/desk.h"
#include "tests/desktop/driver/clipboard.h"
#include "tests/desktop/driver/other_program.h"
// Behind the system's own header, which it needs.
#include <shellapi.h>

namespace contract {
namespace {

using platform::KeyCombination;
using platform::TitleOutcome;
using platform::WindowId;

class Services : public DeskTest {
 protected:
  desktop::OtherProgram other_;
};

TEST_F(Services, ClipboardTextReplacesWhatWasThereAndIsRefusedWhileAnotherProgramKeepsItOpen) {
  for (const std::string& text :
       {std::string("\u00FC \u7F51 \U0001F600"), std::string(), std::string(70000, 'x')}) {
    SCOPED_TRACE(text.size());
    EXPECT_TRUE(Platform().clipboard.SetText(text));
    EXPECT_EQ(desktop::ClipboardText(), text);
  }
  const HWND window = other_.Open(L"the other program");
  other_.Do([window] { ::OpenClipboard(window); });
  EXPECT_FALSE(Platform().clipboard.SetText("after"));
  other_.Do([] { ::CloseClipboard(); });
  EXPECT_TRUE(Platform().clipboard.SetText("after"));
  EXPECT_EQ(desktop::ClipboardText(), "after");
}

TEST_F(Services, FontsAreNamedOnceInTheOrderOfTheAlphabetWithoutTheVerticalOnes) {
  const std::vector<std::string> names = Platform().fonts.Families();
  ASSERT_FALSE(names.empty());  // which ones there are is the machine's own
  for (std::size_t at = 0; at < names.size(); ++at) {
    SCOPED_TRACE(names[at]);
    EXPECT_FALSE(names[at].empty() || names[at].front() == '@');
    if (at == 0) continue;
    EXPECT_NE(names[at - 1], names[at]);
    // Only of the first letters every alphabet says the same.
    EXPECT_LE(platform::AsciiLower(names[at - 1])[0], platform::AsciiLower(names[at])[0]);
  }
}

TEST_F(Services, AHotKeyIsHeardUntilItGoesAndRefusedWhereItIsTaken) {
  // No desktop uses these.
  constexpr KeyCombination kKeys{'Y', true, true, true};
  constexpr KeyCombination kOthers{'U', true, true, true};
  platform::HotKeys& keys = Platform().hot_keys;
  int pressed = 0;
  const auto press = [&] {
    const int before = pressed;
    Press({VK_CONTROL, VK_MENU, VK_SHIFT, 'Y'});
    return world_.LetHappen([&] { return pressed > before; });
  };
  std::unique_ptr<platform::HotKey> key;
  key = keys.Register("Tremolux.Test.1", kKeys, [&] {
    ++pressed;
    key.reset();  // while it is heard
  });
  ASSERT_NE(key, nullptr);
  EXPECT_EQ(keys.Register("Tremolux.Test.2", kKeys, [] {}), nullptr);
  EXPECT_TRUE(press());
  other_.Do([] { ::RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT | MOD_SHIFT, 'U'); });
  EXPECT_EQ(keys.Register("Tremolux.Test.1", kOthers, [] {}), nullptr);
  key = keys.Register("Tremolux.Test.1", kKeys, [&] { pressed += 10; });
  ASSERT_NE(key, nullptr) << "name and keys are free again";
  EXPECT_TRUE(press());
  EXPECT_EQ(pressed, 11);
}

TEST_F(Services, AStrokeTogglesALockKey) {
  constexpr std::uint8_t kScanCode = 69;
  platform::Keyboard& keyboard = Platform().keyboard;
  const std::uint8_t before = keyboard.State(VK_SCROLL);
  ASSERT_LE(before, 1) << "the key is not held down";
  for (const int wanted : {1 - before, +before}) {
    keyboard.Send(VK_SCROLL, kScanCode, platform::kKeyExtended);
    keyboard.Send(VK_SCROLL, kScanCode, platform::kKeyExtended | platform::kKeyUp);
    EXPECT_TRUE(world_.LetHappen([&] { return keyboard.State(VK_SCROLL) == wanted; })) << wanted;
  }
}

TEST_F(Services, WhatIsNotThereIsRefusedInSilence) {
  for (const char* path : {"", "C:\\nowhere\\nothing.wav", "\\\\gone\\share\\x.wav", "C:\\"}) {
    Platform().sound.Play(path);
  }
  EXPECT_FALSE(Platform().shell.Open("C:\\no such folder\\no such file.html"));
  platform::Session& session = Platform().session;
  EXPECT_TRUE(session.SetPrivilege("SeShutdownPrivilege", platform::Privilege::kEnable));
  EXPECT_TRUE(session.SetPrivilege("SeShutdownPrivilege", platform::Privilege::kDisable));
  EXPECT_FALSE(session.SetPrivilege("SeNoSuchPrivilege", platform::Privilege::kEnable));
  platform::windows::SingleInstance instances;
  EXPECT_TRUE(instances.ClaimFirst("no\\such\\space")) << "what cannot be made counts as first";
  EXPECT_TRUE(instances.ClaimFirst("no\\such\\space"));
}

TEST_F(Services, TheClockShowsTheUsersTime) {
  SYSTEMTIME local{};
  ::GetLocalTime(&local);
  const platform::DateTime then =
      platform::EncodeDateTime(local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute,
                               local.wSecond, local.wMilliseconds);
  const platform::DateTime now = Platform().clock.Now();
  EXPECT_GE(now, then);
  EXPECT_LT(now - then, 1.0 / 24 / 60) << "a minute";
  EXPECT_GT(Platform().clock.SteadyMilliseconds(), 0);
}

TEST_F(Services, HostsAreLookedUpWhileTheLibraryIsStarted) {
  platform::Sockets& sockets = Platform().sockets;
  EXPECT_EQ(sockets.HostAddresses("localhost"), std::nullopt);
  EXPECT_FALSE(sockets.Start(0x0000)) << "a version that never was";
  ASSERT_TRUE(sockets.Start(0x0101));
  ASSERT_TRUE(sockets.Start(0x0101));
  sockets.Cleanup();
  EXPECT_EQ(sockets.HostAddresses("localhost"), std::vector<std::string>{"127.0.0.1"})
      << "each Start is taken back alone";
  // A space can stand in no name, so that no server is asked.
  EXPECT_EQ(sockets.HostAddresses("no such host"), std::nullopt);
  const std::string name = sockets.HostName();
  EXPECT_TRUE(!name.empty() && name.size() <= 63) << name;
  const auto addresses = sockets.HostAddresses(name);
  ASSERT_TRUE(addresses.has_value());
  for (const std::string& address : *addresses) {
    EXPECT_EQ(std::count(address.begin(), address.end(), '.'), 3) << address;
  }
  sockets.Cleanup();
  EXPECT_EQ(sockets.HostAddresses("localhost"), std::nullopt);
}

TEST_F(Services, TitlesOfOtherWindowsAreSetAndReadUpToTheirLimit) {
  constexpr int kPatience = 5000;  // milliseconds; ample
  platform::OtherWindows& others = Platform().other_windows;
  const auto window = reinterpret_cast<WindowId>(other_.Open(L"Hidden"));
  platform::TopWindowEvents events;
  const auto own = Window("T_frmOwn", platform::Frame::kDialog, events);
  const std::vector<WindowId> all = others.TopLevel();
  for (const WindowId listed : {window, reinterpret_cast<WindowId>(WidgetWindow::Of(*own))}) {
    EXPECT_NE(std::find(all.begin(), all.end(), listed), all.end());
  }
  EXPECT_EQ(others.Title(window, 255).text, "Hidden");
  std::string long_title;
  for (int i = 0; i < 2000; ++i) long_title += "\u00E4";
  for (const std::string& title :
       {std::string("\u00E4 \u6F22 \U0001F600|"), std::string(), long_title}) {
    SCOPED_TRACE(title.size());
    EXPECT_EQ(others.SetTitle(window, title, kPatience), TitleOutcome::kSet);
    EXPECT_EQ(others.Title(window, 4000).text, title);
    EXPECT_FALSE(others.Title(window, 4000).longer);
  }
  EXPECT_EQ(others.Title(window, 255).text, long_title.substr(0, 2 * 255));
  EXPECT_TRUE(others.Title(window, 255).longer);
  EXPECT_FALSE(others.Title(window, 2000).longer) << "just as long as the limit";

  const WindowId nobody{0x7FFFFFFE};
  EXPECT_EQ(others.Title(nobody, 255).text, "");
  EXPECT_EQ(others.SetTitle(nobody, "x", kPatience), TitleOutcome::kRefused);
  other_.Hang();
  EXPECT_EQ(others.Title(window, 3).text, "\u00E4\u00E4\u00E4");
  EXPECT_EQ(others.SetTitle(window, "x", 50), TitleOutcome::kNoAnswer);
  other_.Recover();
  EXPECT_EQ(others.SetTitle(window, "y", kPatience), TitleOutcome::kSet);
  EXPECT_EQ(others.Title(window, 255).text, "y");
}

struct TrayClicks : platform::TrayIconEvents {
  void OnTrayClick() override { ++clicks; }
  void OnTrayMenu(platform::Point at) override { menu_at = at; }
  int clicks = 0;
  platform::Point menu_at;
};

TEST_F(Services, ATrayIconTakesPicturesTextsAndBalloonsOfEverySize) {
  const auto tell = [](WPARAM w, LPARAM l) {  // as the shell does
    ::SendMessageW(::FindWindowW(L"TremoluxTray", nullptr), WM_APP + 1, w, l);
  };
  std::string long_text;
  for (int i = 0; i < 300; ++i) long_text += "\U0001F4F6";  // of two UTF-16 units each
  TrayClicks heard;
  for (const char* when : {"at first", "again"}) {
    SCOPED_TRACE(when);
    const auto icon = Platform().notification_area.CreateIcon(heard);
    EXPECT_GE(icon->PictureSize(), 16);
    for (const int side : {16, 20, 48}) {
      const auto picture = Platform().graphics.CreateBitmap({side, side});
      icon->SetPicture(*picture);
      icon->SetPicture(*picture, 0x00FF00);
    }
    for (const std::string& text : {std::string(), std::string("\u00FC"), long_text}) {
      icon->SetHint(text);
      icon->ShowBalloon(text, text, platform::BalloonIcon::kWarning, 30);
    }
    tell(0, MAKELPARAM(NIN_SELECT, 1));
    tell(static_cast<WPARAM>(MAKELPARAM(-20, 300)), MAKELPARAM(WM_CONTEXTMENU, 1));
    EXPECT_EQ(heard.menu_at, (platform::Point{-20, 300})) << "a monitor may lie left of the first";
  }
  EXPECT_EQ(heard.clicks, 2);
}

}  // namespace
}  // namespace contract
