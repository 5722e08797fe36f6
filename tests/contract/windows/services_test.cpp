// The smaller services, as other programs and the user see them.
#include <algorithm>

#include "tests/contract/windows/desk.h"
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
  const std::string text = "\u00FC \u7F51 \U0001F600" + std::string(70000, 'x');
  EXPECT_TRUE(Platform().clipboard.SetText(text));
  EXPECT_EQ(desktop::ClipboardText(), text);
  const HWND window = other_.Open(L"the other program");
  other_.Do([window] { ::OpenClipboard(window); });
  EXPECT_FALSE(Platform().clipboard.SetText("after"));
  other_.Do([] { ::CloseClipboard(); });
  EXPECT_TRUE(Platform().clipboard.SetText("after"));
}

TEST_F(Services, FontsAreNamedOnceWithoutTheVerticalOnes) {
  const std::vector<std::string> names = Platform().fonts.Families();
  ASSERT_FALSE(names.empty());  // which ones there are is the machine's own
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
  for (const std::string& name : names) EXPECT_NE(name.substr(0, 1), "@");
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
  EXPECT_FALSE(session.SetPrivilege("SeNoSuchPrivilege", platform::Privilege::kEnable));
  EXPECT_TRUE(platform::windows::SingleInstance().ClaimFirst("no\\such\\space"))
      << "what cannot be made counts as first";
}

TEST_F(Services, HostsAreLookedUpWhileTheLibraryIsStarted) {
  platform::Sockets& sockets = Platform().sockets;
  EXPECT_FALSE(sockets.Start(0x0000)) << "a version that never was";
  ASSERT_TRUE(sockets.Start(0x0101));
  const auto found = sockets.HostAddresses("localhost");
  ASSERT_TRUE(found && !found->empty());
  EXPECT_EQ(found->front(), "127.0.0.1") << "a newer Wine names it once for each family";
  // A space can stand in no name, so that no server is asked.
  EXPECT_EQ(sockets.HostAddresses("no such host"), std::nullopt);
  const std::string name = sockets.HostName();
  EXPECT_TRUE(!name.empty() && name.size() <= 63) << name;
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
  EXPECT_NE(std::find(all.begin(), all.end(), window), all.end());
  std::string long_title;
  for (int i = 0; i < 2000; ++i) long_title += "\u00E4";
  for (const std::string& title :
       {std::string("\u00E4 \u6F22 \U0001F600|"), std::string(), long_title}) {
    SCOPED_TRACE(title.size());
    EXPECT_EQ(others.SetTitle(window, title, kPatience), TitleOutcome::kSet);
    EXPECT_EQ(others.Title(window, 4000).text, title);
  }
  EXPECT_EQ(others.Title(window, 255).text, long_title.substr(0, 2 * 255));
  EXPECT_TRUE(others.Title(window, 255).longer);
  EXPECT_FALSE(others.Title(window, 2000).longer) << "just as long as the limit";

  const WindowId nobody{0x7FFFFFFE};
  EXPECT_EQ(others.Title(nobody, 255).text, "");
  EXPECT_EQ(others.SetTitle(nobody, "x", kPatience), TitleOutcome::kRefused);
  // While this thread waits for the other program, its own window hangs.
  const auto hanging = reinterpret_cast<WindowId>(WidgetWindow::Of(*own));
  other_.Do([&] {
    EXPECT_EQ(others.Title(hanging, 3).text, "T_f");
    EXPECT_EQ(others.SetTitle(hanging, "x", 50), TitleOutcome::kNoAnswer);
  });
}

struct TrayClicks : platform::TrayIconEvents {
  void OnTrayClick() override { ++clicks; }
  void OnTrayMenu(platform::Point at) override { menu_at = at; }
  int clicks = 0;
  platform::Point menu_at;
};

