// Files in memory.
#pragma once

#include <map>
#include <set>

#include "platform/files.h"
#include "platform/memory/notebook.h"

namespace platform::memory {

// Paths keep their spelling, and their case is not told apart. At first only the program's folder
// exists.
class Files : public platform::Files {
 public:
  explicit Files(Notebook& notebook);

  [[nodiscard]] std::string ProgramPath() override { return program_path_; }
  [[nodiscard]] std::string ProgramFolder() override;
  [[nodiscard]] bool Exists(std::string_view path);
  [[nodiscard]] bool Missing(std::string_view path) override;
  [[nodiscard]] std::optional<std::uint64_t> Size(std::string_view path) override;
  [[nodiscard]] std::optional<std::string> Load(std::string_view path, std::size_t limit) override;
  bool Save(std::string_view path, std::string_view bytes) override;
  bool Append(std::string_view path, std::string_view bytes) override;
  bool Rename(std::string_view from, std::string_view to) override;
  [[nodiscard]] std::vector<std::string> List(std::string_view folder,
                                              std::string_view mask) override;

  // The functions that follow are for tests: they are not counted and never fail.

  void SetProgramPath(std::string_view path);
  void AddFolder(std::string_view folder);
  // Makes a file, and its folder when that is missing.
  void Put(std::string_view path, std::string_view bytes);
  // Makes a file beside the program.
  void PutBesideProgram(std::string_view name, std::string_view bytes);
  [[nodiscard]] std::optional<std::string> Bytes(std::string_view path) const;
  [[nodiscard]] std::optional<std::string> BytesBesideProgram(std::string_view name) const;
  void Remove(std::string_view path);
  // Sets whether files can be written in this folder, or whether this file can be replaced.
  void SetWritable(std::string_view path, bool writable);
  // Sets whether another program has this file open and shares it with nobody.
  void SetHeld(std::string_view path, bool held);

  // The number of loads and saves of whole files that were asked for.
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
  // The key is the folded path; folders have no backslash at their end.
  std::map<std::string, File> files_;
  std::set<std::string> folders_;
  std::set<std::string> unwritable_;
  std::set<std::string> held_;
};

}  // namespace platform::memory
