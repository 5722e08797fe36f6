#include "display/unit_BrisantoMain.h"

#include "alerts/keyboard_leds.h"
#include "display/about.h"
#include "display/graph/grid_lines.h"
#include "display/titles/unit_AddTitlesForm.h"
#include "engine/local_ip.h"
#include "program/product.h"
#include "settings/placement_keys.h"
#include "settings/unit_SecurityForm.h"
#include "toolkit/application.h"
#include "toolkit/copy_text.h"
#include "toolkit/design_pixels.h"
#include "toolkit/forms/placement.h"

namespace display {
namespace {

namespace setting = settings::setting;

// Places and sizes in design pixels.
constexpr platform::Rect kDesignBounds{761, 128, 274, 135};
constexpr platform::Size kSmallest{150, 25};
constexpr platform::Size kLargest{350, 200};
constexpr int kPanelHeight = 17;

// Display modes as stored in "WindowMode".
constexpr std::int64_t kGraphMode = 0;
constexpr std::int64_t kTextMode = 1;
constexpr std::int64_t kTextAndGraphMode = 2;

// The meter is a sizeable tool window with a thin frame and no caption bar.
platform::TopWindowParams CreateParams() {
  platform::TopWindowParams params;
  params.name = "T_frmBrisanto";
  params.caption = program::kProductTitle;
  params.frame = platform::Frame::kSizeableTool;
  params.bare_popup = true;
  return params;
}

int LabelPoints(int window_width) {
  if (window_width < 126) return 6;
  return window_width <= 175 ? 7 : 8;
}

}  // namespace

T_frmBrisanto::T_frmBrisanto(toolkit::Application& app)
    : Form(app, CreateParams()),
      _tlkFormSaver(*this, settings::placement_key::kMain),
      statistics_windows_({app, RegME, quantity_, _ReadLangauge, traffic_},
                          [this] { OpenPreferences("BandwidthAlert"); }),
      options_({*this, RegME, _tlkInterMeter, _tlkDLULMeter, numeric_line_, _TrayIcon,
                transparency_, _FormMagnet, app.Hints(), traffic_.SpeedCap, notifications_}),
      GlobalAtomKey(
          app,
          {{toolkit::kCtrl | toolkit::kAlt | 'F', [this] { GlobalAtomKeyGlobalKeys0KeyDown(); }},
           {toolkit::kCtrl | toolkit::kAlt | 'D', [this] { GlobalAtomKeyGlobalKeys1KeyDown(); }},
           {toolkit::kCtrl | toolkit::kShift | 'Q',
            [this] { GlobalAtomKeyGlobalKeys2KeyDown(); }}}) {
  DesignControls();
  ConnectHandlers();
  LocaliseControls();
  // A step that fails is logged. The rest of the program still starts, and the first scan runs the
  // whole initialisation again.
  bool created = false;
  app.Guard([this, &created] {
    FormCreate();
    created = true;
  });
  if (!created) traffic_.AdapterHigh = engine::kNotInitialised;
  Show(platform::Activation::kLeaveFocus);
  _tlkInterMeter.Activate(true);
}

T_frmBrisanto::~T_frmBrisanto() {
  App().Guard([this] { FormDestroy(); });
  App().SetExceptionHandler(nullptr);
}

void T_frmBrisanto::DesignControls() {
  RestrictSize();
  const int dpi = Dpi();
  const platform::Rect bounds{kDesignBounds.left, kDesignBounds.top,
                              toolkit::ScaleTo(dpi, kDesignBounds.width),
                              toolkit::ScaleTo(dpi, kDesignBounds.height)};
  SetWindowBounds(toolkit::BroughtIntoView(bounds, App().Platform().screen));
  _tlkFormSaver.Restore();

  _tlkInterMeter.SetAlign(toolkit::Align::kClient);
  pnlContain.SetBevels(toolkit::BevelCut::kNone, toolkit::BevelCut::kLowered);
  pnlContain.SetBounds({0, 0, 0, kPanelHeight});
  pnlContain.SetAlign(toolkit::Align::kBottom);
  _tlkDLULMeter.SetColour(platform::colour::kWhite);
  _tlkDLULMeter.SetCaption("[ DL:0,0 kB UL:0,0 kB ]");
  _tlkDLULMeter.SetAlign(toolkit::Align::kClient);
  SetPopupMenu(&_MainMenu.popup);
  _TrayIcon.SetHint(program::kProductTitle);
}

void T_frmBrisanto::ConnectHandlers() {
  _tlkInterMeter.OnChange = [this] { transparency_.ApplyShape(); };
  _tlkInterMeter.OnScan = [this] { _tlkInterMeterScan(); };
  _tlkInterMeter.OnDisplay = [this](platform::Canvas& canvas) { _tlkInterMeterDisplay(canvas); };
  _tlkInterMeter.OnDescribe = [this] { return numeric_line_.Label(); };
  _tlkInterMeter.OnMouseMoved = [this](const auto& event) { _tlkInterMeterMouseMove(event); };
  _tlkDLULMeter.OnMouseMoved = [this](const auto& event) { _tlkDLULMeterMouseMove(event); };
  for (toolkit::Control* control :
       std::initializer_list<toolkit::Control*>{&_tlkInterMeter, &pnlContain, &_tlkDLULMeter}) {
    control->OnDblClick = [this] { _TrayIconClick(); };
  }
  for (toolkit::Control* control : std::initializer_list<toolkit::Control*>{
           this, &_tlkInterMeter, &pnlContain, &_tlkDLULMeter}) {
    control->OnMouseEntered = [this] { CMMouseEnter(); };
    control->OnMouseLeft = [this] { CMMouseLeave(); };
  }

  _TrayIcon.OnClick = [this] { _TrayIconClick(); };
  _TrayIcon.OnMenu = [this](platform::Point screen) { _MainMenu.popup.Popup(screen); };
  _MainMenu.ConnectionInformations1->OnClick = [this] { statistics_windows_.OpenMachine(); };
  adapter_menus_.OpenStatistics = [this](const std::string& description) {
    statistics_windows_.OpenAdapter(description);
  };
  _MainMenu.mnuAlwaysTopOn->OnClick = [this] { mnuAlwaysTopOnClick(); };
  _MainMenu.ShowHide1->OnClick = [this] { _TrayIconClick(); };
  _MainMenu.mnuGraphMode->OnClick = [this] { mnuGraphModeClick(); };
  _MainMenu.mnuTextMode->OnClick = [this] { mnuTextModeClick(); };
  _MainMenu.mnuTextandGraph->OnClick = [this] { mnuTextandGraphClick(); };
  _MainMenu.mnuTransparent2k->OnClick = [this] { mnuTransparent2kClick(); };
  _MainMenu.mnuTransparent->OnClick = [this] { mnuTransparentClick(); };
  _MainMenu.Settings1->OnClick = [this] { Settings1Click(); };
  _MainMenu.HelpContents1->OnClick = [this] { HelpContents1Click(); };
  _MainMenu.AboutBrisantoXP1->OnClick = [this] { AboutBrisantoXP1Click(); };
  _MainMenu.Clear1->OnClick = [this] { Clear1Click(); };
  _MainMenu.Close1->OnClick = [this] { Close1Click(); };
  _MainMenu.Settings1->Enabled = false;  // until SetPreferences
}

void T_frmBrisanto::FormCreate() {
  App().SetExceptionHandler([this](std::string_view message) { error_log_.Append(message); });
  traffic_.AdapterHigh = engine::kNotInitialised;
  transparency_.ApplyStored();
  ApplyDisplaySettings();
  InitAdapters();
  statistics_.InitStatistics(sampler_.Descriptions(), App().Platform().clock.Now());
  engine::CopyLocalIPIfWanted(RegME, App().Platform().sockets, App().Platform().clipboard);
  App().Platform().windowing.HideTaskbarButton();
}

void T_frmBrisanto::InitAdapters() {
  adapter_menus_.Add(sampler_.InitAdapters([this](std::string_view description, const auto& row) {
    return statistics_.RecordAdapter(description, row);
  }));
}

void T_frmBrisanto::LocaliseControls() {
  _MainMenu.Localise(_ReadLangauge);
  _tlkInterMeter.SetCaption(_ReadLangauge.Text(language::text::MainForm::_tlkInterMeter));
}

void T_frmBrisanto::Localise() {
  LocaliseControls();
  numeric_line_.Localise();
  ShowLine();
}

void T_frmBrisanto::SetPreferences(std::function<void(std::string_view page)> open) {
  open_preferences_ = std::move(open);
  _MainMenu.Settings1->Enabled = true;
}

RunningMeter T_frmBrisanto::Parts() {
  return {*this, RegME, _ReadLangauge, options_, numeric_line_, adapter_menus_};
}

void T_frmBrisanto::ApplyDisplaySettings(ScaleTaken scale) {
  options_.ApplyStored(scale);
  numeric_line_.Reset();
  ShowLine();
  ApplyAlwaysOnTop();
  ApplyWindowMode();
  const TitleFile titles = LoadTitleFile(App().Platform().files, App().Platform().locale);
  if (titles.readable) title_posting_.SetLines(titles.lines);
  _TrayIcon.ShowStart();
}

void T_frmBrisanto::ApplyAlwaysOnTop() {
  const bool on_top = RegME.Read(setting::AlwaysTopOn);
  _MainMenu.mnuAlwaysTopOn->SetChecked(on_top);
  SetTopmost(on_top);
}

// A full-screen program may have taken the place above all other windows away.
void T_frmBrisanto::StayOnTop() {
  if (_MainMenu.mnuAlwaysTopOn->Checked() && !Window().Topmost()) SetTopmost(true);
}

void T_frmBrisanto::ApplyWindowMode() {
  const std::int64_t mode = RegME.Read(setting::WindowMode);
  if (mode == kGraphMode) mnuGraphModeClick();
  if (mode == kTextMode) mnuTextModeClick();
  if (mode == kTextAndGraphMode) mnuTextandGraphClick();
  transparency_.ApplyShape();
}

void T_frmBrisanto::_tlkInterMeterScan() {
  StayOnTop();
  transparency_.Check();
  scan_cycle_.Run();
}

void T_frmBrisanto::_tlkInterMeterDisplay(platform::Canvas& canvas) {
  DrawGridLines(canvas, RegME, _tlkInterMeter.FramePixels(), Dpi());
}

void T_frmBrisanto::_tlkInterMeterMouseMove(const platform::MouseEvent& event) {
  if (event.left_down) BeginDrag();
}

void T_frmBrisanto::_tlkDLULMeterMouseMove(const platform::MouseEvent& event) {
  if (event.left_down) BeginDrag();
}

void T_frmBrisanto::mnuGraphModeClick() {
  _MainMenu.mnuGraphMode->SetChecked(true);
  RegME.Write(setting::WindowMode, kGraphMode);
  pnlContain.SetVisible(false);
  _tlkInterMeter.SetVisible(true);
  _MainMenu.mnuTransparent->Enabled = true;
}

void T_frmBrisanto::mnuTextModeClick() {
  _MainMenu.mnuTextMode->SetChecked(true);
  RegME.Write(setting::WindowMode, kTextMode);
  _tlkInterMeter.SetVisible(false);
  pnlContain.SetAlign(toolkit::Align::kClient);
  pnlContain.SetVisible(true);
  _MainMenu.mnuTransparent->Enabled = false;
}

void T_frmBrisanto::mnuTextandGraphClick() {
  _MainMenu.mnuTextandGraph->SetChecked(true);
  RegME.Write(setting::WindowMode, kTextAndGraphMode);
  pnlContain.SetAlign(toolkit::Align::kBottom);
  pnlContain.SetVisible(true);
  _tlkInterMeter.SetVisible(true);
  _MainMenu.mnuTransparent->Enabled = true;
}

void T_frmBrisanto::mnuAlwaysTopOnClick() {
  const bool on_top = !_MainMenu.mnuAlwaysTopOn->Checked();
  _MainMenu.mnuAlwaysTopOn->SetChecked(on_top);
  RegME.Write(setting::AlwaysTopOn, on_top);
  SetTopmost(on_top);
}

void T_frmBrisanto::mnuTransparent2kClick() { transparency_.mnuTransparent2kClick(); }

void T_frmBrisanto::mnuTransparentClick() { transparency_.mnuTransparentClick(); }

void T_frmBrisanto::OpenPreferences(std::string_view page) {
  if (!open_preferences_ || App().Modals().RaiseTop()) return;
  // The password is also asked for while the preferences are open: the user who has just locked
  // them may have left them open.
  const bool asks = settings::LockEngaged(RegME);
  if (asks && !settings::AskForPassword(App(), RegME, _ReadLangauge)) return;
  open_preferences_(page);
}

// A language without a help of its own, as one that the user has made, gets the English one.
void T_frmBrisanto::HelpContents1Click() {
  platform::Shell& shell = App().Platform().shell;
  const std::string own = "Help\\" + RegME.Read(setting::Language) + "\\index.html";
  if (!shell.Open(RegME.ProgramFile(own))) shell.Open(RegME.ProgramFile("Help\\index.html"));
}

void T_frmBrisanto::AboutBrisantoXP1Click() { ShowAbout(App(), _ReadLangauge); }

void T_frmBrisanto::EditTitles() {
  if (App().Modals().RaiseTop()) return;
  T_frmAddTitles editor(App(), title_posting_, _TrayIcon, _ReadLangauge);
  App().Modals().Show(editor);
}

void T_frmBrisanto::GlobalAtomKeyGlobalKeys0KeyDown() { mnuTransparentClick(); }

void T_frmBrisanto::GlobalAtomKeyGlobalKeys1KeyDown() { mnuTransparent2kClick(); }

void T_frmBrisanto::GlobalAtomKeyGlobalKeys2KeyDown() {
  toolkit::CopyText(App().Platform().clipboard, engine::GetLocalIP(App().Platform().sockets));
}

void T_frmBrisanto::CMMouseEnter() { transparency_.PointerChanged(); }

void T_frmBrisanto::CMMouseLeave() { transparency_.PointerChanged(); }

void T_frmBrisanto::_TrayIconClick() {
  if (Showing()) {
    Hide();
  } else {
    Show(platform::Activation::kLeaveFocus);
  }
  App().ShowMainForm = Showing();
}

void T_frmBrisanto::Clear1Click() {
  _tlkInterMeter.Clear();
  numeric_line_.ClearSums();
  _TrayIcon.Clear();
}

void T_frmBrisanto::Close1Click() { Close(); }

void T_frmBrisanto::FormClose() {
  _MainMenu.popup.CloseThen([this] { exit_.Request(); });
}

void T_frmBrisanto::FormDestroy() { title_posting_.RestoreTitles(); }

// At the end of the session nothing is asked. No scan may follow, since it would post titles again.
void T_frmBrisanto::FormEndSession() {
  FormDestroy();
  _tlkInterMeter.Activate(false);
  App().Terminate();
}

void T_frmBrisanto::FormResize() {
  platform::FontStyle font = _tlkDLULMeter.Font();
  font.height = toolkit::PointsToDesignPixels(LabelPoints(Unscale(WindowBounds().width)));
  _tlkDLULMeter.SetFont(font);
  _tlkDLULMeter.Refresh();
}

void T_frmBrisanto::FormShow() { _tlkDLULMeter.Refresh(); }

void T_frmBrisanto::FormDpiChanged() { RestrictSize(); }

void T_frmBrisanto::FormDisplayChange() { StayOnTop(); }

void T_frmBrisanto::FormResumed() { sampler_.TakePresentCounters(); }

void T_frmBrisanto::FormSettingChange() { _tlkInterMeter.Refresh(); }

void T_frmBrisanto::RestrictSize() {
  Window().SetSizeLimits({Scale(kSmallest.width), Scale(kSmallest.height)},
                         {Scale(kLargest.width), Scale(kLargest.height)});
}

void T_frmBrisanto::ShowLine() { _tlkDLULMeter.SetCaption(numeric_line_.Label()); }

void T_frmBrisanto::LineChanged() {
  ShowLine();
  _TrayIcon.SetHint(numeric_line_.TrayHint());
}

void T_frmBrisanto::Reinitialise() {
  adapter_menus_.Clear();
  FormCreate();
}

void T_frmBrisanto::FeedGraph(std::int32_t TestRead, std::int32_t TestWrite) {
  _tlkInterMeter.SetTestRead(TestRead);
  _tlkInterMeter.SetTestWrite(TestWrite);
}

void T_frmBrisanto::ShowIcon(const engine::ScanAmounts& scan) { _TrayIcon.ShowScan(scan); }

void T_frmBrisanto::ShowKeyboardLights(const engine::ScanAmounts& scan) {
  alerts::UpdateKeyboardLeds(RegME, _WindowsManager.sys_keys, scan);
}

void T_frmBrisanto::CheckNotifications(const engine::ScanAmounts& scan) {
  notifications_.CheckNotifications(scan);
}

void T_frmBrisanto::ShowNumericLine(const engine::ScanAmounts& scan) {
  numeric_line_.Update(scan);
  LineChanged();
  title_posting_.PostTitles(numeric_line_.Joined());
}

void T_frmBrisanto::Tick(const engine::ScanAmounts& scan) { ticker_.Update(scan); }

void T_frmBrisanto::CheckBandwidthAlert() { bandwidth_alert_.Check(); }

}  // namespace display
