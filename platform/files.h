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

  // Full path of the running executable.
  [[nodiscard]] virtual std::string ProgramPath() = 0;
  // Its folder, with the trailing backslash.
  [[nodiscard]] virtual std::string ProgramFolder() = 0;

  // Whether `path` is a file (not a folder).
  [[nodiscard]] virtual bool Exists(std::string_view path) = 0;
  // Whether nothing bears this name, neither file nor folder. False also where the system does not
  // tell (GetFileAttributes).
  [[nodiscard]] virtual bool Missing(std::string_view path) = 0;
  // Its size in bytes; nothing when it is no file.
  [[nodiscard]] virtual std::optional<std::uint64_t> Size(std::string_view path) = 0;
  // The bytes of a file; nothing when it is missing, cannot be read or is larger than `limit`
  // bytes.
  [[nodiscard]] virtual std::optional<std::string> Load(std::string_view path,
                                                        std::size_t limit) = 0;
  // Replaces the file, made when missing. False when refused, on a full disk too; the old file then
  // stays as it was.
  virtual bool Save(std::string_view path, std::string_view bytes) = 0;
  // Writes behind the end of a file that is there. False when refused; on a full disk a part of the
  // bytes may be there then.
  virtual bool Append(std::string_view path, std::string_view bytes) = 0;
  // Gives a file another name in its folder, in the place of one that has it (MoveFileEx). False
  // when refused.
  virtual bool Rename(std::string_view from, std::string_view to) = 0;
  // Names, without folder, of the files of a folder that match `mask` ("*.lng", see MatchesMask),
  // sorted by their bytes. Nothing when the folder cannot be read.
  [[nodiscard]] virtual std::vector<std::string> List(std::string_view folder,
                                                      std::string_view mask) = 0;
};

}  // namespace platform
