#include "language/language.h"

#include "platform/text.h"

namespace language {
namespace {

constexpr std::string_view kEnglish = "English";
constexpr std::string_view kEnding = ".lng";
constexpr std::string_view kFolder = "Languages\\";
constexpr std::size_t kLargestFile = 1U << 20;  // bytes; a complete file has a thirtieth of that

bool SameName(std::string_view a, std::string_view b) {
  return platform::AsciiLower(a) == platform::AsciiLower(b);
}

}  // namespace

std::string Translation::operator()(const TextEntry& entry) const {
  if (!file_) return std::string(entry.english);
  const std::optional<std::string_view> found = file_->Find(entry.section, entry.key);
  const bool usable = found && PlaceHolders(*found) == PlaceHolders(entry.english);
  return std::string(usable ? *found : entry.english);
}

Translation Language::Chosen() const {
  if (!kept_.file) kept_ = {};
  return Kept();
}

Translation Language::Kept() const {
  std::string name = store_.Read(settings::setting::Language);
  if (name != kept_.name) {
    std::shared_ptr<const LanguageFile> file = Load(name);
    kept_ = {std::move(name), std::move(file)};
  }
  return Translation(kept_.file);
}

std::string Language::Folder() const { return store_.ProgramFile(kFolder); }

// Loads only a file that is in the folder's list, so that a name cannot lead out of the folder, nor
// to one of the system's devices, which would keep the program waiting.
std::shared_ptr<const LanguageFile> Language::Load(const std::string& name) const {
  const std::string wanted = name + std::string(kEnding);
  for (const std::string& file : LoadDirectory(files_, Folder(), "*" + std::string(kEnding))) {
    if (!SameName(file, wanted)) continue;
    const std::optional<std::string> bytes = files_.Load(Folder() + file, kLargestFile);
    if (bytes) return std::make_shared<LanguageFile>(*bytes, locale_);
  }
  return nullptr;
}

std::vector<std::string> Language::Names() const {
  std::vector<std::string> names{std::string(kEnglish)};
  for (std::string& file : LoadDirectory(files_, Folder(), "*" + std::string(kEnding))) {
    file.resize(file.size() - kEnding.size());
    if (!file.empty() && !SameName(file, kEnglish)) names.push_back(std::move(file));
  }
  return names;
}

std::string Language::OwnName(const std::string& name) const {
  constexpr const TextEntry& entry = text::SettingsForm::LanguageName;
  const std::shared_ptr<const LanguageFile> file = Load(name);
  const auto own = file ? file->Find(entry.section, entry.key) : std::nullopt;
  return own && !own->empty() ? std::string(*own) : name;
}

std::size_t Language::IndexIn(const std::vector<std::string>& names) const {
  const std::string name = store_.Read(settings::setting::Language);
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (SameName(names[i], name)) return i;
  }
  return 0;
}

void Language::Choose(std::string_view name) {
  store_.Write(settings::setting::Language, name);
  kept_ = {};
}

void SayNames(const toolkit::Control& parent, std::string_view section, const Translation& say) {
  for (toolkit::Control* control : parent.Children()) {
    if (const auto* text = FindText(section, control->Name())) control->SetCaption(say(*text));
    const auto* hint = FindText(section, control->Name() + "Hint");
    if (hint != nullptr) control->SetHint(say(*hint));
    if (!control->IsComposite()) SayNames(*control, section, say);
  }
}

std::vector<std::string> LoadDirectory(platform::Files& files, std::string_view folder,
                                       std::string_view mask) {
  std::string path(folder);
  if (!path.ends_with('\\')) path += '\\';
  return files.List(path, mask);
}

}  // namespace language
