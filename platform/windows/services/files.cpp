#include <algorithm>

#include "platform/file_mask.h"
#include "platform/windows/services/services.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

constexpr std::size_t kLongestPath = 32767;  // of the system, in UTF-16 units
constexpr DWORD kLargestPiece = 1U << 20;    // bytes of one read or write call

// Returns all bytes of an open file, which has `size` bytes.
std::optional<std::string> ReadAll(HANDLE file, std::size_t size) {
  std::string bytes(size, '\0');
  std::size_t done = 0;
  while (done < size) {
    const auto piece = static_cast<DWORD>(std::min<std::size_t>(size - done, kLargestPiece));
    DWORD read = 0;
    if (::ReadFile(file, bytes.data() + done, piece, &read, nullptr) == FALSE) return std::nullopt;
    if (read == 0) break;  // the file became shorter meanwhile
    done += read;
  }
  bytes.resize(done);
  return bytes;
}

bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto piece = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kLargestPiece));
    DWORD written = 0;
    if (::WriteFile(file, bytes.data(), piece, &written, nullptr) == FALSE || written == 0) {
      return false;
    }
    bytes.remove_prefix(written);
  }
  return true;
}

// Makes a new file with these bytes. When that fails, no file is left behind.
bool WriteNew(const std::wstring& path, std::string_view bytes) {
  FileHandle file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return false;
  if (WriteAll(file.get(), bytes) && ::FlushFileBuffers(file.get()) != FALSE) return true;
  file = FileHandle();
  ::DeleteFileW(path.c_str());
  return false;
}

// Returns the path with its last name spelled like that of the existing file, if there is one.
std::wstring AsSpelled(const std::wstring& path) {
  WIN32_FIND_DATAW entry{};
  const FindHandle find(::FindFirstFileW(path.c_str(), &entry));
  return find ? path.substr(0, path.find_last_of(L"\\/:") + 1) + entry.cFileName : path;
}

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::string Files::ProgramPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    // A path that fills the buffer was cut.
    if (length < path.size() || path.size() >= kLongestPath) {
      path.resize(length);
      return FromWide(path);
    }
    path.resize(std::min(path.size() * 2, kLongestPath));
  }
}

std::string Files::ProgramFolder() {
  const std::string path = ProgramPath();
  return path.substr(0, path.rfind('\\') + 1);
}

bool Files::Missing(std::string_view path) {
  if (::GetFileAttributesW(ToWide(path).c_str()) != INVALID_FILE_ATTRIBUTES) return false;
  const DWORD code = ::GetLastError();
  return code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND;
}

std::optional<std::uint64_t> Files::Size(std::string_view path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (::GetFileAttributesExW(ToWide(path).c_str(), GetFileExInfoStandard, &data) == FALSE ||
      (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    return std::nullopt;
  }
  return std::uint64_t{data.nFileSizeHigh} << 32U | data.nFileSizeLow;
}

std::optional<std::string> Files::Load(std::string_view path, std::size_t limit) {
  const FileHandle file(::CreateFileW(ToWide(path).c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return std::nullopt;
  LARGE_INTEGER size{};
  if (::GetFileSizeEx(file.get(), &size) == FALSE || size.QuadPart < 0 ||
      static_cast<ULONGLONG>(size.QuadPart) > limit) {
    return std::nullopt;
  }
  return ReadAll(file.get(), static_cast<std::size_t>(size.QuadPart));
}

// The bytes are first written beside the file, so that the old file stays on a full disk.
bool Files::Save(std::string_view path, std::string_view bytes) {
  const std::wstring target = ToWide(path);
  const std::wstring draft = target + L".new";
  if (target.empty() || IsFolder(target) || !WriteNew(draft, bytes)) return false;
  const std::wstring name = AsSpelled(target);
  if (::MoveFileExW(draft.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE) return true;
  ::DeleteFileW(draft.c_str());
  return false;
}

bool Files::Append(std::string_view path, std::string_view bytes) {
  const FileHandle file(::CreateFileW(ToWide(path).c_str(), FILE_APPEND_DATA,
                                      FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && WriteAll(file.get(), bytes);
}

bool Files::Rename(std::string_view from, std::string_view to) {
  return ::MoveFileExW(ToWide(from).c_str(), ToWide(to).c_str(), MOVEFILE_REPLACE_EXISTING) !=
         FALSE;
}

std::vector<std::string> Files::List(std::string_view folder, std::string_view mask) {
  std::wstring all = ToWide(folder);
  if (!all.empty() && all.back() != L'\\') all += L'\\';
  all += L'*';
  std::vector<std::string> names;
  WIN32_FIND_DATAW entry{};
  const FindHandle find(::FindFirstFileW(all.c_str(), &entry));
  if (!find) return names;
  do {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) continue;
    std::string name = FromWide(entry.cFileName);
    if (MatchesMask(name, mask)) names.push_back(std::move(name));
  } while (::FindNextFileW(find.get(), &entry) != FALSE);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace platform::windows
