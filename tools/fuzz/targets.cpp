#include "tools/fuzz/targets.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "display/titles/list.h"
#include "display/tray/pictures.h"
#include "engine/error_log.h"
#include "engine/interface_reader.h"
#include "language/language_file.h"
#include "platform/interface_table.h"
#include "platform/memory/files.h"
#include "platform/memory/locale.h"
#include "platform/memory/notebook.h"
#include "platform/text.h"
#include "platform/wave_file.h"
#include "quantity/quantity.h"
#include "settings/value_texts.h"

namespace fuzz {
namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

bool IsText(std::string_view text) { return platform::ValidUtf8(text) == text; }

// Takes the first line off as an argument for a reader that has several.
std::string_view TakeArgument(std::string_view& bytes) {
  return bytes.empty() ? bytes : platform::TakeLine(bytes);
}

// The files beside the program.
struct Folder {
  platform::memory::Notebook notebook;
  platform::memory::Files files{notebook};
  platform::memory::Locale locale;
};

void ReadLanguage(std::string_view bytes) {
  platform::memory::Locale locale;
  const std::string_view section = TakeArgument(bytes);
  const std::string_view key = TakeArgument(bytes);
  const language::LanguageFile file(bytes, locale);
  const auto found = file.Find(section, key);
  if (!found) return;
  Require(IsText(*found), "a text is UTF-8");
  Require(found == file.Find(platform::AsciiLower(section), platform::AsciiLower(key)),
          "names are found in any case");
}

void ReadTitles(std::string_view bytes) {
  Folder folder;
  folder.files.PutBesideProgram("WindowTitles.tit", bytes);
  const display::TitleFile file = display::LoadTitleFile(folder.files, folder.locale);
  Require(file.readable && file.lines.size() <= display::kMostTitles, "the lines fit");
  Require(std::all_of(file.lines.begin(), file.lines.end(), IsText), "titles are UTF-8");
  display::TitleList titles(folder.locale);
  titles.SetLines(file.lines);
  Require(file.lines.empty() || titles.OccursIn(file.lines.back()), "a title has itself");
  Require(display::SaveTitleFile(folder.files, file), "it is saved");
  const display::TitleFile again = display::LoadTitleFile(folder.files, folder.locale);
  Require(again.lines == file.lines && again.beyond == file.beyond, "what is saved comes back");
}

void ReadBitmap(std::string_view bytes) {
  const auto picture = display::DecodeBitmap(bytes);
  if (!picture) return;
  const auto [width, height] = picture->size;
  Require(width >= 1 && width <= 1024 && height >= 1 && height <= 1024, "its sides are allowed");
  Require(std::ssize(picture->pixels) == width * height, "it is whole");
}

void ReadWave(std::string_view bytes) {
  Require(!platform::IsWaveFile(bytes) || bytes.substr(0, 4) == "RIFF", "a wave file is one");
}

// The system's table as the bytes have it: the size that it states, then its content.
class Table : public platform::InterfaceTable {
 public:
  explicit Table(std::string_view bytes) : bytes_(bytes) {}

  std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override {
    size = static_cast<std::uint32_t>(bytes_.size());
    if (buffer.size() < bytes_.size() || buffer.empty()) return platform::kInsufficientBuffer;
    std::memcpy(buffer.data(), bytes_.data(), bytes_.size());
    return 0;
  }
  std::optional<bool> IsFilter(std::uint32_t index) override {
    return index % 3 == 0 ? std::nullopt : std::optional(index % 3 == 1);
  }
  std::optional<platform::LongOctets> Octets(std::uint32_t) override { return std::nullopt; }

 private:
  std::string_view bytes_;
};

void ReadInterfaceTable(std::string_view bytes) {
  Table table(bytes);
  engine::InterfaceReader reader(table);
  std::vector<platform::InterfaceRow> rows;
  for (int read = 0; read < 3; ++read) reader.ReadInterfaceTable(rows);
  Require(rows.size() * sizeof(platform::InterfaceRow) <= bytes.size(), "no row is invented");
  for (const platform::InterfaceRow& row : rows) {
    Require(platform::DescriptionBytes(row).size() <= row.bDescr.size(), "a description fits");
  }
}

void ReadStoredTexts(std::string_view bytes) {
  try {
    const std::int64_t number = settings::ParseCounter(bytes);
    Require(number < 0 || settings::ParseCounter(settings::CounterText(number)) == number,
            "a counter comes back");
  } catch (const settings::ConversionError& error) {
    Require(std::strlen(error.what()) < 600, "a line of the log is short");
  }
  if (const auto colour = settings::ParseColour(bytes)) {
    Require(settings::ParseColour(settings::ColourText(*colour)) == colour, "a colour comes back");
  }
}

void ReadToken(std::string_view bytes) {
  const std::string_view delimiter = TakeArgument(bytes);
  std::size_t together = 0;
  for (int index = -1; index < 5; ++index) {
    const std::string token = quantity::GetToken(bytes, delimiter, index);
    Require(index > 0 || token.empty(), "there is no piece before the first");
    Require(bytes.find(token) != std::string_view::npos, "a piece is of the text");
    together += token.size();
  }
  Require(together <= bytes.size(), "no piece comes twice");
}

void ReadErrorLog(std::string_view bytes) {
  Folder folder;
  const std::string_view message = TakeArgument(bytes);
  folder.files.PutBesideProgram("err.log", bytes);
  std::vector<std::string> memo;
  engine::ErrorLog log(folder.files, folder.locale, memo);
  log.Append(message);
  log.Append("second");
  const std::string written = folder.files.BytesBesideProgram("err.log").value_or("");
  Require(IsText(written), "the log is UTF-8");
  Require(written.ends_with("\r\nsecond\r\n"), "the message is its last line");
  Require(!memo.empty() && memo.back() == "second", "the memo has the message");
}

constexpr Target kTargets[] = {
    {"language_file", ReadLanguage},
    {"title_list", ReadTitles},
    {"bitmap", ReadBitmap},
    {"wave_file", ReadWave},
    {"interface_table", ReadInterfaceTable},
    {"stored_text", ReadStoredTexts},
    {"token", ReadToken},
    {"error_log", ReadErrorLog},
};

}  // namespace

std::span<const Target> Targets() { return kTargets; }

}  // namespace fuzz
