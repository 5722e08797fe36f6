#include "platform/windows/widgets/accessible.h"

#include <atomic>
#include <string>

#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"

// These headers must follow the system's header.
#include <objbase.h>
#include <oleacc.h>

namespace platform::windows {
namespace {

HMODULE Load(const wchar_t* name) {
  return ::LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

// The calls for accessible objects. They stay loaded until the process ends: a screen reader may
// hold an object that long.
struct Calls {
  HMODULE oleacc = Load(L"oleacc.dll");
  decltype(&::CreateStdAccessibleObject) standard_object =
      Function<decltype(&::CreateStdAccessibleObject)>(oleacc, "CreateStdAccessibleObject");
  decltype(&::LresultFromObject) result =
      Function<decltype(&::LresultFromObject)>(oleacc, "LresultFromObject");
  decltype(&::SysAllocString) text =
      Function<decltype(&::SysAllocString)>(Load(L"oleaut32.dll"), "SysAllocString");
  decltype(&::CoInitializeEx) start_com =
      Function<decltype(&::CoInitializeEx)>(Load(L"ole32.dll"), "CoInitializeEx");

  [[nodiscard]] bool Complete() const {
    return standard_object != nullptr && result != nullptr && text != nullptr &&
           start_com != nullptr;
  }
};

// COM serves the calls of other programs while the thread of the user interface waits for messages.
const Calls* Started() {
  static const Calls kCalls;
  static const bool kStarted =
      kCalls.Complete() && SUCCEEDED(kCalls.start_com(nullptr, COINIT_APARTMENTTHREADED));
  return kStarted ? &kCalls : nullptr;
}

LONG SystemRole(SpokenRole role) {
  switch (role) {
    case SpokenRole::kButton:
      return ROLE_SYSTEM_PUSHBUTTON;
    case SpokenRole::kChart:
      return ROLE_SYSTEM_CHART;
    case SpokenRole::kLink:
      return ROLE_SYSTEM_LINK;
    case SpokenRole::kText:
      return ROLE_SYSTEM_STATICTEXT;
    case SpokenRole::kAsSystem:
      break;
  }
  return 0;
}

// The system's object for a window, except for what the widget says. It may outlive the widget;
// then the system answers alone.
class Accessible final : public IAccessible {
 public:
  // Takes over the reference to `standard`.
  Accessible(const Calls& calls, HWND hwnd, IAccessible* standard)
      : calls_(calls), hwnd_(hwnd), standard_(*standard) {}
  virtual ~Accessible() { standard_.Release(); }
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;

  // What else the system's object can do, such as going through its children, it does itself.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (id != __uuidof(IUnknown) && id != __uuidof(IDispatch) && id != __uuidof(IAccessible)) {
      return standard_.QueryInterface(id, object);
    }
    *object = this;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
    return Say(&Spoken::name, &IAccessible::get_accName, child, name);
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
    return Say(&Spoken::value, &IAccessible::get_accValue, child, value);
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
    return Say(&Spoken::description, &IAccessible::get_accDescription, child, description);
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    const SpokenRole own = Said(child).role;
    if (role == nullptr || own == SpokenRole::kAsSystem) return standard_.get_accRole(child, role);
    role->vt = VT_I4;
    role->lVal = SystemRole(own);
    return S_OK;
  }

  // The rest is the system's.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    return standard_.GetTypeInfoCount(count);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT which, LCID locale, ITypeInfo** info) override {
    return standard_.GetTypeInfo(which, locale, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override {
    return standard_.GetIDsOfNames(id, names, count, locale, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrong) override {
    return standard_.Invoke(member, id, locale, flags, parameters, result, exception, wrong);
  }
  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
    return standard_.get_accParent(parent);
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
    return standard_.get_accChildCount(count);
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
    return standard_.get_accChild(child, object);
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
    return standard_.get_accState(child, state);
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override {
    return standard_.get_accHelp(child, help);
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
    return standard_.get_accHelpTopic(file, child, topic);
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* key) override {
    return standard_.get_accKeyboardShortcut(child, key);
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
    return standard_.get_accFocus(child);
  }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
    return standard_.get_accSelection(children);
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
    return standard_.get_accDefaultAction(child, action);
  }
  HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
    return standard_.accSelect(flags, child);
  }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                        VARIANT child) override {
    return standard_.accLocation(left, top, width, height, child);
  }
  HRESULT STDMETHODCALLTYPE accNavigate(LONG way, VARIANT from, VARIANT* to) override {
    return standard_.accNavigate(way, from, to);
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
    return standard_.accHitTest(left, top, child);
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
    return standard_.accDoDefaultAction(child);
  }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
    return standard_.put_accName(child, name);
  }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
    return standard_.put_accValue(child, value);
  }

 private:
  using SystemText = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

  // What the widget says of itself; nothing for a row or another part, or when it is gone.
  [[nodiscard]] Spoken Said(const VARIANT& child) const {
    const bool itself = child.vt == VT_I4 && child.lVal == CHILDID_SELF;
    const WidgetWindow* widget = itself ? WidgetWindow::Of(hwnd_) : nullptr;
    try {
      return widget != nullptr ? widget->Describe() : Spoken{};
    } catch (...) {
      return {};  // no exception must reach the system's frames
    }
  }

  HRESULT Say(std::string Spoken::*part, SystemText system, const VARIANT& child, BSTR* text) {
    const std::string own = Said(child).*part;
    if (text == nullptr || own.empty()) return (standard_.*system)(child, text);
    *text = calls_.text(ToWide(own).c_str());
    return *text != nullptr ? S_OK : E_OUTOFMEMORY;
  }

  const Calls& calls_;
  HWND hwnd_;
  IAccessible& standard_;
  std::atomic<ULONG> references_{1};
};

}  // namespace

std::optional<LRESULT> AnswerReader(WidgetWindow& widget, const Message& message) {
  if (static_cast<LONG>(message.l) != OBJID_CLIENT || widget.Describe() == Spoken{}) {
    return std::nullopt;
  }
  const Calls* calls = Started();
  if (calls == nullptr) return std::nullopt;
  void* standard = nullptr;
  if (FAILED(
          calls->standard_object(widget.hwnd(), OBJID_CLIENT, __uuidof(IAccessible), &standard))) {
    return std::nullopt;
  }
  auto* object = new Accessible(*calls, widget.hwnd(), static_cast<IAccessible*>(standard));
  const LRESULT answer = calls->result(__uuidof(IAccessible), message.w, object);
  object->Release();  // the answer holds it
  if (answer <= 0) return std::nullopt;
  return answer;
}

}  // namespace platform::windows
