#include "platform/system_dialogs.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "tests/contract/desk.h"

namespace contract {
namespace {

using platform::Colour;

class SystemDialogsTest : public testing::Test {
 protected:
  SystemDialogsTest() {
    owner_->SetBounds({50, 50, 300, 200});
    owner_->Show(platform::Activation::kActivate);
  }

  platform::SystemDialogs& Dialogs() { return desk_->Platform().system_dialogs; }
  std::optional<std::string> AskForFile() {
    return Dialogs().OpenFile({"Choose", {{"Programs", "*.exe"}, {"All", "*.*"}}, Folder()},
                              *owner_);
  }
  std::string Folder() { return desk_->Platform().files.ProgramFolder(); }
  std::string Program() { return desk_->Platform().files.ProgramPath(); }
  // What the user does as soon as the dialog is open. Asked again and again rather than waited for:
  // the dialog's own loop shows it.
  void Then(std::function<void()> step, int patience = 500) {
    desk_->Later([this, step = std::move(step), patience] {
      if (!desk_->DialogListens() && patience > 0) {
        Then(step, patience - 1);
        return;
      }
      EXPECT_TRUE(desk_->DialogListens());
      EXPECT_FALSE(owner_->Enabled());
      step();
    });
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
  platform::TopWindowEvents events_;
  std::unique_ptr<platform::TopWindow> owner_ = desk_->Platform().windowing.CreateTopWindow(
      {"T_frmOwner", "Owner", platform::Frame::kDialog, false}, nullptr, events_);
};

TEST_F(SystemDialogsTest, AFileIsChosenOrNoneWhileTheOwnerIsDisabled) {
  Then([this] { desk_->ChooseFile(Program()); });
  EXPECT_EQ(AskForFile(), Program());
  EXPECT_TRUE(owner_->Enabled());
  Then([this] { desk_->CancelDialog(); });
  EXPECT_EQ(AskForFile(), std::nullopt);
}

TEST_F(SystemDialogsTest, AColourIsConfirmedOrNot) {
  constexpr Colour kOdd = 0x123456;
  Then([this] { desk_->ConfirmColour(); });
  EXPECT_EQ(Dialogs().ChooseColour(kOdd, *owner_), kOdd);
  Then([this] { desk_->CancelDialog(); });
  EXPECT_EQ(Dialogs().ChooseColour(kOdd, *owner_), std::nullopt);
}

TEST_F(SystemDialogsTest, TheEndOfTheProgramEndsThemAndEveryLoopAroundThem) {
  bool asked = false;
  desk_->Later([&] {
    Then([this] { desk_->Platform().message_loop.Quit(); });
    EXPECT_EQ(AskForFile(), std::nullopt);
    asked = true;
  });
  EXPECT_FALSE(desk_->Platform().message_loop.RunUntil([] { return false; }));
  EXPECT_TRUE(asked);
}

TEST_F(SystemDialogsTest, ADisabledOneWaitsUntilItIsEnabledAgain) {
  Then([this] {
    Dialogs().SetEnabled(false);
    EXPECT_FALSE(desk_->DialogListens());
    Dialogs().SetEnabled(true);
    EXPECT_TRUE(desk_->DialogListens());
    desk_->ChooseFile(Program());
  });
  EXPECT_EQ(AskForFile(), Program());
}

}  // namespace
}  // namespace contract
