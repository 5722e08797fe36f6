// Files in memory.
#pragma once

#include <algorithm>
#include <map>
#include <set>

#include "platform/file_mask.h"
#include "platform/files.h"
#include "platform/memory/case_fold.h"
#include "platform/memory/notebook.h"

namespace platform::memory {

// Paths keep their spelling, and their case is not told apart. At first only the program's folder
// exists.
class Files : public platform::Files {
 public:
  explicit Files(Notebook& notebook) : notebook_(notebook) { Put(ProgramPath(), "MZ"); }

  std::string ProgramPath() override { return kProgramFolder + std::string("Tremolux.exe"); }
  std::string ProgramFolder() override { return kProgramFolder; }
  [[nodiscard]] bool Exists(std::string_view path) const { return files_.contains(FoldCase(path)); }
  bool Missing(std::string_view path) override {
    return !Exists(path) && !folders_.contains(FoldFolder(path));
  }
  std::optional<std::uint64_t> Size(std::string_view path) override {
    return Exists(path) ? std::optional(Bytes(path)->size()) : std::nullopt;
  }
  std::optional<std::string> Load(std::string_view path, std::size_t limit) override {
    ++loads;
    if (notebook_.Fails() || held_.contains(FoldCase(path))) return std::nullopt;
    return Size(path).value_or(0) > limit ? std::nullopt : Bytes(path);
  }
  bool Save(std::string_view path, std::string_view bytes) override {
    ++saves;
    if (notebook_.Fails() || !CanBeWritten(path)) return false;
    Put(path, bytes);
    return true;
  }
  bool Append(std::string_view path, std::string_view bytes) override {
    const std::optional<std::string> before = Bytes(path);
    if (notebook_.Fails() || !before || !CanBeWritten(path)) return false;
    Put(path, *before + std::string(bytes));
    return true;
  }
  bool Rename(std::string_view from, std::string_view to) override {
    const std::optional<std::string> bytes = Bytes(from);
    if (notebook_.Fails() || !bytes || !CanBeWritten(from) || !CanBeWritten(to)) return false;
    Remove(from);
    Remove(to);  // the old spelling of the name must go too
    Put(to, *bytes);
    return true;
  }
  std::vector<std::string> List(std::string_view folder, std::string_view mask) override {
    std::vector<std::string> names;
    if (notebook_.Fails()) return names;
    for (const auto& [path, file] : files_) {
      if (FolderOf(path) == FoldFolder(folder) && MatchesMask(file.name, mask)) {
        names.push_back(file.name);
      }
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  // The functions that follow are for tests: they are not counted and never fail.

  void AddFolder(std::string_view folder) {
    for (; !folder.empty(); folder = FolderOf(folder)) folders_.insert(FoldFolder(folder));
  }
  // Makes a file, and its folder when that is missing.
  void Put(std::string_view path, std::string_view bytes) {
    AddFolder(FolderOf(path));
    File& file = files_[FoldCase(path)];
    if (file.name.empty()) file.name = NameOf(path);
    file.bytes = bytes;
  }
  // Makes a file beside the program.
  void PutBesideProgram(std::string_view name, std::string_view bytes) {
    Put(ProgramFolder() + std::string(name), bytes);
  }
  [[nodiscard]] std::optional<std::string> Bytes(std::string_view path) const {
    const auto found = files_.find(FoldCase(path));
    return found == files_.end() ? std::nullopt : std::optional(found->second.bytes);
  }
  [[nodiscard]] std::optional<std::string> BytesBesideProgram(std::string_view name) const {
    return Bytes(kProgramFolder + std::string(name));
  }
  void Remove(std::string_view path) { files_.erase(FoldCase(path)); }
  // Sets whether files can be written in this folder, or whether this file can be replaced.
  void SetWritable(std::string_view path, bool writable) {
    writable ? unwritable_.erase(FoldFolder(path)) : unwritable_.insert(FoldFolder(path)).second;
  }
  // Sets whether another program has this file open and shares it with nobody.
  void SetHeld(std::string_view path, bool held) {
    held ? held_.insert(FoldCase(path)).second : held_.erase(FoldCase(path));
  }

  // The number of loads and saves of whole files that were asked for.
  int loads = 0;
  int saves = 0;

 private:
  static constexpr char kProgramFolder[] = "C:\\Program Files\\Korvane Tremolux\\";

  [[nodiscard]] bool CanBeWritten(std::string_view path) const {
    const std::string folder = FoldFolder(FolderOf(path));
    return folders_.contains(folder) && !folders_.contains(FoldFolder(path)) &&
           !NameOf(path).empty() && !unwritable_.contains(folder) &&
           !unwritable_.contains(FoldFolder(path)) && !held_.contains(FoldCase(path));
  }

  static std::string_view FolderOf(std::string_view path) {
    return path.substr(0, path.rfind('\\') == path.npos ? 0 : path.rfind('\\'));
  }
  static std::string_view NameOf(std::string_view path) {
    return path.substr(path.rfind('\\') + 1);  // all of it where there is none
  }
  static std::string FoldFolder(std::string_view folder) {
    while (folder.ends_with('\\')) folder.remove_suffix(1);
    return FoldCase(folder);
  }

  struct File {
    std::string name;  // without folder, as it was first written
    std::string bytes;
  };

  Notebook& notebook_;
  // The key is the folded path; folders have no backslash at their end.
  std::map<std::string, File> files_;
  std::set<std::string> folders_;
  std::set<std::string> unwritable_;
  std::set<std::string> held_;
};

}  // namespace platform::memory
