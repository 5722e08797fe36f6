// The notification area ("tray") of the taskbar.
#pragma once

#include <memory>
#include <string_view>

#include "platform/canvas.h"
#include "platform/geometry.h"

namespace platform {

enum class BalloonIcon { kNone, kInformation, kWarning, kError };

class TrayIconEvents {
 public:
  virtual ~TrayIconEvents() = default;
  // The user clicked the icon with the left button, or chose it with the keyboard.
  virtual void OnTrayClick() {}
  // The user asks for the icon's menu at this place of the screen (right click, menu key).
  virtual void OnTrayMenu(Point) {}
};

// An icon in the notification area, shown until it is destroyed (Shell_NotifyIcon). It adds itself
// again when the shell starts anew ("TaskbarCreated"), and tries again for a while when the shell
// was too busy to take it.
class TrayIcon {
 public:
  virtual ~TrayIcon() = default;

  // Sets the picture, with or without a see-through colour. The bitmap is not kept, and icons made
  // of earlier pictures are freed. Returns false when the shell has not taken the picture (yet).
  virtual bool SetPicture(const Bitmap& picture) = 0;
  virtual bool SetPicture(const Bitmap& picture, Colour see_through) = 0;
  // Sets the hint, cut at 127 characters, the most that the system takes.
  virtual void SetHint(std::string_view hint) = 0;
  // Shows a balloon in place of one that is still shown. Of title and text the system takes at most
  // 63 and 255 UTF-16 units; the rest is left out.
  virtual void ShowBalloon(std::string_view title, std::string_view text, BalloonIcon icon,
                           int seconds) = 0;
  // Returns the side of the pictures that the area shows, in pixels: 16 at 96 dpi.
  [[nodiscard]] virtual int PictureSize() const = 0;
};

class NotificationArea {
 public:
  virtual ~NotificationArea() = default;

  // Makes an icon with an empty picture. `events` must outlive it. Never returns null: an icon that
  // the shell does not take is tried again.
  [[nodiscard]] virtual std::unique_ptr<TrayIcon> CreateIcon(TrayIconEvents& events) = 0;
};

}  // namespace platform
