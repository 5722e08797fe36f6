// The meter window: a small window without a caption bar that shows the traffic as a graph, as a
// line of numbers, or both. It owns and wires all other parts of the program.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "alerts/bandwidth_alert.h"
#include "alerts/notifications.h"
#include "alerts/reactions.h"
#include "alerts/system_manager.h"
#include "alerts/ticker.h"
#include "display/adapter_menus.h"
#include "display/exit.h"
#include "display/graph/kxintermeter.h"
#include "display/hot_keys.h"
#include "display/line_label.h"
#include "display/main_menu.h"
#include "display/numeric_line.h"
#include "display/option_table.h"
#include "display/statistics_windows.h"
#include "display/titles/posting.h"
#include "display/transparency.h"
#include "display/tray/tray_icon.h"
#include "engine/error_log.h"
#include "engine/interface_sampler.h"
#include "engine/scan_cycle.h"
#include "engine/statistics.h"
#include "engine/traffic_state.h"
#include "language/language.h"
#include "quantity/quantity.h"
#include "settings/store.h"
#include "toolkit/controls/panel.h"
#include "toolkit/forms/docking_magnet.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/placement_saver.h"

namespace display {

class T_frmBrisanto final : public toolkit::Form, private engine::ScanSteps {
 public:
  // Makes the window, initialises it, shows it without taking the focus and starts the scans. `app`
  // outlives the window.
  explicit T_frmBrisanto(toolkit::Application& app);
  ~T_frmBrisanto() override;

  [[nodiscard]] engine::TrafficState& Traffic() { return traffic_; }
  [[nodiscard]] RunningMeter Parts();

  // Sets the function that opens the preferences, at the page of this name or, with an empty one,
  // where the user was. It owns them; until it is set, the preferences cannot be opened.
  void SetPreferences(std::function<void(std::string_view page)> open);

  // Applies the stored display settings to all parts. It runs at the start, when the adapters
  // changed, and after a reset of the settings.
  void ApplyDisplaySettings(ScaleTaken scale = ScaleTaken::kFromStore);

  // Shows the numeric line as it is now, in the window and in the hint of the icon.
  void LineChanged();

  // Shows the editor of the window titles and returns when it is closed.
  void EditTitles();

  void Localise() override;

 private:
  // Initialises the window. The scan runs it again when the number of adapters changed; then it
  // keeps run totals, counts, sums, visibility, focus, place and the scan's phase.
  void FormCreate();
  void DesignControls();
  void ConnectHandlers();
  void InitAdapters();
  void LocaliseControls();

  // Handlers.
  void _tlkInterMeterScan();
  void _tlkInterMeterDisplay(platform::Canvas& canvas);
  void _tlkInterMeterMouseMove(const platform::MouseEvent& event);
  void _tlkDLULMeterMouseMove(const platform::MouseEvent& event);
  void mnuGraphModeClick();
  void mnuTextModeClick();
  void mnuTextandGraphClick();
  void mnuAlwaysTopOnClick();
  void mnuTransparent2kClick();
  void mnuTransparentClick();
  void Settings1Click() { OpenPreferences(""); }
  // At a page, or with an empty name at the one that was open last.
  void OpenPreferences(std::string_view page);
  void HelpContents1Click();
  void AboutBrisantoXP1Click();
  void GlobalAtomKeyGlobalKeys0KeyDown();
  void GlobalAtomKeyGlobalKeys1KeyDown();
  void GlobalAtomKeyGlobalKeys2KeyDown();
  void CMMouseEnter();
  void CMMouseLeave();
  void _TrayIconClick();
  void Clear1Click();
  void Close1Click();
  void FormClose() override;
  void FormDestroy();
  void FormResize() override;
  void FormShow() override;
  void FormDpiChanged() override;
  void FormDisplayChange() override;
  void FormResumed() override;
  void FormEndSession() override;
  void FormSettingChange() override;
  void RestrictSize();

  // Parts of ApplyDisplaySettings.
  void ApplyAlwaysOnTop();
  void ApplyWindowMode();
  void StayOnTop();
  void ShowLine();

  // engine::ScanSteps
  void Reinitialise() override;
  void FeedGraph(std::int32_t TestRead, std::int32_t TestWrite) override;
  void ShowIcon(const engine::ScanAmounts& scan) override;
  void ShowKeyboardLights(const engine::ScanAmounts& scan) override;
  void CheckNotifications(const engine::ScanAmounts& scan) override;
  void ShowNumericLine(const engine::ScanAmounts& scan) override;
  void Tick(const engine::ScanAmounts& scan) override;
  void CheckBandwidthAlert() override;

  std::vector<std::string> CommonMemo;
  engine::ErrorLog error_log_{App().Platform().files, App().Platform().locale, CommonMemo};
  settings::Store RegME{App().Platform().registry, App().Platform().files};
  language::Language _ReadLangauge{RegME, App().Platform().files, App().Platform().locale};
  quantity::Quantity quantity_{RegME, App().Platform().locale};

  engine::TrafficState traffic_;
  engine::Statistics statistics_{RegME};
  engine::InterfaceSampler sampler_{App().Platform().interface_table, App().Platform().locale,
                                    traffic_};
  engine::ScanCycle scan_cycle_{App().Platform().clock, sampler_, statistics_, traffic_, *this};

  MainMenu _MainMenu{App()};
  AdapterMenus adapter_menus_{RegME, *_MainMenu.conenctionMonitor1, *_MainMenu.ConnectionSources1};
  TKxInterMeter _tlkInterMeter{*this, "_tlkInterMeter"};
  toolkit::Panel pnlContain{*this, "pnlContain"};
  LineLabel _tlkDLULMeter{pnlContain, "_tlkDLULMeter"};
  toolkit::DockingMagnet _FormMagnet{*this};
  toolkit::PlacementSaver _tlkFormSaver;
  Transparency transparency_{*this, RegME, _MainMenu, _tlkInterMeter, pnlContain};
  TitlePosting title_posting_{App(), RegME};
  NumericLine numeric_line_{RegME, quantity_, _ReadLangauge};
  TrayIcon _TrayIcon{App(), RegME};

  toolkit::Action ResetVars{"ResetVars"};  // nothing is bound to it
  alerts::SystemManager _WindowsManager{App()};
  alerts::Reactions reactions_{App().Platform().sound, _TrayIcon, _WindowsManager.shutdown};
  alerts::Notifications notifications_{App(), RegME, _ReadLangauge, reactions_};
  alerts::Ticker ticker_{RegME, reactions_};
  alerts::BandwidthAlert bandwidth_alert_{App(),         RegME,      quantity_,
                                          _ReadLangauge, reactions_, _MainMenu.popup};

  StatisticsWindows statistics_windows_;
  OptionTable options_;

  HotKeyHolder GlobalAtomKey;
  Exit exit_{App(), RegME, _ReadLangauge};

  // Last: destroyed before the parts that it uses.
  std::function<void(std::string_view page)> open_preferences_;
};

}  // namespace display
