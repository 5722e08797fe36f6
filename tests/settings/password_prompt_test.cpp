#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "settings/unit_SecurityForm.h"
#include "tests/layout_faults.h"
#include "tests/world.h"

namespace settings {
namespace {

class PasswordPrompt : public testing::Test, protected test::World {
 protected:
  // Asks; `user` is what happens while the prompt is open.
  bool Ask(std::function<void()> user) {
    machine.message_loop.Then(std::move(user));
    const bool given = AskForPassword(app, store, language);
    EXPECT_FALSE(Open());
    EXPECT_EQ(machine.message_loop.starved, 0) << "the prompt closed of itself";
    return given;
  }
  [[nodiscard]] bool Open() const { return machine.windowing.Exists(kSecurityForm); }
  // Whether a further step of a test finds the prompt open.
  void StillOpenThenCancel() {
    machine.message_loop.Then([this] {
      EXPECT_TRUE(Open());
      machine.windowing.Press("CancelButton");
    });
  }
};

TEST_F(PasswordPrompt, OpensWithTheLastLetterOfTheRightPassword) {
  struct Row {
    const char* why;
    std::string password, typed;
    bool opens;
  };
  std::string long_one;
  for (int letter = 0; letter < 200; ++letter) long_one += static_cast<char>('!' + letter % 90);
  const Row rows[] = {
      {"as typed", "Secret 1", "Secret 1", true},
      {"small letters are others", "Secret", "secret", false},
      {"a beginning is not enough", "Secret", "Secre", false},
      {"nor is it what ends with it", "Secret", "xSecret", false},
      {"another script", "пароль密码🔑", "пароль密码🔑", true},
      {"two hundred characters", long_one, long_one, true},
      {"no password: typing does not find it", "", "Quillmoth", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    store.Write(setting::zdP, row.password);
    EXPECT_EQ(Ask([&] {
                machine.windowing.Type("PassEdit", row.typed);
                if (!row.opens) StillOpenThenCancel();
              }),
              row.opens);
  }
}

TEST_F(PasswordPrompt, WithoutAStoredPasswordOpensWhenTheEditBecomesEmptyAgain) {
  EXPECT_TRUE(Ask([&] {
    EXPECT_EQ(Widget("PassEdit").text, "");
    machine.message_loop.Then([&] {
      ASSERT_TRUE(Open()) << "nothing was typed yet";
      machine.windowing.Type("PassEdit", "x");
      Widget("PassEdit").text.clear();
      Widget("PassEdit").events->OnChanged();
    });
  }));
}

TEST_F(PasswordPrompt, IsRefusedHoweverElseItCloses) {
  store.Write(setting::zdP, "pw");
  EXPECT_FALSE(Ask([&] { machine.windowing.Press("CancelButton"); }));
  EXPECT_FALSE(Ask([&] {
    machine.windowing.PressEnter(kSecurityForm);
    StillOpenThenCancel();
  }));
  EXPECT_FALSE(Ask([&] { app.Terminate(); }));
}

TEST_F(PasswordPrompt, HasTheKeyboardInItsEdit) {
  EXPECT_FALSE(Ask([&] {
    EXPECT_EQ(machine.windowing.Focused(), "PassEdit");
    EXPECT_EQ(Widget("PassEdit").edit.kind, platform::EditKind::kPassword);
    EXPECT_EQ(Widget(kSecurityForm).text, "Security");
    machine.windowing.Press("CancelButton");
  }));
  T_frmSecurity prompt(app, store, language);
  EXPECT_EQ(test::LayoutFaults(prompt), std::vector<std::string>());
}

}  // namespace
}  // namespace settings
