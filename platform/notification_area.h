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
  // Clicked with the left button, or chosen with the keyboard.
  virtual void OnTrayClick() {}
  // Its menu is wanted at this place of the screen (right click, menu key).
  virtual void OnTrayMenu(Point) {}
};

// An icon in the notification area, there until it is destroyed (Shell_NotifyIcon). It is added
// again by itself when the shell starts anew ("TaskbarCreated") and tried again for a while when
// the shell was too busy to take it.
class TrayIcon {
 public:
  virtual ~TrayIcon() = default;

  // The picture, with or without a colour that is see-through. The bitmap is not kept; icons made
  // for earlier ones are freed. False when the shell has not taken it (yet).
  virtual bool SetPicture(const Bitmap& picture) = 0;
  virtual bool SetPicture(const Bitmap& picture, Colour see_through) = 0;
  // Cut at what the system takes, 127 characters.
  virtual void SetHint(std::string_view hint) = 0;
  // Title and text are cut at 63 and 255 characters. Replaces a balloon that is still shown.
  virtual void ShowBalloon(std::string_view title, std::string_view text, BalloonIcon icon,
                           int seconds) = 0;
  // The side of the pictures that the area shows, in pixels: 16 at 96 dpi.
  [[nodiscard]] virtual int PictureSize() const = 0;
};

class NotificationArea {
 public:
  virtual ~NotificationArea() = default;

  // An icon with an empty picture. `events` must outlive it. Never null: an icon that the shell
  // does not take is tried again.
  [[nodiscard]] virtual std::unique_ptr<TrayIcon> CreateIcon(TrayIconEvents& events) = 0;
};

}  // namespace platform
