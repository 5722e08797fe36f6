// What only the system's own controls have: their classes, colours and looks.
#include "platform/windows/win32.h"
#include "tests/contract/controls_fixture.h"
#include "tests/contract/hands_windows.h"

namespace contract {
namespace {

using platform::ButtonKind;
using platform::EditKind;

class NativeControlsTest : public ControlsTest {
 protected:
  void Show() {
    dialog_->Show(platform::Activation::kActivate);
    (void)desk_->Platform().message_loop.ProcessPending();
  }
  static COLORREF PixelAt(const char* name, int x, int y) {
    const HWND hwnd = Find(name);
    ::RedrawWindow(hwnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    const HDC dc = ::GetDC(hwnd);
    const COLORREF pixel = ::GetPixel(dc, x, y);
    ::ReleaseDC(hwnd, dc);
    return pixel;
  }
};

struct Blue : Reports {
  void OnPaint(platform::Canvas& canvas) override {
    const platform::Size size = canvas.Extent();
    canvas.Fill({0, 0, size.width, size.height}, platform::colour::kBlue);
  }
};

TEST_F(NativeControlsTest, ControlsTakeTheColoursThatTheyAreGiven) {
  Reports silent;
  Blue blue;
  const auto group =
      Placed(Windowing().CreateButton(*dialog_, "group", ButtonKind::kGroup, silent), 60);
  const auto in_group = Windowing().CreateButton(*group, "in group", ButtonKind::kCheck, silent);
  in_group->SetBounds({10, 20, 150, 20});
  in_group->SetVisible(true);
  const auto edit = Edit("edit", EditKind::kLine, silent);
  const auto painted = Windowing().CreateButton(*dialog_, "painted", ButtonKind::kPainted, blue);
  painted->SetBounds({250, 10, 60, 30});
  painted->SetVisible(true);
  for (platform::Widget* widget :
       std::initializer_list<platform::Widget*>{group.get(), in_group.get(), edit.get()}) {
    widget->SetColours(platform::colour::kBlack, platform::colour::kLime);
  }
  Show();
  EXPECT_EQ(PixelAt("group", 100, 50), platform::colour::kLime) << "the inside of the group";
  EXPECT_EQ(PixelAt("in group", 140, 10), platform::colour::kLime);
  EXPECT_EQ(PixelAt("edit", 150, 8), platform::colour::kLime);
  EXPECT_EQ(PixelAt("painted", 30, 15), platform::colour::kBlue);
  edit->SetColours(platform::colour::kBlack, platform::colour::kWindow);
  edit->SetEnabled(false);
  EXPECT_EQ(PixelAt("edit", 150, 8), ::GetSysColor(COLOR_BTNFACE)) << "what cannot be changed";
}

TEST_F(NativeControlsTest, TheButtonThatEnterPressesHasTheThickFrame) {
  Reports silent;
  const auto ok = Button("ok", ButtonKind::kPush, silent);
  for (const bool is_default : {true, false}) {
    ok->SetDefault(is_default);
    const LONG_PTR style = ::GetWindowLongPtrW(Find("ok"), GWL_STYLE) & BS_TYPEMASK;
    EXPECT_EQ(style == BS_DEFPUSHBUTTON, is_default);
  }
}

TEST_F(NativeControlsTest, AnOpenListAndATreeKeepTheirKeysFromTheWindow) {
  Reports silent;
  const auto list =
      Placed(Windowing().CreateList(*dialog_, "list", platform::ListKind::kCombo, silent));
  const auto tree = Placed(Windowing().CreateTree(*dialog_, "tree", silent), 60);
  const auto box = Button("box", ButtonKind::kCheck, silent);
  const std::vector<std::string> items = {"a", "b"};
  list->SetItems(items);
  Show();
  list->Focus();
  for (const WPARAM key : {VK_RETURN, VK_ESCAPE}) {
    ::SendMessageW(Find("list"), CB_SHOWDROPDOWN, TRUE, 0);
    key == VK_RETURN ? desk_->PressEnter("T_frmControls") : desk_->PressEsc("T_frmControls");
    EXPECT_EQ(::SendMessageW(Find("list"), CB_GETDROPPEDSTATE, 0, 0), FALSE);
  }
  const auto letter = [this](const char* control) {
    ::PostMessageW(Find(control), WM_CHAR, L'd', 1);
    (void)desk_->Platform().message_loop.ProcessPending();
  };
  letter("tree");
  EXPECT_EQ(dialog_reports_.keys, std::vector<platform::DialogKey>());
  letter("box");
  EXPECT_EQ(dialog_reports_.keys.size(), 1U);
}

TEST_F(NativeControlsTest, APasswordIsShownAsLettersX) {
  Reports silent;
  const auto password = Edit("password", EditKind::kPassword, silent);
  EXPECT_EQ(::SendMessageW(Find("password"), EM_GETPASSWORDCHAR, 0, 0), L'x');
}

TEST_F(NativeControlsTest, WhatOtherProgramsDoToAControlIsReported) {
  Reports on_box, on_edit, on_list;
  const auto box = Button("box", ButtonKind::kCheck, on_box);
  const auto edit = Edit("edit", EditKind::kLine, on_edit);
  const auto list =
      Placed(Windowing().CreateList(*dialog_, "list", platform::ListKind::kCombo, on_list));
  const std::vector<std::string> items = {"a", "b"};
  list->SetItems(items);
  Show();
  ::SendMessageW(Find("box"), BM_CLICK, 0, 0);
  ::SendMessageW(Find("edit"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"text"));
  ::SendMessageW(Find("list"), CB_SETCURSEL, 1, 0);
  ::SendMessageW(::GetParent(Find("list")), WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Find("list")));
  EXPECT_EQ(on_box.clicks, 1);
  EXPECT_EQ(on_edit.changes, 1);
  EXPECT_EQ(on_list.changes, 1);
}

}  // namespace
}  // namespace contract
