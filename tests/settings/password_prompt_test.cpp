#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <utility>

#include "settings/unit_SecurityForm.h"
#include "tests/world.h"

namespace settings {
namespace {

class PasswordPrompt : public testing::Test, protected test::World {
 protected:
  // Asks; `user` is what happens while the prompt is open.
  bool Ask(std::function<void()> user) {
    Then(std::move(user));
    return AskForPassword(app, store, language);
  }
  void Then(std::function<void()> step) { machine.message_loop.Then(std::move(step)); }
  void Type(const std::string& text) { machine.windowing.Type("PassEdit", text); }
};

TEST_F(PasswordPrompt, OpensWithTheLastLetterOfTheRightPassword) {
  using Row = std::tuple<const char*, std::string, std::string, bool>;
  std::string long_one;
  for (int letter = 0; letter < 200; ++letter) long_one += static_cast<char>('!' + letter % 90);
  for (const auto& [why, password, typed, opens] : {
           Row{"as typed", "Secret 1", "Secret 1", true},
           Row{"small letters are others", "Secret", "secret", false},
           Row{"a beginning is not enough", "Secret", "Secre", false},
           Row{"nor is it what ends with it", "Secret", "xSecret", false},
           Row{"another script", "пароль密码🔑", "пароль密码🔑", true},
           Row{"two hundred characters", long_one, long_one, true},
           Row{"no password: typing does not find it", "", "Quillmoth", false},
       }) {
    SCOPED_TRACE(why);
    store.Write(setting::zdP, password);
    const auto refused = [&] {
      machine.windowing.PressEnter(kSecurityForm);
      machine.windowing.Press("CancelButton");
    };
    EXPECT_EQ(Ask([&, text = typed, stays = !opens] {
                Type(text);
                if (stays) Then(refused);
              }),
              opens);
    EXPECT_EQ(machine.message_loop.starved, 0);
  }
}

TEST_F(PasswordPrompt, WithoutAStoredPasswordOpensWhenTheEditBecomesEmptyAgain) {
  EXPECT_TRUE(Ask([&] {
    EXPECT_EQ(machine.windowing.Focused(), "PassEdit");
    EXPECT_EQ(Widget("PassEdit").edit.kind, platform::EditKind::kPassword);
    Then([&] {
      Type("x");
      Widget("PassEdit").text.clear();
      Widget("PassEdit").events->OnChanged();
    });
  }));
}

}  // namespace
}  // namespace settings
