// The keyboard in forms with a caption.
#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/panel.h"

namespace toolkit {
namespace {

// One form with all that keys reach, in the order of creation; what lies on the panel was made
// last.
class DialogKeysTest : public FormTest {
 protected:
  DialogKeysTest() {
    label.SetCaption("Fish && &Dish");
    plain.SetCaption("R&D network");
    box.SetCaption("Show &hints");
    ok.SetCaption("&Copy");
    other.SetCaption("Re&cover");
    off.SetEnabled(false);
    hidden.SetVisible(false);
    b.SetChecked(true);
    edit.SetText("old");
    memo.SetText("old");
    ok.SetDefault(true);
    for (Control* control : std::initializer_list<Control*>{&ok, &other, &painted, &off, &a, &b}) {
      control->OnClick = [this, control] { pressed.push_back(control->Name()); };
    }
    form.Show();
  }
  // The names of the controls that have the keyboard after each of so many Tabs.
  Names Tabs(int count, bool backwards = false) {
    Names names;
    for (; count > 0; --count) {
      User().PressTab("form", backwards);
      names.push_back(User().Focused());
    }
    return names;
  }
  // Whether these push buttons look as if Enter pressed them.
  std::pair<bool, bool> Defaults() { return {Widget("ok").is_default, Widget("other").is_default}; }
  Names EnterAt(Control& control) {
    control.SetFocus();
    pressed.clear();
    User().PressEnter("form");
    EXPECT_TRUE(control.Focused()) << "the keyboard stays where it is";
    return pressed;
  }

  Names pressed;
  Label plain{form, "plain"}, label{form, "label", kCaptionText};
  Edit edit{form, "edit"};
  Panel panel{form, "panel"};
  Button off{form, "off"}, other{form, "other"};
  RadioButton a{form, "a"}, b{form, "b"}, c{form, "c"};
  Memo memo{form, "memo"};
  RadioButton apart{form, "apart"};
  ColourPanel painted{form, "painted"};
  CheckBox box{panel, "box"};
  Button hidden{panel, "hidden"}, ok{panel, "ok"};
};

TEST_F(DialogKeysTest, TabGoesThroughTheControlsInOrderOfCreation) {
  EXPECT_EQ(User().Focused(), "edit") << "a form begins in its first control";
  EXPECT_EQ(Tabs(7), (Names{"box", "ok", "other", "b", "memo", "apart", "painted"}));
  EXPECT_EQ(Tabs(1), Names{"edit"});
  User().Type("edit", "n");
  EXPECT_EQ(edit.Text(), "n") << "Tab selects the text that it comes to";
  EXPECT_EQ(Tabs(3, true), (Names{"painted", "apart", "memo"}));
  User().Type("memo", "!");
  EXPECT_EQ(memo.Text(), "old!") << "but not of several lines";
  EXPECT_EQ(Tabs(4, true), (Names{"b", "other", "ok", "box"}));
  EXPECT_TRUE(panel.Focused()) << "it lies on it";
}

TEST_F(DialogKeysTest, EnterPressesTheDefaultButtonUnlessAnotherHasTheKeyboard) {
  EXPECT_EQ(EnterAt(edit), Names{"ok"}) << "though it lies on a panel";
  EXPECT_EQ(Defaults(), std::pair(true, false));
  EXPECT_EQ(EnterAt(other), Names{"other"});
  EXPECT_EQ(Defaults(), std::pair(false, true));
  EXPECT_EQ(EnterAt(painted), Names{"painted"});
  EXPECT_EQ(Defaults(), std::pair(false, false));
  ok.SetEnabled(false);
  EXPECT_EQ(EnterAt(edit), Names());
}

TEST_F(DialogKeysTest, ArrowsChooseAmongRadioButtonsAndALetterReachesWhatIsMarked) {
  b.SetFocus();
  a.SetEnabled(false);
  User().PressArrow("form");
  EXPECT_TRUE(!b.Checked() && c.Checked() && c.Focused());
  User().PressArrow("form");
  EXPECT_TRUE(b.Checked() && b.Focused()) << "around the end, but not to the disabled one";
  User().PressArrow("form", true);
  EXPECT_TRUE(c.Checked() && !apart.Checked());
  EXPECT_EQ(pressed, Names{"b"});
  User().PressAlt("form", 'd');
  EXPECT_TRUE(edit.Focused()) << "the control behind the label";
  User().PressAlt("form", 'H');
  EXPECT_TRUE(box.Checked() && box.Focused());
  pressed.clear();
  User().PressAlt("form", 'c');
  User().PressAlt("form", 'c');
  EXPECT_EQ(pressed, (Names{"ok", "other"})) << "the next one behind the keyboard";
}

TEST_F(DialogKeysTest, WhatTheFormHasNoUseForIsLeftToTheSystem) {
  using Kind = platform::DialogKey::Kind;
  const auto taken = [this](Kind kind, const char* letter = "") {
    return Widget("form").top_events->OnDialogKey({kind, false, letter});
  };
  EXPECT_FALSE(taken(Kind::kControlTab) || taken(Kind::kArrow)) << "no tabs, no radio button";
  EXPECT_FALSE(taken(Kind::kLetter, "q") || taken(Kind::kLetter));
  EXPECT_TRUE(taken(Kind::kLetter, "d") && taken(Kind::kTab) && taken(Kind::kEnter));
  b.SetFocus();
  EXPECT_TRUE(taken(Kind::kArrow) && taken(Kind::kEscape));
}

TEST_F(DialogKeysTest, WhatIsHiddenOrDisabledPassesTheKeyboardOn) {
  box.SetFocus();
  panel.SetVisible(false);
  EXPECT_TRUE(other.Focused());
  other.SetEnabled(false);
  EXPECT_TRUE(b.Focused());
  painted.SetFocus();
  painted.SetEnabled(false);
  EXPECT_TRUE(edit.Focused()) << "around the end";
  box.SetFocus();
  EXPECT_TRUE(edit.Focused()) << "what is hidden cannot have it";
}

}  // namespace
}  // namespace toolkit
