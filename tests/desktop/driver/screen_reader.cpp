#include "tests/desktop/driver/screen_reader.h"

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

// Behind the system's own header, which they need.
#include <objbase.h>
#include <oleacc.h>

namespace desktop {
namespace {

VARIANT Itself() {
  VARIANT itself{};
  itself.vt = VT_I4;
  itself.lVal = CHILDID_SELF;
  return itself;
}

std::string Text(IAccessible& object,
                 HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) {
  BSTR text = nullptr;
  if (FAILED((object.*get)(Itself(), &text)) || text == nullptr) return {};
  std::string result = platform::windows::FromWide(text);
  ::SysFreeString(text);
  return result;
}

BOOL CALLBACK CollectStop(HWND window, LPARAM stops) {
  const bool stops_here = (::GetWindowLongPtrW(window, GWL_STYLE) & WS_TABSTOP) != 0;
  if (stops_here && ::IsWindowVisible(window) != FALSE) {
    reinterpret_cast<std::vector<HWND>*>(stops)->push_back(window);
  }
  return TRUE;
}

}  // namespace

ScreenReader::ScreenReader() { ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }

ScreenReader::~ScreenReader() { ::CoUninitialize(); }

void ScreenReader::Releases::operator()(IAccessible* object) const { object->Release(); }

ScreenReader::Object ScreenReader::Reach(HWND window) {
  void* object = nullptr;
  const HRESULT result = ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                                      __uuidof(IAccessible), &object);
  if (FAILED(result)) {
    platform::windows::ThrowSystemError("AccessibleObjectFromWindow", static_cast<DWORD>(result));
  }
  return Object(static_cast<IAccessible*>(object));
}

Heard ScreenReader::Hear(IAccessible& object) {
  VARIANT role{};
  object.get_accRole(Itself(), &role);
  return {Text(object, &IAccessible::get_accName), Text(object, &IAccessible::get_accValue),
          Text(object, &IAccessible::get_accDescription), role.vt == VT_I4 ? role.lVal : 0};
}

std::vector<HWND> ScreenReader::Stops(HWND window) {
  std::vector<HWND> stops;
  ::EnumChildWindows(window, &CollectStop, reinterpret_cast<LPARAM>(&stops));
  return stops;
}

}  // namespace desktop
