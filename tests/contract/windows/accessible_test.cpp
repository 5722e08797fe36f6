// What a screen reader is told of a widget (IAccessible).
#include <stdexcept>

#include "platform/windows/wide_text.h"
#include "tests/contract/windows/desk.h"
// Behind the system's own header, which they need.
#include <objbase.h>
#include <oleacc.h>

namespace contract {
namespace {

using platform::Spoken;
using platform::SpokenRole;

struct Speaker : platform::TopWindowEvents {
  explicit Speaker(Spoken said = {}) : spoken(std::move(said)) {}
  [[nodiscard]] Spoken Describe() const override { return spoken; }
  Spoken spoken;
};

// What a reader holds of a window.
class Object {
 public:
  explicit Object(platform::Widget& widget) {
    itself_.vt = VT_I4;
    itself_.lVal = CHILDID_SELF;
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const HRESULT result =
        ::AccessibleObjectFromWindow(WidgetWindow::Of(widget), static_cast<DWORD>(OBJID_CLIENT),
                                     __uuidof(IAccessible), reinterpret_cast<void**>(&object_));
    if (FAILED(result)) throw std::runtime_error("a widget has no object");
  }
  ~Object() {
    object_->Release();
    ::CoUninitialize();
  }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  // Empty where the window says nothing.
  [[nodiscard]] std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) {
    BSTR text = nullptr;
    if (FAILED((object_->*get)(itself_, &text)) || text == nullptr) return {};
    std::string result = platform::windows::FromWide(text);
    ::SysFreeString(text);
    return result;
  }
  [[nodiscard]] std::string Name() { return Text(&IAccessible::get_accName); }
  [[nodiscard]] LONG Role() {
    VARIANT role{};
    object_->get_accRole(itself_, &role);
    return role.lVal;
  }

 private:
  IAccessible* object_ = nullptr;
  VARIANT itself_{};
};

class Accessible : public DeskTest {
 protected:
  Speaker silent_;
  Speaker chart_{{"Traffic", "12 kB", "Of today", SpokenRole::kChart}};
  std::unique_ptr<platform::TopWindow> window_ =
      Window("T_frmSpeaking", platform::Frame::kDialog, silent_);
  std::unique_ptr<platform::Widget> painted_ =
      Windowing().CreateSurface(*window_, "painted", chart_);
};

TEST_F(Accessible, ReadersHearWhatAWidgetSaysAndElseWhatTheSystemFinds) {
  Speaker number({.name = "Number"});
  const auto edit = Windowing().CreateEdit(*window_, "edit", {}, number);
  const auto button =
      Windowing().CreateButton(*window_, "button", platform::ButtonKind::kPush, silent_);
  painted_->SetText("Shown");
  edit->SetText("5");
  button->SetText("&Close");
  struct Row {
    platform::Widget& widget;
    const char *name, *value, *description;
  };
  for (const Row& row : {Row{*painted_, "Traffic", "12 kB", "Of today"},
                         Row{*edit, "Number", "5", ""}, Row{*button, "Close", "", ""}}) {
    SCOPED_TRACE(row.name);
    Object object(row.widget);
    EXPECT_EQ(object.Name(), row.name);
    EXPECT_EQ(object.Text(&IAccessible::get_accValue), row.value);
    EXPECT_EQ(object.Text(&IAccessible::get_accDescription), row.description);
  }
  EXPECT_EQ(Object(*painted_).Role(), ROLE_SYSTEM_CHART);
  EXPECT_EQ(Object(*edit).Role(), ROLE_SYSTEM_TEXT);
}

TEST_F(Accessible, AReaderMayHoldAnObjectLongerThanTheProgramItsWidget) {
  Object object(*painted_);
  EXPECT_EQ(object.Name(), "Traffic");
  painted_.reset();
  EXPECT_EQ(object.Name(), "");
}

}  // namespace
}  // namespace contract
