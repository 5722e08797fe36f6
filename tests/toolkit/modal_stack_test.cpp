// Modal windows, and every way in which one ends.
#include "toolkit/forms/modal_stack.h"

#include <memory>
#include <optional>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"

namespace toolkit {
namespace {

class Modals : public FormTest {
 protected:
  bool Listens(const char* name) { return Widget(name).enabled; }
  // What Modals says of the answer, and the file that was chosen.
  std::optional<std::string> AskForFile() {
    std::optional<std::string> path;
    ran = app.Modals().RunSystemDialog(
        form, [&] { path = machine.system_dialogs.OpenFile({}, form.Window()); });
    return path;
  }

  Form outer{app, Params("outer")};
  Form inner{app, Params("inner")};
  bool ran = false;
};

TEST_F(Modals, OneIsShownAboveADisabledOwnerAndEndsWhicheverWayItGoes) {
  struct Dialog : Form {
    using Form::Form;
    Button yes{*this, "yes"};
  };
  struct Row {
    const char* why;
    std::function<void(std::unique_ptr<Dialog>&)> go;
    ModalResult result = ModalResult::kCancel;
  };
  const std::vector<Row> rows = {
      {"its button", [&](auto&) { User().Press("yes"); }, ModalResult::kYes},
      {"the code", [&](auto& dialog) { dialog->EndModal(ModalResult::kOk); }, ModalResult::kOk},
      {"the close box", [&](auto&) { User().ClickCloseBox("dialog"); }},
      {"Esc", [&](auto&) { User().PressEsc("dialog"); }},
      {"the form is destroyed", [](auto& dialog) { dialog.reset(); }},
      {"all are cancelled", [&](auto&) { app.Modals().CancelAll(); }},
      {"nothing will ever happen any more", [](auto&) {}},
      {"the program ends", [&](auto&) { app.Terminate(); }},  // last: nothing opens after it
      {"the program has ended", [](auto&) { FAIL() << "no loop may run any more"; }},
  };
  form.Show();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    auto dialog = std::make_unique<Dialog>(app, Params("dialog"));
    dialog->yes.ModalResult = ModalResult::kYes;
    Then([&] {
      EXPECT_TRUE(app.Terminated() || (Widget("dialog").visible && !Listens("form")));
      row.go(dialog);
    });
    EXPECT_EQ(app.Modals().Show(*dialog), row.result);
    EXPECT_TRUE(!User().Exists("dialog") || !Widget("dialog").visible);
    EXPECT_TRUE(app.Modals().Empty() && Listens("form"));
  }
  EXPECT_TRUE(machine.message_loop.HasQuit());
  User().PressEsc("form");
  EXPECT_FALSE(form.Showing()) << "one that is not modal";
}

TEST_F(Modals, NestedOnesEnableOnlyWhatTheyDisabledAndASecondRequestRaisesTheFirst) {
  const auto& first = Widget("outer");
  Form second(app, Params("outer"));
  Then([&] {
    Then([&] {
      EXPECT_FALSE(first.enabled);
      EXPECT_EQ(app.Modals().Show(second), ModalResult::kCancel) << "one of its kind is open";
      EXPECT_EQ(Widget("inner").raised, 1) << "what stands above it with it";
      inner.EndModal(ModalResult::kYes);
    });
    EXPECT_EQ(app.Modals().Show(inner), ModalResult::kYes);
    EXPECT_TRUE(first.enabled && !Listens("form"));
    outer.EndModal(ModalResult::kNo);
  });
  EXPECT_EQ(app.Modals().Show(outer), ModalResult::kNo);
  EXPECT_TRUE(Listens("form"));
}

TEST_F(Modals, UnwindFromTheTopWhenOneBelowIsClosedAndWhenTheProgramEnds) {
  for (const bool program : {false, true}) {
    Names ended;
    Then([&] {
      Then([&] { program ? app.Terminate() : outer.Close(); });
      EXPECT_EQ(app.Modals().Show(inner), ModalResult::kCancel);
      ended.emplace_back("inner");
    });
    EXPECT_EQ(app.Modals().Show(outer), ModalResult::kCancel);
    ended.emplace_back("outer");
    EXPECT_EQ(ended, (Names{"inner", "outer"}));
    EXPECT_TRUE(Listens("form"));
  }
}

TEST_F(Modals, ADialogOfTheSystemDisablesEveryFormAndWaitsWhileAnotherIsOpen) {
  Then([&] {
    EXPECT_FALSE(Listens("form") || Listens("outer"));
    EXPECT_EQ(AskForFile(), std::nullopt);
    EXPECT_FALSE(ran) << "one at a time";
    Then([&] {
      Then([&] { inner.EndModal(ModalResult::kOk); });
      EXPECT_EQ(app.Modals().Show(inner), ModalResult::kOk);
      EXPECT_FALSE(machine.system_dialogs.Enabled());
      outer.EndModal(ModalResult::kOk);
    });
    EXPECT_EQ(app.Modals().Show(outer), ModalResult::kOk);
    EXPECT_TRUE(machine.system_dialogs.Enabled());
    EXPECT_FALSE(Listens("form")) << "that of the dialog stays disabled with it";
    machine.system_dialogs.Choose("C:\\a.wav");
  });
  EXPECT_EQ(AskForFile(), "C:\\a.wav");
  EXPECT_TRUE(ran && Listens("form") && Listens("outer"));

  Then([&] {
    Then([&] { app.Terminate(); });
    EXPECT_EQ(app.Modals().Show(outer), ModalResult::kCancel);
  });
  EXPECT_EQ(AskForFile(), std::nullopt);
  EXPECT_TRUE(ran) << "ended with the program";
  EXPECT_EQ(AskForFile(), std::nullopt);
  EXPECT_FALSE(ran) << "none begins after its end";
}

}  // namespace
}  // namespace toolkit
