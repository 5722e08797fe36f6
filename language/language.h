// The texts of the user's language.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "language/language_file.h"
#include "language/texts.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "settings/store.h"
#include "toolkit/controls/control.h"

namespace language {

// The texts of one language, for a window that takes many of them. A translation stays the same
// when the user chooses another language meanwhile, so do not keep it.
class Translation {
 public:
  // When `file` is null, all texts are the built-in ones.
  explicit Translation(std::shared_ptr<const LanguageFile> file) : file_(std::move(file)) {}

  // Returns the language file's text. Returns the built-in English text when the file has none, or
  // when its text has another number of "%s". Never fails.
  [[nodiscard]] std::string operator()(const TextEntry& entry) const;
  // Returns the same text with its "%s" replaced by `values`.
  [[nodiscard]] std::string operator()(const TextEntry& entry,
                                       std::initializer_list<std::string_view> values) const {
    return Filled((*this)(entry), values);
  }

 private:
  std::shared_ptr<const LanguageFile> file_;
};

// The language store `_ReadLangauge`. Every look-up names its section; no section is remembered
// between look-ups, since a window may look texts up while the look-up of another window is still
// under way.
//
// Each look-up reads the language's name from "Language". The file of that name is read when the
// name is new, and again when the user chooses it: a scan reads no file, and a file that was edited
// meanwhile needs no restart. A file that could not be read is tried again by each window that
// takes its texts over.
class Language {
 public:
  // All arguments outlive the language store.
  Language(settings::Store& store, platform::Files& files, platform::Locale& locale)
      : store_(store), files_(files), locale_(locale) {}

  // Returns a text in the user's language; see Translation.
  [[nodiscard]] std::string Text(const TextEntry& entry) const { return Kept()(entry); }
  [[nodiscard]] std::string Text(const TextEntry& entry,
                                 std::initializer_list<std::string_view> values) const {
    return Kept()(entry, values);
  }

  // Returns the texts of the language that is chosen now, for a window.
  [[nodiscard]] Translation Chosen() const;

  // Returns the languages that the user can choose from: English, which needs no file, and the
  // language files, sorted. Each name comes without folder and ending.
  [[nodiscard]] std::vector<std::string> Names() const;
  // Returns what the language of that name calls itself in its file, or `name` when the file does
  // not say.
  [[nodiscard]] std::string OwnName(const std::string& name) const;
  // Returns the index of the language in use, or that of English when the stored language is not
  // among `names`.
  [[nodiscard]] std::size_t IndexIn(const std::vector<std::string>& names) const;

  // Stores the choice and reads its file anew. The windows take their new texts only when
  // toolkit::Application::LanguageChanged is called.
  void Choose(std::string_view name);

 private:
  // The file of a language; `file` is null when it could not be read.
  struct KeptFile {
    std::string name;  // as stored; empty for the built-in texts
    std::shared_ptr<const LanguageFile> file = std::make_shared<LanguageFile>();
  };

  [[nodiscard]] Translation Kept() const;
  [[nodiscard]] std::string Folder() const;
  [[nodiscard]] std::shared_ptr<const LanguageFile> Load(const std::string& name) const;

  settings::Store& store_;
  platform::Files& files_;
  platform::Locale& locale_;
  mutable KeptFile kept_;
};

// Gives every control on `parent` the text of `section` under the control's name and, as its hint,
// the text under its name with "Hint" behind it, as far as there are such texts.
void SayNames(const toolkit::Control& parent, std::string_view section, const Translation& say);

// Returns the names of the files in a folder that match a mask. The folder may be given with or
// without a backslash at its end.
[[nodiscard]] std::vector<std::string> LoadDirectory(platform::Files& files,
                                                     std::string_view folder,
                                                     std::string_view mask);

}  // namespace language
