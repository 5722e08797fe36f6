// What the two statistics windows share: the tabs Info, Daily, Weekly and Monthly with their rows,
// the address and its copy, the "since" caption, refreshing, closing, the place on the screen.
#pragma once

#include <string_view>

#include "engine/counter_group.h"
#include "engine/traffic_state.h"
#include "language/language.h"
#include "quantity/quantity.h"
#include "settings/store.h"
#include "stats/figures.h"
#include "toolkit/application.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/pages.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/placement_saver.h"
#include "toolkit/refresh_faults.h"
#include "toolkit/timer.h"

namespace stats {

// What the windows work on; all of it outlives them.
struct StatisticsContext {
  toolkit::Application& app;
  settings::Store& store;
  quantity::Quantity& quantity;
  const language::Language& language;
  engine::TrafficState& traffic;
};

class StatisticsForm : public toolkit::Form {
 public:
  void Localise() override;

 protected:
  // What is a window's own.
  struct Kind {
    std::string_view form_name;
    std::string_view placement_key;
    language::TextEntry address_caption;
    std::string_view address;    // before the first refresh
    bool address_below = false;  // the address stands below its caption, which is too long
  };

  // Makes the window hidden; the window then sets its size and calls Arrange. `context` is copied.
  StatisticsForm(const StatisticsContext& context, const Kind& kind, engine::CounterOwner counters);

  // Lays the controls out for the size that the form has, and restores its place.
  void Arrange();

  // Shows the figures of all pages anew; `info` are those of the page Info.
  void ShowFigures(const Figures& info, const quantity::Formatter& format);
  // Writes the start of the run above the figures of the page Info.
  void ShowSince();
  // Lets the run begin now, for both windows.
  void RestartSince();

  void Button1MouseUp(const platform::MouseEvent& event);
  void Button2Click() { Close(); }
  virtual void Button3Click() = 0;
  // Shows all figures anew; it is called twice a second once the timer is on.
  virtual void Timer1Timer() = 0;

  // Returns the size of the inside of a page, in design pixels.
  [[nodiscard]] static platform::Size RoomOf(toolkit::TabSheet& page);

  StatisticsContext context_;
  engine::CounterOwner counters_;
  toolkit::RefreshFaults faults_;

  // The members stand in reading order, which is that of Tab.
  toolkit::PageControl PageControl1{*this, "PageControl1"};
  toolkit::TabSheet InfoTab{PageControl1, "InfoTab"};
  toolkit::GroupBox InfoGroup{InfoTab, "InfoGroup"};
  toolkit::Label IpLabel{InfoGroup, "IpLabel", toolkit::kCaptionText};
  toolkit::Label IpAddress;
  toolkit::Button Button1{InfoGroup, "Button1"};
  FiguresGroup InfoGroupBox{InfoTab, kInfoNames};
  toolkit::Button Button3{InfoGroupBox, "Button3"};
  toolkit::TabSheet DailyTab{PageControl1, "DailyTab"};
  FiguresGroup DailyGroupBox{DailyTab, kDailyNames};
  toolkit::TabSheet WeeklyTab{PageControl1, "WeeklyTab"};
  FiguresGroup WeeklyGroupBox{WeeklyTab, kWeeklyNames};
  toolkit::TabSheet MonthlyTab{PageControl1, "MonthlyTab"};
  FiguresGroup MonthlyGroupBox{MonthlyTab, kMonthlyNames};
  toolkit::Button Button2{*this, "Button2"};
  toolkit::Timer Timer1;
  toolkit::PlacementSaver _tlkFormSaver;

 private:
  void CopyAddress();
  void LocaliseSince(const language::Translation& say);

  language::TextEntry address_caption_;
  bool address_below_;
  bool copied_by_click_ = false;  // since the mouse was last pressed on Button1
  // The start of the run that this window knows.
  platform::DateTime since_date_;
  platform::DateTime since_time_;
  bool since_shown_ = false;  // when false, the words of the design stand there, without a date
};

}  // namespace stats
