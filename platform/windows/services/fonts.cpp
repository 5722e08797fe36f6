#include <algorithm>

#include "platform/windows/drawing/gdi.h"
#include "platform/windows/services/services.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

int Compare(const std::wstring& a, const std::wstring& b, DWORD flags) {
  return ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, flags, a.c_str(), static_cast<int>(a.size()),
                           b.c_str(), static_cast<int>(b.size()), nullptr, nullptr, 0);
}

// Names that differ only in case have a fixed order.
bool ComesBefore(const std::wstring& a, const std::wstring& b) {
  const int order = Compare(a, b, LINGUISTIC_IGNORECASE);
  return order == CSTR_EQUAL ? a < b : order == CSTR_LESS_THAN;
}

// The system reports a family once for each of its character sets.
int CALLBACK Take(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names) noexcept {
  if (font->lfFaceName[0] != L'@') {
    reinterpret_cast<std::vector<std::wstring>*>(names)->emplace_back(font->lfFaceName);
  }
  return 1;  // go on with the next font
}

}  // namespace

std::vector<std::string> Fonts::Families() {
  std::vector<std::wstring> names;
  LOGFONTW all{};
  all.lfCharSet = DEFAULT_CHARSET;
  const MemoryDc dc(::CreateCompatibleDC(nullptr));
  if (!dc) return {};
  ::EnumFontFamiliesExW(dc.get(), &all, &Take, reinterpret_cast<LPARAM>(&names), 0);
  // The plain order comes first: there are several times as many names as families.
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  std::sort(names.begin(), names.end(), &ComesBefore);
  std::vector<std::string> families;
  families.reserve(names.size());
  for (const std::wstring& name : names) families.push_back(FromWide(name));
  return families;
}

}  // namespace platform::windows
