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

namespace language {

// One language's texts, for a window that takes many of them. Stays as it is when the user chooses
// another language meanwhile; do not keep it beyond the moment.
class Translation {
 public:
  // Without a file all texts are the built-in ones.
  explicit Translation(std::shared_ptr<const LanguageFile> file) : file_(std::move(file)) {}

  // The language file's text, or else the built-in English one; also when the file's text has not
  // the same number of "%s". Never fails.
  [[nodiscard]] std::string operator()(const TextEntry& entry) const;
  // With its "%s" filled in.
  [[nodiscard]] std::string operator()(const TextEntry& entry,
                                       std::initializer_list<std::string_view> values) const {
    return Filled((*this)(entry), values);
  }

 private:
  std::shared_ptr<const LanguageFile> file_;
};

// The language store `_ReadLangauge`. Every look-up names its section; none is remembered between
// two of them, since a window may look texts up while another one's look-up is still under way.
//
// Which language it is, is read from "Language" at each look-up. The file behind that name is read
// when the name is new, and again when the user chooses it: a scan costs no file, and a file that
// was edited meanwhile needs no restart. One that could not be read is tried again by each window
// that takes its texts over.
class Language {
 public:
  // All outlive it.
  Language(settings::Store& store, platform::Files& files, platform::Locale& locale)
      : store_(store), files_(files), locale_(locale) {}

  // A text in the user's language; see Translation.
  [[nodiscard]] std::string Text(const TextEntry& entry) const { return Kept()(entry); }
  [[nodiscard]] std::string Text(const TextEntry& entry,
                                 std::initializer_list<std::string_view> values) const {
    return Kept()(entry, values);
  }

  // The language as it is chosen now, for a window.
  [[nodiscard]] Translation Chosen() const;

  // The languages that the user can choose from: English, which needs no file, and the files found,
  // sorted. Names without folder and ending.
  [[nodiscard]] std::vector<std::string> Names() const;
  // How a language of that name calls itself, by its file; the name itself when the file has no
  // word.
  [[nodiscard]] std::string OwnName(const std::string& name) const;
  // Which of `names` is in use; English's when the stored language is not among them.
  [[nodiscard]] std::size_t IndexIn(const std::vector<std::string>& names) const;

  // Stores the choice and takes its file anew. The windows take their texts over only when they are
  // told: toolkit::Application::LanguageChanged.
  void Choose(std::string_view name);

 private:
  // The file of a language; nothing when it could not be read.
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

// The names of the files of a folder, with or without the backslash at its end, that match a mask.
[[nodiscard]] std::vector<std::string> LoadDirectory(platform::Files& files,
                                                     std::string_view folder,
                                                     std::string_view mask);

}  // namespace language
