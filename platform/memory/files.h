// Files in memory.
#pragma once

#include <map>
#include <set>

#include "platform/files.h"
#include "platform/memory/notebook.h"

namespace platform::memory {

// Paths keep their spelling; their case is not told apart. The program's folder is there at first.
class Files : public platform::Files {
 public:
  explicit Files(Notebook& notebook);

  [[nodiscard]] std::string ProgramPath() override { return program_path_; }
  [[nodiscard]] std::string ProgramFolder() override;
  [[nodiscard]] bool Exists(std::string_view path) override;
  [[nodiscard]] bool Missing(std::string_view path) override;
  [[nodiscard]] std::optional<std::uint64_t> Size(std::string_view path) override;
  [[nodiscard]] std::optional<std::string> Load(std::string_view path, std::size_t limit) override;
  bool Save(std::string_view path, std::string_view bytes) override;
  bool Append(std::string_view path, std::string_view bytes) override;
  bool Rename(std::string_view from, std::string_view to) override;
  [[nodiscard]] std::vector<std::string> List(std::string_view folder,
                                              std::string_view mask) override;

  // What follows is for tests: it is not counted and never fails.

  void SetProgramPath(std::string_view path);
  void AddFolder(std::string_view folder);
  // Puts a file there, with its folder.
  void Put(std::string_view path, std::string_view bytes);
  // Puts it beside the program.
  void PutBesideProgram(std::string_view name, std::string_view bytes);
  [[nodiscard]] std::optional<std::string> Bytes(std::string_view path) const;
  [[nodiscard]] std::optional<std::string> BytesBesideProgram(std::string_view name) const;
  void Remove(std::string_view path);
  // A folder in which nothing can be written, or a file that cannot be replaced, or again can.
  void SetWritable(std::string_view path, bool writable);
  // A file that another program has open and shares with nobody, or no longer.
  void SetHeld(std::string_view path, bool held);

  // Loads and saves that were asked for, whole files.
  int loads = 0;
  int saves = 0;

 private:
  [[nodiscard]] bool CanBeWritten(std::string_view path) const;

  struct File {
    std::string name;  // without folder, as it was first written
    std::string bytes;
  };

  Notebook& notebook_;
  std::string program_path_;
  // Keyed by the folded path; folders without the backslash at their end.
  std::map<std::string, File> files_;
  std::set<std::string> folders_;
  std::set<std::string> unwritable_;
  std::set<std::string> held_;
};

}  // namespace platform::memory
