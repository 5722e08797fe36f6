// The end of the program: lock, question, answer, and every way to ask for it.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "display/unit_AreYouSureForm.h"
#include "settings/unit_SecurityForm.h"
#include "tests/display/meter.h"
#include "toolkit/controls/layout.h"

namespace {

using display::kAreYouSureForm;
using platform::WindowId;
using settings::kSecurityForm;

constexpr const char* kMeter = "T_frmBrisanto";

// What the user does with the prompt or with the question.
enum class Answer { kNotAsked, kPassword, kWrong, kYes, kNo, kCancel, kEnter, kEsc, kCloseBox };

class Leaving : public test::MeterTest {
 protected:
  struct Way {
    const char* name;
    std::function<void()> go;
  };

  Leaving() { Set("zdP", "Secret"); }

  [[nodiscard]] bool Open(std::string_view form) const { return machine.windowing.Exists(form); }

  // What the user does once `form` is open.
  void Then(std::string_view form, Answer answer) {
    if (answer == Answer::kNotAsked) return;
    machine.message_loop.Then([this, form, answer] {
      ASSERT_TRUE(Open(form)) << form;
      Scan({});  // goes on meanwhile
      Give(form, answer);
    });
  }
  void Give(std::string_view form, Answer answer) {
    platform::memory::Windowing& user = machine.windowing;
    switch (answer) {
      case Answer::kNotAsked:
        break;
      case Answer::kPassword:
        user.Type("PassEdit", "Secret");
        break;
      case Answer::kWrong:
        user.Type("PassEdit", "secret");
        Then(form, Answer::kCancel);  // it is still there
        break;
      case Answer::kYes:
        user.Press("btnYes");
        break;
      case Answer::kNo:
        user.Press("btnNo");
        break;
      case Answer::kCancel:
        user.Press("CancelButton");
        break;
      case Answer::kEnter:
        user.PressEnter(form);
        break;
      case Answer::kEsc:
        user.PressEsc(form);
        break;
      case Answer::kCloseBox:
        user.ClickCloseBox(form);
        break;
    }
  }

  // The system sends it to a window that is disabled, too.
  void CloseFromOutside() { Widget(kMeter).top_events->OnClose(); }

