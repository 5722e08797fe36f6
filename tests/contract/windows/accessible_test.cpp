// What a screen reader is told of a widget.
#include <gtest/gtest.h>

#include "platform/windows/machine.h"
#include "platform/windows/widgets/widget_window.h"
#include "tests/desktop/driver/screen_reader.h"

// Behind the system's own header, which it needs.
#include <oleacc.h>

namespace contract {
namespace {

using platform::Spoken;
using platform::SpokenRole;

struct Speaker : platform::TopWindowEvents {
  explicit Speaker(Spoken said = {}) : spoken(std::move(said)) {}
  [[nodiscard]] Spoken Describe() const override { return spoken; }
  Spoken spoken;
};

TEST(Accessible, ReadersHearWhatAWidgetSaysAndElseWhatTheSystemFinds) {
  platform::windows::Machine machine;
  platform::Windowing& windowing = machine.platform().windowing;
  Speaker silent;
  Speaker chart({"Traffic", "12 kB", "Of today", SpokenRole::kChart});
  Speaker number({.name = "Number"});
  const auto window = windowing.CreateTopWindow(
      {"T_frmSpeaking", "Speaking", platform::Frame::kDialog, false}, nullptr, silent);
  const auto painted = windowing.CreateSurface(*window, "painted", chart);
  const auto edit = windowing.CreateEdit(*window, "edit", {}, number);
  const auto button =
      windowing.CreateButton(*window, "button", platform::ButtonKind::kPush, silent);
  painted->SetText("Shown");
  edit->SetText("5");
  button->SetText("&Close");
  const desktop::ScreenReader reader;
  struct Row {
    platform::Widget& widget;
    const char* name;
    const char* value;
    const char* description;
    LONG role;
  };
  for (const Row& row :
       {Row{*painted, "Traffic", "12 kB", "Of today", ROLE_SYSTEM_CHART},
        Row{*edit, "Number", "5", "", ROLE_SYSTEM_TEXT}, Row{*button, "Close", "", "", 0}}) {
    SCOPED_TRACE(row.name);
    const desktop::Heard heard = reader.Hear(platform::windows::WidgetWindow::Of(row.widget));
    EXPECT_EQ(heard.name, row.name);
    EXPECT_EQ(heard.value, row.value);
    EXPECT_EQ(heard.description, row.description);
    if (row.role != 0) {
      EXPECT_EQ(heard.role, row.role);
    }
  }
}

// A reader may hold an object longer than the program its widget.
TEST(Accessible, AnObjectOutlivesItsWidget) {
  platform::windows::Machine machine;
  platform::Windowing& windowing = machine.platform().windowing;
  Speaker silent;
  Speaker said({.name = "Traffic"});
  const auto window = windowing.CreateTopWindow(
      {"T_frmSpeaking", "Speaking", platform::Frame::kDialog, false}, nullptr, silent);
  auto painted = windowing.CreateSurface(*window, "painted", said);
  const desktop::ScreenReader reader;
  const desktop::ScreenReader::Object object =
      reader.Reach(platform::windows::WidgetWindow::Of(*painted));
  EXPECT_EQ(reader.Hear(*object).name, "Traffic");
  painted.reset();
  EXPECT_EQ(reader.Hear(*object).name, "");
}

}  // namespace
}  // namespace contract
