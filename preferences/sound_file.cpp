#include "preferences/sound_file.h"

#include <optional>

#include "language/texts.h"
#include "toolkit/application.h"
#include "toolkit/controls/layout.h"
#include "toolkit/forms/form.h"
#include "toolkit/open_dialog.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

}  // namespace

SoundFile::SoundFile(toolkit::Control& parent, std::string_view path, std::string_view open,
                     std::string_view play)
    : path_(parent, path), open_(parent, open), play_(parent, play) {
  // The captions are signs that need no translation; the hints say what the buttons do.
  open_.SetCaption("...");
  play_.SetCaption(">");
  path_.OnChange = [this] {
    if (OnChange) OnChange();
  };
  open_.OnClick = [this] { Choose(); };
  play_.OnClick = [this] { play_.App().Platform().sound.Play(Path()); };
}

void SoundFile::Place(const platform::Rect& line) {
  constexpr int kButton = 26;
  constexpr int kGap = 4;
  const int open_left = line.Right() - 2 * kButton - kGap;
  toolkit::ApplyLayout({
      {path_, {line.left, line.top, open_left - kGap - line.left, line.height}},
      {open_, {open_left, line.top - 1, kButton, line.height + 2}},
      {play_, {line.Right() - kButton, line.top - 1, kButton, line.height + 2}},
  });
}

void SoundFile::Localise(const language::Translation& say) {
  path_.SetHint(say(text::SoundFileHint));
  open_.SetHint(say(text::OpenSoundHint));
  play_.SetHint(say(text::PlaySoundHint));
  title_ = say(text::OpenSoundTitle);
  sounds_ = say(text::SoundFilter);
  all_files_ = say(text::AllFilesFilter);
}

void SoundFile::SetEnabled(bool enabled) {
  path_.SetEnabled(enabled);
  open_.SetEnabled(enabled);
  play_.SetEnabled(enabled);
}

void SoundFile::Choose() {
  toolkit::OpenDialog dialog;
  dialog.Title = title_;
  dialog.Kinds = {{sounds_, "*.wav"}, {all_files_, "*.*"}};
  // The dialog starts in the folder of the present sound, or else in the program's folder.
  const std::size_t folder_end = Path().rfind('\\');
  dialog.InitialFolder = folder_end == std::string::npos
                             ? open_.App().Platform().files.ProgramFolder()
                             : Path().substr(0, folder_end + 1);
  if (const std::optional<std::string> path = dialog.Execute(open_.ParentForm())) SetPath(*path);
}

}  // namespace preferences
