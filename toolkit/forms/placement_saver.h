// Keeps the place of a form from one run to the next.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/screen.h"
#include "toolkit/forms/form.h"

namespace toolkit {

// Stores position and size, in pixels of the screen with the resolution that they are meant for, as
// the DWORD values "Left", "Top", "Width", "Height" and "Dpi" of a key of the user's registry:
// after every move or resize (while the user drags, at its end), when the form closes, and when it
// is destroyed. When the registry refuses, nothing is reported.
//
// The stored place is the one where the user wants the form. While that place is on no monitor, the
// form stands somewhere in view; this other place is not stored, and when the monitor is back, the
// form returns to its stored place.
class PlacementSaver final : public FormComponent {
 public:
  enum class Restores { kPlaceAndSize, kPlace };

  // `key` is under HKEY_CURRENT_USER.
  PlacementSaver(Form& form, std::string_view key, Restores what = Restores::kPlaceAndSize);
  ~PlacementSaver() override;

  // Gives the form its stored place, or leaves it where it is. Nothing is saved before this call.
  void Restore();

  void FormPlaced() override;
  void FormDragEnded() override;
  void FormDisplayChanged() override;
  void FormClosing() override;
  void FormSessionEnds() override;

 private:
  // Returns the stored bounds, or the form's own when nothing, or nothing usable, is stored.
  [[nodiscard]] platform::Rect Stored();
  // Puts the form at its wanted place, or into view when that is on no monitor.
  void Place();
  void TakePlace(bool dragged);
  // Stores the place that the form has now, also while the user still drags it.
  void SaveAsItStands();
  void Save() noexcept;
  [[nodiscard]] bool MonitorsChanged();

  std::string key_;
  Restores restores_;
  bool active_ = false;
  bool placing_ = false;    // the form moves because this object places it
  bool displaced_ = false;  // the form does not stand at its wanted place
  platform::Rect wanted_;
  std::vector<platform::Monitor> monitors_;  // as they were when the form was last placed
};

}  // namespace toolkit
