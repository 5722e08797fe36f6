// The files of the repository that are made from the tables in the code, so that they cannot lie.
#pragma once

#include <string>

namespace made_files {

// Returns the page of all stored values, docs/settings.md, from the schema.
[[nodiscard]] std::string SettingsPage();

// Returns a language file in the order of the catalogue of texts.
//   language  its name, without ending; the texts of "English" are the catalogue's own.
//   present   the bytes of the file as it is; what it does not translate becomes a comment.
[[nodiscard]] std::string LanguageFile(const std::string& language, const std::string& present);

// Returns a page of the help with the captions of the program in each <b data-text="section.key">.
// Throws std::runtime_error for a text that the catalogue does not have.
//   page   the bytes of the page as it is.
//   texts  the bytes of the language file of its language.
[[nodiscard]] std::string HelpPage(const std::string& page, const std::string& texts);

}  // namespace made_files
