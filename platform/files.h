// The files beside the program. Paths are the system's, with "\" between folders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class Files {
 public:
  virtual ~Files() = default;

  // Returns the full path of the running executable.
  [[nodiscard]] virtual std::string ProgramPath() = 0;
  // Returns the folder of the executable, with the trailing backslash.
  [[nodiscard]] virtual std::string ProgramFolder() = 0;

  // Returns whether neither a file nor a folder has this name. Also returns false when the system
  // does not say (GetFileAttributes).
  [[nodiscard]] virtual bool Missing(std::string_view path) = 0;
  // Returns the file's size in bytes, or nullopt when `path` is no file.
  [[nodiscard]] virtual std::optional<std::uint64_t> Size(std::string_view path) = 0;
  // Returns the bytes of a file, or nullopt when it is missing, cannot be read or is larger than
  // `limit` bytes.
  [[nodiscard]] virtual std::optional<std::string> Load(std::string_view path,
                                                        std::size_t limit) = 0;
  // Replaces the file, or makes it when it is missing. Returns false when the system refuses, on a
  // full disk too; the old file then stays as it was.
  virtual bool Save(std::string_view path, std::string_view bytes) = 0;
  // Writes after the end of an existing file. Returns false when the system refuses; on a full disk
  // a part of the bytes may have been written.
  virtual bool Append(std::string_view path, std::string_view bytes) = 0;
  // Gives a file another name in its folder and replaces a file that has this name (MoveFileEx).
  // Returns false when the system refuses.
  virtual bool Rename(std::string_view from, std::string_view to) = 0;
  // Returns the names, without the folder, of the files in a folder that match `mask` ("*.lng", see
  // MatchesMask), sorted by their bytes. Returns no names when the folder cannot be read.
  [[nodiscard]] virtual std::vector<std::string> List(std::string_view folder,
                                                      std::string_view mask) = 0;
};

}  // namespace platform
