// Controls: what the user does to them is reported once, and what the code does is not.
#include "platform/controls.h"

#include "tests/contract/windows/desk.h"

namespace contract {
namespace {

using platform::ButtonKind;
using platform::DialogKey;
using platform::EditKind;
using platform::Key;
using platform::ListKind;
using platform::Rect;

// Writes down what a control reports.
struct Reports : platform::WidgetEvents {
  void OnClicked() override {
    ++clicks;
    if (on_clicked) on_clicked();
  }
  void OnChanged() override { ++changes; }
  void OnRowChecked(int row) override { rows.push_back(row); }
  bool OnKey(Key key) override {
    keys.push_back(key);
    return keep_keys;
  }
  bool OnCharacter(char16_t unit) override { return keep_digits && unit >= u'0' && unit <= u'9'; }
  void OnWheel(int notches) override { turned += notches; }
  void OnFocusLost() override { ++focus_lost; }
  void OnFocusChanged() override { ++focus_changes; }

  int clicks = 0, changes = 0, turned = 0, focus_lost = 0, focus_changes = 0;
  std::vector<int> rows;
  std::vector<Key> keys;
  bool keep_keys = false;
  bool keep_digits = false;
  std::function<void()> on_clicked;
};

struct DialogReports : platform::TopWindowEvents {
  // As a window in which the arrows move nothing: the control gets them.
  bool OnDialogKey(const DialogKey& key) override {
    keys.push_back(key);
    return key.kind != DialogKey::Kind::kArrow;
  }
  void OnFocusWanted() override { ++focus_wanted; }
  std::vector<DialogKey> keys;
  int focus_wanted = 0;
};

class Controls : public DeskTest {
 protected:
  Controls() { dialog_->Show(platform::Activation::kActivate); }

