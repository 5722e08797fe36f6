// A line that chooses a sound file: its path, a button that opens the file dialog and one that
// plays the sound.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "language/language.h"
#include "platform/geometry.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"

namespace preferences {

class SoundFile {
 public:
  // The texts are the names of the controls. `parent` outlives the line.
  SoundFile(toolkit::Control& parent, std::string_view path, std::string_view open,
            std::string_view play);

  // Places the whole line, in design pixels.
  void Place(const platform::Rect& line);
  void Localise(const language::Translation& say);

  // Returns the path of the sound file, or an empty text for silence.
  [[nodiscard]] const std::string& Path() const { return path_.Text(); }
  void SetPath(std::string_view path) { path_.SetText(path); }
  void SetEnabled(bool enabled);

  // Runs when the path has changed, whether it was chosen, typed or set by code.
  std::function<void()> OnChange;

 private:
  void Choose();

  toolkit::Edit path_;
  toolkit::Button open_;
  toolkit::Button play_;
  std::string title_, sounds_, all_files_;
};

}  // namespace preferences
