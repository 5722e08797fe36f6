// The notification area.
#pragma once

#include <optional>
#include <string>

#include "platform/notification_area.h"
#include "platform/windows/drawing/icon_maker.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// One icon and the hidden window that gets its messages. The window is a top window, though never
// shown: the shell tells only top windows that it has started anew.
class ShellTrayIcon final : public TrayIcon, public NativeWindow {
 public:
  // `events` outlives the icon.
  ShellTrayIcon(const WindowClass& window_class, TrayIconEvents& events);
  ~ShellTrayIcon() override;

  bool SetPicture(const Bitmap& picture) override;
  bool SetPicture(const Bitmap& picture, Colour see_through) override;
  void SetHint(std::string_view hint) override;
  void ShowBalloon(std::string_view title, std::string_view text, BalloonIcon icon,
                   int seconds) override;
  [[nodiscard]] int PictureSize() const override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  bool Show(Icon icon);
  // Adds the icon. When the shell is too busy, tries again a little later.
  void Add();
  // Adds the icon after so many milliseconds. The first picture is handed over only when the
  // program's windows are painted: the shell may take long, and the user waits for the windows.
  void AddLater(UINT milliseconds);
  bool Modify(UINT parts);
  [[nodiscard]] NOTIFYICONDATAW Data(UINT parts) const;
  void Report(const Message& message);
  void ReportKeySelect();

  TrayIconEvents& events_;
  const UINT taskbar_created_;
  IconMaker icons_;
  Icon icon_;
  std::wstring hint_;
  bool added_ = false;
  bool waiting_ = false;      // the timer is going to add the icon
  LONG last_key_select_ = 0;  // message time, ms
};

class NotificationArea final : public platform::NotificationArea {
 public:
  [[nodiscard]] std::unique_ptr<TrayIcon> CreateIcon(TrayIconEvents& events) override;

 private:
  WindowClass class_{"TremoluxTray"};
};

}  // namespace platform::windows
