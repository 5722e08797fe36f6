#include "platform/memory/files.h"

#include <algorithm>

#include "platform/file_mask.h"
#include "platform/memory/case_fold.h"

namespace platform::memory {
namespace {

std::string_view FolderOf(std::string_view path) {
  const std::size_t cut = path.rfind('\\');
  return cut == std::string_view::npos ? std::string_view() : path.substr(0, cut);
}

std::string_view NameOf(std::string_view path) {
  const std::size_t cut = path.rfind('\\');
  return cut == std::string_view::npos ? path : path.substr(cut + 1);
}

std::string FoldFolder(std::string_view folder) {
  while (!folder.empty() && folder.back() == '\\') folder.remove_suffix(1);
  return FoldCase(folder);
}

}  // namespace

Files::Files(Notebook& notebook) : notebook_(notebook) { Put(ProgramPath(), "MZ"); }

bool Files::Missing(std::string_view path) {
  return !Exists(path) && !folders_.contains(FoldFolder(path));
}

std::optional<std::uint64_t> Files::Size(std::string_view path) {
  const std::optional<std::string> bytes = Bytes(path);
  return bytes ? std::optional<std::uint64_t>(bytes->size()) : std::nullopt;
}

std::optional<std::string> Files::Load(std::string_view path, std::size_t limit) {
  ++loads;
  if (notebook_.Fails() || held_.contains(FoldCase(path))) return std::nullopt;
  std::optional<std::string> bytes = Bytes(path);
  if (bytes && bytes->size() > limit) return std::nullopt;
  return bytes;
}

bool Files::Save(std::string_view path, std::string_view bytes) {
  ++saves;
  if (notebook_.Fails() || !CanBeWritten(path)) return false;
  Put(path, bytes);
  return true;
}

bool Files::Append(std::string_view path, std::string_view bytes) {
  const std::optional<std::string> before = Bytes(path);
  if (notebook_.Fails() || !before || !CanBeWritten(path)) return false;
  Put(path, *before + std::string(bytes));
  return true;
}

bool Files::Rename(std::string_view from, std::string_view to) {
  const std::optional<std::string> bytes = Bytes(from);
  if (notebook_.Fails() || !bytes || !CanBeWritten(from) || !CanBeWritten(to)) return false;
  Remove(from);
  Remove(to);  // the old spelling of the name must go too
  Put(to, *bytes);
  return true;
}

bool Files::CanBeWritten(std::string_view path) const {
  const std::string folder = FoldFolder(FolderOf(path));
  return folders_.contains(folder) && !folders_.contains(FoldFolder(path)) &&
         !NameOf(path).empty() && !unwritable_.contains(folder) &&
         !unwritable_.contains(FoldFolder(path)) && !held_.contains(FoldCase(path));
}

std::vector<std::string> Files::List(std::string_view folder, std::string_view mask) {
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

void Files::AddFolder(std::string_view folder) {
  for (; !folder.empty(); folder = FolderOf(folder)) folders_.insert(FoldFolder(folder));
}

void Files::Put(std::string_view path, std::string_view bytes) {
  AddFolder(FolderOf(path));
  File& file = files_[FoldCase(path)];
  if (file.name.empty()) file.name = NameOf(path);
  file.bytes = bytes;
}

void Files::PutBesideProgram(std::string_view name, std::string_view bytes) {
  Put(ProgramFolder() + std::string(name), bytes);
}

std::optional<std::string> Files::Bytes(std::string_view path) const {
  const auto found = files_.find(FoldCase(path));
  return found == files_.end() ? std::nullopt : std::optional(found->second.bytes);
}

std::optional<std::string> Files::BytesBesideProgram(std::string_view name) const {
  return Bytes(kProgramFolder + std::string(name));
}

void Files::Remove(std::string_view path) { files_.erase(FoldCase(path)); }

void Files::SetWritable(std::string_view path, bool writable) {
  writable ? unwritable_.erase(FoldFolder(path)) : unwritable_.insert(FoldFolder(path)).second;
}

void Files::SetHeld(std::string_view path, bool held) {
  held ? held_.insert(FoldCase(path)).second : held_.erase(FoldCase(path));
}

}  // namespace platform::memory