  const std::vector<Way> kWays = {
      {"the menu of the meter", [this] { Choose("Exit"); }},
      {"the menu of the tray icon",
       [this] {
         Window().Hide();
         machine.menus.WillChoose("Exit");
         machine.notification_area.RightClick({900, 700});
       }},
      {"Alt+F4", [this] { machine.windowing.ClickCloseBox(kMeter); }},
      {"another program closes it", [this] { CloseFromOutside(); }},
  };
};

TEST_F(Leaving, AsksWhatThereIsToAskWhicheverWayTheUserGoes) {
  constexpr bool kEnds = true;
  constexpr bool kStays = false;
  struct Row {
    const char* why;
    bool lock;
    bool ask;
    Answer prompt;
    Answer question;
    bool ends;
  };
  static constexpr Row kRows[] = {
      {"nothing to ask", false, false, Answer::kNotAsked, Answer::kNotAsked, kEnds},
      {"Yes", false, true, Answer::kNotAsked, Answer::kYes, kEnds},
      {"Enter is Yes", false, true, Answer::kNotAsked, Answer::kEnter, kEnds},
      {"No", false, true, Answer::kNotAsked, Answer::kNo, kStays},
      {"Esc is No", false, true, Answer::kNotAsked, Answer::kEsc, kStays},
      {"so is the close box", false, true, Answer::kNotAsked, Answer::kCloseBox, kStays},
      {"locked: the password is enough", true, false, Answer::kPassword, Answer::kNotAsked, kEnds},
      {"a wrong one is not", true, false, Answer::kWrong, Answer::kNotAsked, kStays},
      {"Cancel", true, false, Answer::kCancel, Answer::kNotAsked, kStays},
      {"Esc at the prompt", true, false, Answer::kEsc, Answer::kNotAsked, kStays},
      {"its close box", true, false, Answer::kCloseBox, Answer::kNotAsked, kStays},
      {"password, then Yes", true, true, Answer::kPassword, Answer::kYes, kEnds},
      {"password, then No", true, true, Answer::kPassword, Answer::kNo, kStays},
      {"password, then Esc", true, true, Answer::kPassword, Answer::kEsc, kStays},
      {"no password, no question", true, true, Answer::kWrong, Answer::kNotAsked, kStays},
      {"nor without a try", true, true, Answer::kCancel, Answer::kNotAsked, kStays},
  };
  for (const Row& row : kRows) {
    for (const Way& way : kWays) {
      SCOPED_TRACE(std::string(row.why) + ", by " + way.name);
      Set("zdP1", row.lock ? 1 : 0);
      Set("AskOnExit", row.ask ? 1 : 0);
      Run([&] {
        Then(kSecurityForm, row.prompt);
        Then(kAreYouSureForm, row.question);
        const bool shown_before = way.name != kWays[1].name;
        way.go();
        EXPECT_EQ(App().Terminated(), row.ends);
        EXPECT_FALSE(Open(kSecurityForm));
        EXPECT_FALSE(Open(kAreYouSureForm));
        EXPECT_TRUE(Widget(kMeter).enabled);
        EXPECT_EQ(Widget(kMeter).visible, shown_before) << "stays as it was";
      });
      EXPECT_EQ(machine.message_loop.starved, 0) << "something was asked that nobody answered";
      EXPECT_FALSE(Open(kMeter));
    }
  }
}

TEST_F(Leaving, TheBoxIsAsStoredAndIsStoredAtOnceWhateverTheAnswer) {
  Run([&] {
    machine.message_loop.Then([&] {
      EXPECT_TRUE(Widget("AskCheck").checked) << "nothing was stored";
      EXPECT_EQ(machine.windowing.Focused(), "btnYes");
      EXPECT_EQ(machine.windowing.TabOrder(kAreYouSureForm),
                (std::vector<std::string>{"AskCheck", "btnYes", "btnNo"}));
      machine.windowing.Press("AskCheck");
      EXPECT_EQ(Stored("AskOnExit"), 0U);
      machine.windowing.Press("AskCheck");
      EXPECT_EQ(Stored("AskOnExit"), 1U);
      machine.windowing.Press("AskCheck");
      machine.windowing.Press("btnNo");
    });
    Choose("Exit");
    EXPECT_FALSE(App().Terminated());
    EXPECT_EQ(Stored("AskOnExit"), 0U);
    Choose("Exit");  // nobody is there to answer a question
    EXPECT_TRUE(App().Terminated());
  });
}

TEST_F(Leaving, ASecondRequestRaisesWhatIsAskedAndIsRefused) {
  struct Row {
    const char* why;
    bool lock;
  };
  for (const Row& row : {Row{"the question", false}, Row{"the prompt, then the question", true}}) {
    SCOPED_TRACE(row.why);
    Set("zdP1", row.lock ? 1 : 0);
    Run([&] {
      const auto again = [&](std::string_view form) {
        const int raised = Widget(form).raised;
        CloseFromOutside();
        machine.menus.WillChoose("Exit");
        machine.notification_area.RightClick({900, 700});
        EXPECT_EQ(Widget(form).raised, raised + 2) << form;
        EXPECT_FALSE(App().Terminated());
      };
      if (row.lock) {
        machine.message_loop.Then([&] {
          again(kSecurityForm);
          machine.windowing.Type("PassEdit", "Secret");
        });
      }
      machine.message_loop.Then([&] {
        again(kAreYouSureForm);
        EXPECT_FALSE(Open(kSecurityForm));
        machine.windowing.Press("btnYes");
      });
      CloseFromOutside();
      EXPECT_TRUE(App().Terminated());
    });
    EXPECT_EQ(machine.message_loop.starved, 0);
  }
}

TEST_F(Leaving, AMenuThatIsOpenGoesBeforeTheQuestionComes) {
  Run([&] {
    machine.menus.user = [&](const auto&, auto&) {
      CloseFromOutside();
      EXPECT_FALSE(Open(kAreYouSureForm)) << "under the menu it would not get the mouse";
      EXPECT_TRUE(machine.menus.cancelled);
      return 1;
    };
    Then(kAreYouSureForm, Answer::kYes);
    machine.windowing.RightClick(kMeter);
    EXPECT_TRUE(App().Terminated());
    machine.menus.user = nullptr;
  });
}

class LeavingUnderAnAlert : public Leaving {
 protected:
  LeavingUnderAnAlert() {
    for (const char* name : {"BAAlerts", "MoreThan", "baDownload", "BAAction"}) Set(name, 1);
    Set("WindowTitle", 1);
    notes = machine.other_windows.Add("Notes");
  }