// The taskbar, as programs find it: a window in front of the real one, which takes what they ask of
// the notification area or refuses it.
class Taskbar {
 public:
  Taskbar() {
    WNDCLASSW shell{};
    shell.lpszClassName = kClass;
    shell.lpfnWndProc = [](HWND window, UINT message, WPARAM w, LPARAM l) -> LRESULT {
      if (message != WM_COPYDATA) return ::DefWindowProcW(window, message, w, l);
      const auto& data = *reinterpret_cast<const COPYDATASTRUCT*>(l);
      asked.assign(static_cast<const wchar_t*>(data.lpData), data.cbData / sizeof(wchar_t));
      return takes ? TRUE : FALSE;
    };
    ::RegisterClassW(&shell);
    window_ = ::CreateWindowExW(WS_EX_TOPMOST, kClass, L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                nullptr, nullptr);
    ::SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  ~Taskbar() {
    ::DestroyWindow(window_);
    ::UnregisterClassW(kClass, nullptr);
  }
  Taskbar(const Taskbar&) = delete;
  Taskbar& operator=(const Taskbar&) = delete;
  [[nodiscard]] bool InFront() const { return ::FindWindowW(kClass, nullptr) == window_; }

  static inline std::wstring asked;  // the latest request
  static inline bool takes = false;

 private:
  static constexpr wchar_t kClass[] = L"Shell_TrayWnd";
  HWND window_ = nullptr;
};

TEST_F(Services, ATrayIconIsAddedUntilTheShellTakesItAndTellsWhatItShows) {
  const auto tell = [](UINT message, WPARAM w, LPARAM l) {  // as the shell does
    ::SendMessageW(::FindWindowW(L"TremoluxTray", nullptr), message, w, l);
  };
  const Taskbar taskbar;
  ASSERT_TRUE(taskbar.InFront());
  TrayClicks heard;
  const auto icon = Platform().notification_area.CreateIcon(heard);
  const auto picture = Platform().graphics.CreateBitmap({20, 20});
  EXPECT_FALSE(icon->SetPicture(*picture)) << "the user's own windows come first";
  const auto await_request = [&] {
    Taskbar::asked.clear();
    return world_.LetHappen([] { return !Taskbar::asked.empty(); });
  };
  EXPECT_TRUE(await_request());
  Taskbar::takes = true;
  EXPECT_TRUE(await_request()) << "a picture would add the icon by itself";
  EXPECT_TRUE(icon->SetPicture(*picture, 0x00FF00));
  Taskbar::asked.clear();
  tell(::RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  EXPECT_FALSE(Taskbar::asked.empty()) << "the shell has started anew";

  for (const auto& [kind, flag] : {std::pair{platform::BalloonIcon::kNone, NIIF_NONE},
                                   {platform::BalloonIcon::kInformation, NIIF_INFO},
                                   {platform::BalloonIcon::kWarning, NIIF_WARNING},
                                   {platform::BalloonIcon::kError, NIIF_ERROR}}) {
    icon->ShowBalloon("A title", "", kind, 30);
    // A request without a balloon brings none of it.
    const std::size_t title = Taskbar::asked.find(L"A title");
    ASSERT_NE(title, std::wstring::npos);
    EXPECT_EQ(Taskbar::asked.at(title + std::size(NOTIFYICONDATAW{}.szInfoTitle)), flag);
  }
  std::string long_text;
  for (int i = 0; i < 300; ++i) long_text += "\U0001F4F6";
  icon->SetHint(long_text);
  icon->ShowBalloon(long_text, long_text, platform::BalloonIcon::kNone, 30);
  EXPECT_NE(Taskbar::asked.find(std::wstring(L"\U0001F4F6\0", 3)), std::wstring::npos);
  EXPECT_EQ(Taskbar::asked.find(std::wstring(L"\xD83D\0", 2)), std::wstring::npos) << "a half";

  for (int times = 0; times < 2; ++times) tell(WM_APP + 1, 0, MAKELPARAM(NIN_KEYSELECT, 1));
  EXPECT_EQ(heard.clicks, 1) << "the shell tells of each press twice";
  tell(WM_APP + 1, static_cast<WPARAM>(MAKELPARAM(-20, 300)), MAKELPARAM(WM_CONTEXTMENU, 1));
  EXPECT_EQ(heard.menu_at, (platform::Point{-20, 300})) << "a monitor may lie left of the first";
}

}  // namespace
}  // namespace contract
