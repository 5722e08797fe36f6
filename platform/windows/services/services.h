// The services of Windows that keep little or no state. The interfaces that they implement say what
// each call does.
#pragma once

#include <vector>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/fonts.h"
#include "platform/interface_table.h"
#include "platform/keyboard.h"
#include "platform/locale.h"
#include "platform/other_windows.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "platform/session.h"
#include "platform/shell.h"
#include "platform/single_instance.h"
#include "platform/sockets.h"
#include "platform/sound.h"
#include "platform/windows/handle.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/win32.h"

namespace platform::windows {

class Clipboard : public platform::Clipboard {
 public:
  bool SetText(std::string_view text) override;
};

class Clock : public platform::Clock {
 public:
  [[nodiscard]] DateTime Now() override;
  [[nodiscard]] std::int64_t SteadyMilliseconds() override;
};

class Files : public platform::Files {
 public:
  [[nodiscard]] std::string ProgramPath() override;
  [[nodiscard]] std::string ProgramFolder() override;
  [[nodiscard]] bool Missing(std::string_view path) override;
  [[nodiscard]] std::optional<std::uint64_t> Size(std::string_view path) override;
  [[nodiscard]] std::optional<std::string> Load(std::string_view path, std::size_t limit) override;
  bool Save(std::string_view path, std::string_view bytes) override;
  bool Append(std::string_view path, std::string_view bytes) override;
  bool Rename(std::string_view from, std::string_view to) override;
  [[nodiscard]] std::vector<std::string> List(std::string_view folder,
                                              std::string_view mask) override;
};

class Fonts final : public platform::Fonts {
 public:
  [[nodiscard]] std::vector<std::string> Families() override;
};

class InterfaceTable : public platform::InterfaceTable {
 public:
  [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override;
  [[nodiscard]] std::optional<bool> IsFilter(std::uint32_t index) override;
  [[nodiscard]] std::optional<LongOctets> Octets(std::uint32_t index) override;
};

class Keyboard final : public platform::Keyboard {
 public:
  [[nodiscard]] std::uint8_t State(std::uint8_t virtual_key) override;
  void Send(std::uint8_t virtual_key, std::uint8_t scan_code, std::uint32_t flags) override;
};

class Locale : public platform::Locale {
 public:
  [[nodiscard]] std::string DecimalSeparator() override;
  [[nodiscard]] std::string ShortDate(DateTime moment) override;
  [[nodiscard]] std::string LongTime(DateTime moment) override;
  [[nodiscard]] std::string Lower(std::string_view text) override;
  [[nodiscard]] std::string FromCodePage(std::string_view bytes) override;
};

class OtherWindows final : public platform::OtherWindows {
 public:
  [[nodiscard]] std::vector<WindowId> TopLevel() override;
  [[nodiscard]] WindowTitle Title(WindowId window, std::size_t characters) override;
  TitleOutcome SetTitle(WindowId window, std::string_view title, int patience_ms) override;
  [[nodiscard]] WindowId Foreground() override;
};

class Registry : public platform::Registry {
 public:
  [[nodiscard]] std::unique_ptr<RegistryKey> Open(std::string_view path, KeyAccess access) override;
};

class Screen final : public platform::Screen {
 public:
  [[nodiscard]] std::vector<Monitor> Monitors() override;
  [[nodiscard]] Monitor MonitorOf(const Rect& area) override;
  [[nodiscard]] Colour Resolve(Colour colour) override;
  [[nodiscard]] Point Pointer() override;
};

class Session final : public platform::Session {
 public:
  bool SetPrivilege(std::string_view name, Privilege wanted) override;
  [[nodiscard]] std::uint32_t EndSession(std::uint32_t flags) override;
};

class Shell final : public platform::Shell {
 public:
  bool Open(std::string_view path) override;
};

class SingleInstance : public platform::SingleInstance {
 public:
  [[nodiscard]] bool ClaimFirst(std::string_view name) override;

 private:
  // The handles are kept to the end, since a mutex exists as long as a handle to it is open.
  std::vector<KernelHandle> claimed_;
};

class Sockets : public platform::Sockets {
 public:
  bool Start(std::uint16_t version) override;
  [[nodiscard]] std::string HostName() override;
  [[nodiscard]] std::optional<std::vector<std::string>> HostAddresses(
      std::string_view host) override;
  void Cleanup() override;
};

class Sound final : public platform::Sound {
 public:
  void Play(std::string_view path) override;
  void Beep() override;
};

}  // namespace platform::windows
