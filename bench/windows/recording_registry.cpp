#include "bench/windows/recording_registry.h"

#include <utility>

#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace bench {
namespace {

using platform::windows::ToWide;
using Operations = std::vector<RegistryOperation>;

class RecordingKey final : public platform::RegistryKey {
 public:
  RecordingKey(std::unique_ptr<platform::RegistryKey> real, RegistryOperation opened,
               Operations& operations)
      : real_(std::move(real)), opened_(std::move(opened)), operations_(operations) {}

  std::optional<std::uint32_t> ReadDword(std::string_view name) override {
    Note(RegistryOperation::Kind::kRead, name);
    return real_->ReadDword(name);
  }
  std::optional<std::string> ReadText(std::string_view name) override {
    Note(RegistryOperation::Kind::kRead, name);
    return real_->ReadText(name);
  }
  std::optional<std::vector<std::byte>> ReadBinary(std::string_view name) override {
    Note(RegistryOperation::Kind::kRead, name);
    return real_->ReadBinary(name);
  }
  void WriteDword(std::string_view name, std::uint32_t value) override {
    Note(RegistryOperation::Kind::kWrite, name);
    SetData(REG_DWORD, &value, sizeof(value));
    real_->WriteDword(name, value);
  }
  void WriteText(std::string_view name, std::string_view value) override {
    Note(RegistryOperation::Kind::kWrite, name);
    const std::wstring text = ToWide(value);
    SetData(REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    real_->WriteText(name, value);
  }
  void WriteBinary(std::string_view name, std::span<const std::byte> value) override {
    Note(RegistryOperation::Kind::kWrite, name);
    SetData(REG_BINARY, value.data(), value.size());
    real_->WriteBinary(name, value);
  }
  bool Delete(std::string_view name) override {
    Note(RegistryOperation::Kind::kDelete, name);
    return real_->Delete(name);
  }

 private:
  void Note(RegistryOperation::Kind kind, std::string_view name) {
    operations_.push_back(opened_);
    operations_.back().kind = kind;
    operations_.back().name = ToWide(name);
  }
  void SetData(std::uint32_t type, const void* data, std::size_t size) {
    const auto* bytes = static_cast<const std::byte*>(data);
    operations_.back().type = type;
    operations_.back().data.assign(bytes, bytes + size);
  }

  std::unique_ptr<platform::RegistryKey> real_;
  RegistryOperation opened_;
  Operations& operations_;
};

}  // namespace

std::unique_ptr<platform::RegistryKey> RecordingRegistry::Open(std::string_view path,
                                                               platform::KeyAccess access) {
  std::unique_ptr<platform::RegistryKey> key = real_.Open(path, access);
  if (!recording_ || key == nullptr) return key;
  RegistryOperation opened;
  opened.path = ToWide(path.starts_with('\\') ? path.substr(1) : path);
  opened.create = access == platform::KeyAccess::kCreate;
  return std::make_unique<RecordingKey>(std::move(key), std::move(opened), operations_);
}

}  // namespace bench
