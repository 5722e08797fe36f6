// The end of the program: lock, question, answer, and every way to ask for it.
#include "display/unit_AreYouSureForm.h"
#include "settings/unit_SecurityForm.h"
#include "tests/meter.h"

namespace {

using display::kAreYouSureForm;
using settings::kSecurityForm;

constexpr const char* kMeter = "T_frmBrisanto";
constexpr const char* kAlert = "T_frmBandWidthAlert";

class Leaving : public test::Meter {
 protected:
  using Act = std::function<void()>;

  Leaving() { Set("zdP", "Secret"); }

  [[nodiscard]] bool Open(std::string_view form) const { return machine.windowing.Exists(form); }
  void Ask(bool lock, bool question) {
    Set("zdP1", lock ? 1 : 0);
    Set("AskOnExit", question ? 1 : 0);
  }
  // What the user does when the prompt is open, or the question; a scan goes on meanwhile.
  void At(std::string_view form, const Act& act) {
    Then([this, form, act] {
      ASSERT_TRUE(Open(form)) << form;
      Scan({});
      act();
    });
  }
  Act Press(const char* button) {
    return [this, button] { User().Press(button); };
  }
  void Password() { User().Type("PassEdit", "Secret"); }

  // The system sends it to a window that is disabled, too.
  void CloseFromOutside() { Widget(kMeter).top_events->OnClose(); }

  // An alert in the scan that reaches the limit, while a title is posted.
  void Alert(int action) {
    for (const char* name : {"BAAlerts", "MoreThan", "baDownload", "WindowTitle"}) Set(name, 1);
    Set("BAAction", action);
  }
  std::string Title() { return machine.other_windows.Find(notes).title; }

  const platform::WindowId notes = machine.other_windows.Add("Notes");
};

TEST_F(Leaving, AsksWhatThereIsToAskWhicheverWayTheUserGoes) {
  const Act nothing;
  const Act password = [&] { Password(); };
  const Act cancel = Press("CancelButton");
  const Act no = Press("btnNo");
  const Act enter = [&] {
    User().PressTab(kAreYouSureForm, true);  // away from the button
    User().PressEnter(kAreYouSureForm);
  };
  const Act menu = [&] { Choose("Exit"); };
  const Act alt_f4 = [&] { User().ClickCloseBox(kMeter); };
  const Act tray = [&] {
    Window().Hide();
    ChooseInTray("Exit");
    EXPECT_FALSE(Widget(kMeter).visible) << "stays as it was";
  };
  struct Row {
    const char* why;
    Act go;
    bool lock, ask;
    Act prompt, question;
    bool ends;
  };
  for (const Row& row :
       {Row{"nothing to ask", menu, false, false, nothing, nothing, true},
        {"Enter is Yes", menu, false, true, nothing, enter, true},
        {"No", alt_f4, false, true, nothing, no, false},
        {"Esc is No", menu, false, true, nothing, [&] { User().PressEsc(kAreYouSureForm); }, false},
        {"the password is enough", tray, true, false, password, nothing, true},
        {"without it nothing is asked", menu, true, true, cancel, nothing, false},
        {"password, then Enter", alt_f4, true, true, password, enter, true},
        {"password, then No", tray, true, true, password, no, false}}) {
    SCOPED_TRACE(row.why);
    Ask(row.lock, row.ask);
    Run([&] {
      if (row.prompt) At(kSecurityForm, row.prompt);
      if (row.question) At(kAreYouSureForm, row.question);
      row.go();
      EXPECT_EQ(App().Terminated(), row.ends);
      EXPECT_FALSE(Open(kSecurityForm) || Open(kAreYouSureForm));
    });
  }
}

TEST_F(Leaving, TheBoxIsAsStoredAndIsStoredAtOnceWhateverTheAnswer) {
  Run([&] {
    At(kAreYouSureForm, [&] {
      EXPECT_TRUE(Widget("AskCheck").checked) << "nothing was stored";
      EXPECT_EQ(User().Focused(), "btnYes");
      EXPECT_EQ(User().TabOrder(kAreYouSureForm),
                (std::vector<std::string>{"AskCheck", "btnYes", "btnNo"}));
      for (const std::uint32_t stored : {0U, 1U, 0U}) {
        User().Press("AskCheck");
        EXPECT_EQ(Stored("AskOnExit"), stored);
      }
      User().Press("btnNo");
    });
    Choose("Exit");
    EXPECT_FALSE(App().Terminated());
    Choose("Exit");  // nobody is there to answer a question
    EXPECT_TRUE(App().Terminated());
  });
}

TEST_F(Leaving, ASecondRequestRaisesWhatIsAskedAndAnOpenMenuGoesFirst) {
  Ask(true, true);
  Run([&] {
    const auto again = [&](std::string_view form) {
      const int raised = Widget(form).raised;
      CloseFromOutside();
      ChooseInTray("Exit");
      EXPECT_EQ(Widget(form).raised, raised + 2) << form;
      EXPECT_FALSE(App().Terminated());
    };
    At(kSecurityForm, [&] {
      again(kSecurityForm);
      Password();
    });
    At(kAreYouSureForm, [&] {
      again(kAreYouSureForm);
      User().Press("btnYes");
    });
    machine.menus.user = [&](const auto&, auto&) {
      machine.menus.user = nullptr;
      CloseFromOutside();
      EXPECT_FALSE(Open(kSecurityForm)) << "under the menu it would not get the mouse";
      EXPECT_TRUE(machine.menus.cancelled);
      return 1;
    };
    User().RightClick(kMeter);
    EXPECT_TRUE(App().Terminated());
  });
}

TEST_F(Leaving, UnderAnAlertYesEndsItAndLetsItsScanFinishAndNoLeavesItOpen) {
  Alert(1);
  Run([&] {
    Scan({});
    At(kAlert, [&] {
      At(kAreYouSureForm, Press("btnNo"));
      CloseFromOutside();
      EXPECT_TRUE(Widget(kAlert).enabled && !App().Terminated());
      At(kAreYouSureForm, Press("btnYes"));
      CloseFromOutside();
      EXPECT_TRUE(App().Terminated());
      EXPECT_TRUE(Open(kMeter)) << "the scan is not over yet";
    });
    Scan({2048, 0});
    EXPECT_FALSE(Open(kAlert));
    EXPECT_EQ(Window().Traffic().RunTotalDL, 2048);
    EXPECT_NE(Title(), "Notes");
  });
  EXPECT_EQ(machine.timers.Running(), 0);
  EXPECT_EQ(Title() + ErrorLog(), "Notes");
}

TEST_F(Leaving, TheShutdownReactionAndTheEndOfTheSessionAskNothing) {
  Ask(true, true);
  Alert(2);
  Run([&] {
    Scan({});
    Scan({2048, 0});
    EXPECT_TRUE(App().Terminated());
  });
  EXPECT_EQ(Title(), "Notes");
  Run([&] {
    Scan({});
    At(kSecurityForm, [&] {
      User().Tell(&platform::TopWindowEvents::OnEndSession);
      EXPECT_EQ(Title(), "Notes") << "the process may go now";
      Scan({});
      EXPECT_EQ(Title(), "Notes") << "no scan puts it back";
    });
    CloseFromOutside();
    EXPECT_TRUE(App().Terminated());
  });
}

}  // namespace