  // A scan that reaches the limit; returns when its alert is closed.
  void ScanIntoAlert() { Scan({2048, 0}); }

  WindowId notes = 0;
};

TEST_F(LeavingUnderAnAlert, YesEndsItWithCancelAndLetsItsScanFinish) {
  Run([&] {
    Scan({});
    machine.message_loop.Then([&] {
      ASSERT_TRUE(Open("T_frmBandWidthAlert"));
      Then(kAreYouSureForm, Answer::kYes);
      CloseFromOutside();
      EXPECT_TRUE(App().Terminated());
      EXPECT_TRUE(Open(kMeter)) << "the scan is not over yet";
    });
    ScanIntoAlert();
    EXPECT_FALSE(Open("T_frmBandWidthAlert"));
    EXPECT_TRUE(App().Modals().Empty());
    EXPECT_EQ(Window().Traffic().RunTotalDL, 2048);
    EXPECT_NE(machine.other_windows.Find(notes).title, "Notes");
  });
  EXPECT_FALSE(Open(kMeter));
  EXPECT_EQ(machine.timers.Running(), 0);
  EXPECT_EQ(machine.other_windows.Find(notes).title, "Notes");
  EXPECT_FALSE(machine.files.BytesBesideProgram("err.log"));
}

TEST_F(LeavingUnderAnAlert, NoLeavesItOpen) {
  Run([&] {
    Scan({});
    machine.message_loop.Then([&] {
      Then(kAreYouSureForm, Answer::kNo);
      CloseFromOutside();
      EXPECT_TRUE(Widget("T_frmBandWidthAlert").enabled);
      machine.windowing.Press("OkBtn");
    });
    ScanIntoAlert();
    EXPECT_FALSE(App().Terminated());
  });
}

TEST_F(LeavingUnderAnAlert, TheShutdownReactionAsksNothing) {
  Set("zdP1", 1);
  Set("BAAction", 2);
  Run([&] {
    Scan({});
    ScanIntoAlert();
    EXPECT_TRUE(App().Terminated());
  });
  EXPECT_EQ(machine.message_loop.starved, 0);
  EXPECT_EQ(machine.other_windows.Find(notes).title, "Notes");
}

TEST_F(LeavingUnderAnAlert, TheEndOfTheSessionAsksNothingAndEndsWhatIsAsked) {
  for (const bool lock : {false, true}) {
    SCOPED_TRACE(lock);
    Set("zdP1", lock ? 1 : 0);
    Run([&] {
      Scan({});
      machine.message_loop.Then([&] {
        EXPECT_TRUE(Open(lock ? kSecurityForm : kAreYouSureForm));
        machine.windowing.EndSession();
        EXPECT_EQ(machine.other_windows.Find(notes).title, "Notes") << "the process may go now";
      });
      CloseFromOutside();
      EXPECT_TRUE(App().Terminated());
    });
    EXPECT_EQ(machine.message_loop.starved, 0);
    EXPECT_FALSE(Open(kMeter));
  }
}

TEST_F(Leaving, WhatIsAskedIsNotCoveredByAMeterThatStaysOnTop) {
  for (const bool on_top : {true, false}) {
    SCOPED_TRACE(on_top);
    Set("AlwaysTopOn", on_top ? 1 : 0);
    Run([&] {
      machine.message_loop.Then([&] {
        EXPECT_EQ(Widget(kAreYouSureForm).topmost, on_top);
        EXPECT_EQ(toolkit::LayoutFaults(*App().Modals().Top()), std::vector<std::string>());
        machine.windowing.Press("btnNo");
      });
      Choose("Exit");
    });
  }
}

}  // namespace