  // A place below what there is.
  Rect Next(int height) {
    top_ += height + 2;
    return {10, top_ - height, 200, height};
  }
  std::unique_ptr<platform::Button> Button(ButtonKind kind, Reports& reports) {
    return Placed(Windowing().CreateButton(*dialog_, "button", kind, reports), Next(22));
  }
  std::unique_ptr<platform::Edit> Edit(EditKind kind, Reports& reports) {
    return Placed(
        Windowing().CreateEdit(*dialog_, "edit", {kind, platform::Border::kSunken}, reports),
        Next(22));
  }
  std::unique_ptr<platform::ItemList> List(ListKind kind, Reports& reports) {
    auto list = Placed(Windowing().CreateList(*dialog_, "list", kind, reports), Next(70));
    list->Replace(0, 0, kItems);
    return list;
  }
  static COLORREF PixelOf(platform::Widget& widget, int x, int y) {
    const HWND hwnd = WidgetWindow::Of(widget);
    ::RedrawWindow(hwnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    const HDC dc = ::GetDC(hwnd);
    const COLORREF pixel = ::GetPixel(dc, x, y);
    ::ReleaseDC(hwnd, dc);
    return pixel;
  }

  static inline const std::vector<std::string> kItems = {"Tahoma", "Arial", "Gr\u00F6\u00DFe"};

  DialogReports heard_;
  std::unique_ptr<platform::TopWindow> dialog_ =
      Window("T_frmControls", platform::Frame::kDialog, heard_, {50, 50, 400, 500});
  int top_ = 5;
};

TEST_F(Controls, RadioButtonsExcludeEachOtherUpToAButtonOfAnotherKind) {
  Reports reports[4];
  const auto a = Button(ButtonKind::kRadio, reports[0]);
  const auto b = Button(ButtonKind::kRadio, reports[1]);
  const auto box = Button(ButtonKind::kCheck, reports[0]);
  const auto c = Button(ButtonKind::kRadio, reports[2]);
  const auto d = Button(ButtonKind::kRadio, reports[3]);
  a->SetChecked(true);
  c->SetChecked(true);
  Click(*b);
  d->Press();
  Click(*d);
  EXPECT_TRUE(!a->Checked() && b->Checked() && !c->Checked() && d->Checked());
  EXPECT_EQ(reports[3].clicks, 1) << "it was chosen already";
  EXPECT_EQ(reports[0].clicks + reports[2].clicks, 0) << "who loses the mark is not told";
}

TEST_F(Controls, AReportMayDestroyItsControl) {
  Reports reports;
  auto button = Button(ButtonKind::kPush, reports);
  reports.on_clicked = [&] { button.reset(); };
  Click(*button);
  EXPECT_EQ(button, nullptr);
}

TEST_F(Controls, AnEditTakesWholeCharactersUpToItsLimit) {
  struct Row {
    const char* why;
    int limit;
    const char *set, *typed, *text;
    int changes;
  };
  static constexpr Row kRows[] = {
      {"behind what was set", 0, "set", "!?", "set!?", 2},
      {"one more than the limit", 3, "", "abcd", "abc", 3},
      {"characters of two units", 3, "ab", "\U0001F600\U0001F600", "ab\U0001F600", 1},
      {"a longer text that the code has set stays", 3, "abcdef", "g", "abcdef", 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    Reports reports;
    const auto edit = Edit(EditKind::kLine, reports);
    edit->SetMaxLength(row.limit);
    edit->SetText(row.set);
    edit->Focus();
    Press({VK_END});
    Type(row.typed);
    EXPECT_EQ(edit->Text(), row.text);
    EXPECT_EQ(reports.changes, row.changes);
  }
}

TEST_F(Controls, AnEditAsksAboutKeysAndLetters) {
  Reports reports, of_memo;
  const auto edit = Edit(EditKind::kLine, reports);
  const auto memo = Edit(EditKind::kMemo, of_memo);
  reports.keep_digits = true;
  edit->Focus();
  Type("a1b2");
  EXPECT_EQ(edit->Text(), "ab");
  for (const int key : {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_RETURN}) Press({key});
  EXPECT_EQ(reports.keys,
            (std::vector<Key>{Key::kUp, Key::kDown, Key::kPageUp, Key::kPageDown, Key::kEnter}));
  const POINT middle = desktop::MiddleOf(desktop::AreaOf(WidgetWindow::Of(*edit)));
  for (const int notches : {2, -3}) desktop::Wheel(middle, notches);
  Deliver();
  EXPECT_EQ(reports.turned, -1);
  edit->SelectAll();
  Type("\u6F22");
  edit->SetReadOnly(true);
  Type("no");
  EXPECT_EQ(edit->Text(), "\u6F22");

  heard_.keys.clear();
  reports.keep_keys = true;
  Press({VK_RETURN});
  memo->Focus();
  Press({VK_RETURN});
  EXPECT_EQ(memo->Text(), "\n");
  EXPECT_EQ(heard_.keys, std::vector<DialogKey>()) << "who wanted the key kept it";
  EXPECT_EQ(reports.focus_lost, 1);
}

TEST_F(Controls, AListReportsTheRowThatTheUserChooses) {
  for (const ListKind kind : {ListKind::kBox, ListKind::kCombo, ListKind::kFontCombo}) {
    SCOPED_TRACE(static_cast<int>(kind));
    Reports reports;
    const auto list = List(kind, reports);
    list->SetIndex(0);
    list->Focus();
    Press({VK_DOWN});
    EXPECT_EQ(list->Index(), 1);
    list->Replace(3, 0, kItems);
    list->Replace(0, 2, {});
    EXPECT_EQ(list->Index(), -1) << "new rows";
    EXPECT_EQ(reports.changes, 1);
  }
  Reports reports;
  const auto list = List(ListKind::kCheckBox, reports);
  list->SetChecked(2, true);
  list->Focus();
  for (const int key : {VK_HOME, VK_DOWN, VK_SPACE, VK_DOWN, VK_SPACE}) Press({key});
  EXPECT_TRUE(!list->Checked(0) && list->Checked(1) && !list->Checked(2));
  EXPECT_EQ(reports.rows, (std::vector<int>{1, 2}));
  EXPECT_EQ(reports.changes, 3);

  const auto combo = Windowing().CreateList(*dialog_, "combo", ListKind::kCombo, reports);
  combo->SetFont({});
  for (const Rect& bounds : {Rect{10, 20, 150, 21}, Rect{10, 20, 150, 32}}) {
    combo->SetBounds(bounds);
    EXPECT_EQ(combo->Bounds(), bounds) << "the height is that of the closed list";
  }
}

TEST_F(Controls, TreeAndTabsReportNewPositionsOnly) {
  Reports on_tree, on_tabs;
  const auto tree = Placed(Windowing().CreateTree(*dialog_, "tree", on_tree), Next(120));
  const std::vector<platform::TreeItem> items = {{"General", 0}, {"Graph", 0},  {"Colors", 1},
                                                 {"Deep", 2},    {"Others", 1}, {"Text", 0}};
  tree->SetItems(items);
  tree->SetIndex(2);
  tree->Focus();
  Press({VK_DOWN});
  Press({VK_DOWN});
  EXPECT_EQ(tree->Index(), 4) << "as they stand expanded";
  EXPECT_EQ(on_tree.changes, 2);

  const auto tabs = Placed(Windowing().CreateTabs(*dialog_, "tabs", on_tabs), Next(80));
  tabs->SetItems(kItems);
  tabs->Focus();
  Press({VK_RIGHT});
  tabs->SetItems(std::vector<std::string>{"Other", "Names", "Here"});
  EXPECT_EQ(tabs->Index(), 1) << "only renamed";
  tabs->SetItems(std::vector<std::string>{"Fewer"});
  EXPECT_EQ(tabs->Index(), 0);
  EXPECT_EQ(on_tabs.changes, 1);
}

TEST_F(Controls, TheWindowHearsOfEachKeyThatNoControlWants) {
  using Kind = DialogKey::Kind;
  Reports silent, on_button;
  const auto list = List(ListKind::kCombo, silent);
  const auto tree = Placed(Windowing().CreateTree(*dialog_, "tree", silent), Next(60));
  const auto button = Button(ButtonKind::kPainted, on_button);
  EXPECT_EQ(heard_.focus_wanted, 1) << "no control has had the keyboard";
  tree->Focus();
  Type("d");
  list->Focus();
  for (const int key : {VK_RETURN, VK_ESCAPE}) {
    ::SendMessageW(WidgetWindow::Of(*list), CB_SHOWDROPDOWN, TRUE, 0);
    Press({key});
    EXPECT_EQ(::SendMessageW(WidgetWindow::Of(*list), CB_GETDROPPEDSTATE, 0, 0), FALSE);
  }
  EXPECT_EQ(heard_.keys, std::vector<DialogKey>()) << "an open list and a tree keep theirs";

  button->Focus();
  EXPECT_EQ(on_button.focus_changes, 1);
  Press({VK_SHIFT, VK_TAB});
  Press({VK_CONTROL, VK_TAB});
  for (const int key : {VK_UP, VK_RETURN, VK_ESCAPE, +'D'}) Press({key});
  Press({VK_MENU, 'E'});
  const std::vector<DialogKey> keys = {
      {Kind::kTab, true}, {Kind::kControlTab, false},  {Kind::kArrow, true},       {Kind::kEnter},
      {Kind::kEscape},    {Kind::kLetter, false, "d"}, {Kind::kLetter, false, "e"}};
  EXPECT_EQ(heard_.keys, keys);
  EXPECT_EQ(on_button.keys, std::vector<Key>{Key::kUp}) << "the window had no use for it";
}

TEST_F(Controls, TakeTheColoursThatTheyAreGiven) {
  namespace colour = platform::colour;
  Reports silent;
  const auto group =
      Placed(Windowing().CreateButton(*dialog_, "group", ButtonKind::kGroup, silent), Next(60));
  const auto box = Placed(Windowing().CreateButton(*group, "box", ButtonKind::kCheck, silent),
                          {10, 20, 150, 20});
  const auto edit = Edit(EditKind::kLine, silent);
  group->SetColours(colour::kBlack, colour::kLime);
  box->SetColours(colour::kBlack, colour::kLime);
  edit->SetColours(colour::kBlack, colour::kLime);
  EXPECT_EQ(PixelOf(*group, 100, 50), colour::kLime) << "the inside of the group";
  EXPECT_EQ(PixelOf(*box, 140, 10), colour::kLime);
  EXPECT_EQ(PixelOf(*edit, 150, 8), colour::kLime);
  edit->SetColours(colour::kBlack, colour::kWindow);
  edit->SetEnabled(false);
  EXPECT_EQ(PixelOf(*edit, 150, 8), ::GetSysColor(COLOR_BTNFACE)) << "what cannot be changed";
}

}  // namespace
}  // namespace contract
