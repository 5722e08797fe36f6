#include "toolkit/forms/modal_stack.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/memory/machine.h"
#include "toolkit/application.h"
#include "toolkit/forms/form.h"
#include "toolkit/timer.h"

namespace toolkit {
namespace {

platform::TopWindowParams Params(const char* name) {
  platform::TopWindowParams params;
  params.name = name;
  return params;
}

class Modals : public testing::Test {
 protected:
  // What the user does next, while whatever loop is running then runs.
  void Then(std::function<void()> step) { machine.message_loop.Then(std::move(step)); }

  platform::memory::Machine machine;
  Application app{machine.Platform()};
  Form meter{app, Params("meter")};
};

TEST_F(Modals, AreShownAboveADisabledOwnerThatIsEnabledAgain) {
  meter.Show();
  Form alert(app, Params("alert"));
  Then([&] {
    EXPECT_TRUE(machine.windowing.Find("alert").visible);
    EXPECT_FALSE(machine.windowing.Find("meter").enabled);
    alert.EndModal(ModalResult::kOk);
  });
  EXPECT_EQ(app.Modals().Show(alert), ModalResult::kOk);
  EXPECT_FALSE(machine.windowing.Find("alert").visible);
  EXPECT_TRUE(machine.windowing.Find("meter").enabled);
  EXPECT_TRUE(app.Modals().Empty());
}

TEST_F(Modals, OfOneKindASecondRequestRaisesTheFirstAndIsRefused) {
  Form first(app, Params("prompt"));
  Form second(app, Params("prompt"));
  Then([&] {
    EXPECT_EQ(app.Modals().Show(second), ModalResult::kCancel);
    EXPECT_EQ(machine.windowing.Find("prompt").raised, 1);
    EXPECT_FALSE(second.Showing());
    first.EndModal(ModalResult::kOk);
  });
  EXPECT_EQ(app.Modals().Show(first), ModalResult::kOk);
}

TEST_F(Modals, NestedOnesEnableOnlyWhatTheyDisabled) {
  Form outer(app, Params("outer"));
  Form inner(app, Params("inner"));
  Then([&] {
    Then([&] {
      EXPECT_FALSE(machine.windowing.Find("outer").enabled);
      inner.EndModal(ModalResult::kYes);
    });
    EXPECT_EQ(app.Modals().Show(inner), ModalResult::kYes);
    EXPECT_TRUE(machine.windowing.Find("outer").enabled);
    EXPECT_FALSE(machine.windowing.Find("meter").enabled);
    outer.EndModal(ModalResult::kNo);
  });
  EXPECT_EQ(app.Modals().Show(outer), ModalResult::kNo);
  EXPECT_TRUE(machine.windowing.Find("meter").enabled);
}

TEST_F(Modals, EndWithCancelHoweverTheyGo) {
  struct Row {
    const char* why;
    std::function<void(std::unique_ptr<Form>&)> go;
  };
  const std::vector<Row> rows = {
      {"the close box", [&](auto& form) { machine.windowing.ClickCloseBox(form->Name()); }},
      {"the form is destroyed", [](auto& form) { form.reset(); }},
      {"all are cancelled", [&](auto&) { app.Modals().CancelAll(); }},
      {"nothing will ever happen any more", [](auto&) {}},
      {"the program ends", [&](auto&) { app.Terminate(); }},  // last: nothing opens after it
      {"the program has ended", [](auto&) { FAIL() << "no loop may run any more"; }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    auto form = std::make_unique<Form>(app, Params("dialog"));
    Then([&] { row.go(form); });
    EXPECT_EQ(app.Modals().Show(*form), ModalResult::kCancel);
    EXPECT_TRUE(app.Modals().Empty());
    EXPECT_TRUE(machine.windowing.Find("meter").enabled);
  }
}

TEST_F(Modals, UnwindFromTheTopWhenOneBelowIsClosedAndWhenTheProgramEnds) {
  Form outer(app, Params("outer"));
  Form inner(app, Params("inner"));
  for (const std::function<void()>& end : {std::function<void()>([&] { outer.Close(); }),
                                           std::function<void()>([&] { app.Terminate(); })}) {
    std::vector<std::string> ended;
    Then([&] {
      Then(end);
      EXPECT_EQ(app.Modals().Show(inner), ModalResult::kCancel);
      ended.emplace_back("inner");
    });
    EXPECT_EQ(app.Modals().Show(outer), ModalResult::kCancel);
    ended.emplace_back("outer");
    EXPECT_EQ(ended, (std::vector<std::string>{"inner", "outer"}));
    EXPECT_TRUE(meter.Enabled());
  }
  EXPECT_TRUE(machine.message_loop.HasQuit());
}

class SystemDialogs : public Modals {
 protected:
  // What Modals says of the answer, and the file that was chosen.
  std::optional<std::string> Ask() {
    std::optional<std::string> path;
    ran = app.Modals().RunSystemDialog(
        settings, [&] { path = machine.system_dialogs.OpenFile({}, settings.Window()); });
    return path;
  }
  bool Listens(const char* form) { return machine.windowing.Find(form).enabled; }

  Form settings{app, Params("settings")};
  bool ran = false;
};

TEST_F(SystemDialogs, DisableEveryFormAndAreOpenOneAtATime) {
  Then([&] {
    EXPECT_FALSE(Listens("meter") || Listens("settings"));
    EXPECT_EQ(Ask(), std::nullopt);
    EXPECT_FALSE(ran);
    machine.system_dialogs.Choose("C:\\a.wav");
  });
  EXPECT_EQ(Ask(), "C:\\a.wav");
  EXPECT_TRUE(ran);
  EXPECT_TRUE(Listens("meter") && Listens("settings"));
  EXPECT_EQ(machine.system_dialogs.file_requests.size(), 1U);
}

TEST_F(SystemDialogs, WaitUntilAnAlertThatComesMeanwhileIsAnswered) {
  Form alert(app, Params("alert"));
  Form prompt(app, Params("prompt"));
  Then([&] {
    Then([&] {
      EXPECT_FALSE(machine.system_dialogs.Enabled());
      Then([&] { prompt.EndModal(ModalResult::kOk); });
      EXPECT_EQ(app.Modals().Show(prompt), ModalResult::kOk);
      EXPECT_FALSE(machine.system_dialogs.Enabled());
      alert.EndModal(ModalResult::kOk);
    });
    EXPECT_EQ(app.Modals().Show(alert), ModalResult::kOk);
    EXPECT_TRUE(machine.system_dialogs.Enabled());
    EXPECT_FALSE(Listens("settings")) << "that of the dialog stays disabled with it";
    EXPECT_FALSE(Listens("meter"));
    machine.system_dialogs.Choose("C:\\a.wav");
  });
  EXPECT_EQ(Ask(), "C:\\a.wav");
  EXPECT_TRUE(Listens("meter") && Listens("settings"));
}

TEST_F(SystemDialogs, EndWithTheProgramAndNeverBeginAfterIt) {
  Form alert(app, Params("alert"));
  Then([&] {
    Then([&] { app.Terminate(); });
    EXPECT_EQ(app.Modals().Show(alert), ModalResult::kCancel);
  });
  EXPECT_EQ(Ask(), std::nullopt);
  EXPECT_TRUE(ran);
  EXPECT_EQ(Ask(), std::nullopt);
  EXPECT_FALSE(ran);
}

TEST_F(Modals, KeepTimersGoingAndEndThoseOfTheirForm) {
  struct Ticking : Form {
    explicit Ticking(Application& app) : Form(app, Params("ticking")) { timer.SetEnabled(true); }
    int ticks = 0;
    Timer timer{App(), 500, [this] { ++ticks; }};
  };
  int scans = 0;
  Timer scan(app, 1000, [&] { ++scans; });
  scan.SetEnabled(true);
  {
    Ticking form(app);
    Then([&] {
      machine.timers.Advance(3000);
      form.EndModal(ModalResult::kOk);
    });
    EXPECT_EQ(app.Modals().Show(form), ModalResult::kOk);
    EXPECT_EQ(form.ticks, 6);
  }
  EXPECT_EQ(scans, 3);
  EXPECT_EQ(machine.timers.Running(), 1);
}

TEST_F(Modals, AnExceptionOfAHandlerEndsTheHandlerAlone) {
  std::vector<std::string> logged;
  app.SetExceptionHandler([&](std::string_view message) { logged.emplace_back(message); });
  meter.OnDblClick = [] { throw std::runtime_error("broken"); };
  meter.Show();
  Form dialog(app, Params("dialog"));
  Then([&] {
    app.Guard([] { throw std::runtime_error("inside"); });
    dialog.EndModal(ModalResult::kOk);
  });
  machine.windowing.DoubleClick("meter");
  EXPECT_EQ(app.Modals().Show(dialog), ModalResult::kOk);
  EXPECT_EQ(logged, (std::vector<std::string>{"broken", "inside"}));
}

}  // namespace
}  // namespace toolkit
