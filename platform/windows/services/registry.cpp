#include <algorithm>

#include "platform/windows/handle.h"
#include "platform/windows/services/services.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace platform::windows {
namespace {

using KeyHandle = Handle<ZeroIsNone<HKEY, &::RegCloseKey>>;

// Nearly every value fits into this size, so that a read is one call.
constexpr std::size_t kUsualSize = 512;

std::span<const std::byte> AsBytes(const void* data, std::size_t size) {
  return {static_cast<const std::byte*>(data), size};
}

class OpenKey : public RegistryKey {
 public:
  explicit OpenKey(KeyHandle key) : key_(std::move(key)) {}

  std::optional<std::uint32_t> ReadDword(std::string_view name) override {
    DWORD type = REG_NONE;
    DWORD value = 0;
    DWORD size = sizeof(value);
    const LSTATUS result = ::RegQueryValueExW(key_.get(), ToWide(name).c_str(), nullptr, &type,
                                              reinterpret_cast<BYTE*>(&value), &size);
    if (result != ERROR_SUCCESS || type != REG_DWORD || size != sizeof(value)) return std::nullopt;
    return value;
  }

  std::optional<std::string> ReadText(std::string_view name) override {
    const std::optional<std::vector<std::byte>> bytes = Read(name, REG_SZ);
    if (!bytes) return std::nullopt;
    // A stored text may lack the terminating NUL and may have an odd number of bytes.
    std::wstring text(bytes->size() / sizeof(wchar_t), L'\0');
    std::copy_n(bytes->begin(), text.size() * sizeof(wchar_t),
                reinterpret_cast<std::byte*>(text.data()));
    return FromWide(std::wstring_view(text).substr(0, text.find(L'\0')));
  }

  std::optional<std::vector<std::byte>> ReadBinary(std::string_view name) override {
    return Read(name, REG_BINARY);
  }

  void WriteDword(std::string_view name, std::uint32_t value) override {
    Write(name, REG_DWORD, AsBytes(&value, sizeof(value)));
  }

  void WriteText(std::string_view name, std::string_view value) override {
    const std::wstring text = ToWide(value);
    Write(name, REG_SZ, AsBytes(text.c_str(), (text.size() + 1) * sizeof(wchar_t)));
  }

  void WriteBinary(std::string_view name, std::span<const std::byte> value) override {
    Write(name, REG_BINARY, value);
  }

  bool Delete(std::string_view name) override {
    return ::RegDeleteValueW(key_.get(), ToWide(name).c_str()) == ERROR_SUCCESS;
  }

 private:
  std::optional<std::vector<std::byte>> Read(std::string_view name, DWORD wanted) {
    const std::wstring wide_name = ToWide(name);
    std::vector<std::byte> bytes(kUsualSize);
    LSTATUS result = ERROR_SUCCESS;
    DWORD type = REG_NONE;
    DWORD size = 0;
    do {
      // The value may grow between being told its size and being read.
      bytes.resize(std::max<std::size_t>(bytes.size(), size));
      size = static_cast<DWORD>(bytes.size());
      result = ::RegQueryValueExW(key_.get(), wide_name.c_str(), nullptr, &type,
                                  reinterpret_cast<BYTE*>(bytes.data()), &size);
    } while (result == ERROR_MORE_DATA && type == wanted);
    if (result != ERROR_SUCCESS || type != wanted) return std::nullopt;
    bytes.resize(size);
    return bytes;
  }

  void Write(std::string_view name, DWORD type, std::span<const std::byte> bytes) {
    const LSTATUS result = ::RegSetValueExW(key_.get(), ToWide(name).c_str(), 0, type,
                                            reinterpret_cast<const BYTE*>(bytes.data()),
                                            static_cast<DWORD>(bytes.size()));
    if (result != ERROR_SUCCESS) ThrowSystemError("RegSetValueEx", static_cast<DWORD>(result));
  }

  KeyHandle key_;
};

}  // namespace

std::unique_ptr<RegistryKey> Registry::Open(std::string_view path, KeyAccess access) {
  // The system itself refuses a path that begins with a backslash.
  if (path.starts_with('\\')) path.remove_prefix(1);
  const std::wstring wide_path = ToWide(path);
  const REGSAM rights = access == KeyAccess::kReadOnly ? KEY_READ : KEY_READ | KEY_WRITE;
  HKEY key = nullptr;
  const LSTATUS result =
      access == KeyAccess::kCreate
          ? ::RegCreateKeyExW(HKEY_CURRENT_USER, wide_path.c_str(), 0, nullptr,
                              REG_OPTION_NON_VOLATILE, rights, nullptr, &key, nullptr)
          : ::RegOpenKeyExW(HKEY_CURRENT_USER, wide_path.c_str(), 0, rights, &key);
  if (result != ERROR_SUCCESS) return nullptr;
  return std::make_unique<OpenKey>(KeyHandle(key));
}

}  // namespace platform::windows
