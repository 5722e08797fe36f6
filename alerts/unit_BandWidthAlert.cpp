#include "alerts/unit_BandWidthAlert.h"

#include <array>

#include "language/texts.h"
#include "toolkit/application.h"
#include "toolkit/menus/image_list.h"

namespace alerts {
namespace {

namespace text = language::text::BandwidthAlert;

// The size of the client area in design pixels.
constexpr int kWidth = 337;
constexpr int kHeight = 110;
constexpr int kHeightWithDetails = 255;
constexpr int kRefreshMs = 500;

constexpr std::array<toolkit::PaletteColour, 2> kPalette = {{{'y', 0x20C8FF}, {'#', 0x202020}}};
constexpr std::array<toolkit::Image, 1> kWarning = {{{
    "................",
    ".......##.......",
    "......#yy#......",
    "......#yy#......",
    ".....#yyyy#.....",
    ".....#y##y#.....",
    "....#yy##yy#....",
    "....#yy##yy#....",
    "...#yyy##yyy#...",
    "...#yyy##yyy#...",
    "..#yyyyyyyyyy#..",
    "..#yyyy##yyyy#..",
    ".#yyyyy##yyyyy#.",
    ".#yyyyyyyyyyyy#.",
    ".##############.",
    "................",
}}};
constexpr toolkit::ImageList kImages(kWarning, kPalette);

}  // namespace

T_frmBandWidthAlert::T_frmBandWidthAlert(toolkit::Application& app, settings::Store& store,
                                         quantity::Quantity& quantity,
                                         const language::Language& language)
    : Form(app, kBandWidthAlertForm, platform::Frame::kTool),
      quantity_(quantity),
      language_(language),
      Image1(*this, "Image1", kImages, toolkit::kImageSize),
      details_(*this, store, language),
      Timer1(app, kRefreshMs, [this] { Timer1Timer(); }) {
  Image1.SetBounds({8, 8, 40, 60});
  // Raised, and with an edge on the sides where the light falls too.
  Image1.SetBevels(toolkit::BevelCut::kEven, toolkit::BevelCut::kRaised);
  MessagePanel.SetBounds({54, 8, kWidth - 62, 60});
  MessagePanel.SetBevels(toolkit::BevelCut::kEven, toolkit::BevelCut::kRaised);
  Memo1.SetReadOnly(true);
  Memo1.SetEnabled(false);
  Memo1.SetAlign(toolkit::Align::kClient);
  btnDetails.SetBounds({8, 77, 90, 25});
  OkBtn.SetBounds({kWidth - 83, 77, 75, 25});
  OkBtn.SetDefault(true);
  OkBtn.ModalResult = toolkit::ModalResult::kOk;
  details_.SetBounds({8, kHeight, kWidth - 16, kHeightWithDetails - kHeight - 8});
  FormCreate();
}

void T_frmBandWidthAlert::FormCreate() {
  Localise();
  SetDetailsShown(false);
  CentreOnScreen();
  btnDetails.OnClick = [this] { btnDetailsClick(); };
  Timer1.SetEnabled(true);
}

// The details button comes first in reading order, but Enter must press OK.
void T_frmBandWidthAlert::FormShow() { OkBtn.SetFocus(); }

void T_frmBandWidthAlert::Localise() {
  SetCaption(language_.Text(text::Title));
  OkBtn.SetCaption(language_.Text(text::OkButton));
  LocaliseDetailsButton();
  details_.Localise();
}

void T_frmBandWidthAlert::Timer1Timer() {
  faults_.Try([this] { details_.Refresh(quantity_.ForStep()); });
  faults_.Tell();
}

void T_frmBandWidthAlert::btnDetailsClick() {
  SetDetailsShown(!details_shown_);
  LocaliseDetailsButton();
}

void T_frmBandWidthAlert::SetDetailsShown(bool shown) {
  details_shown_ = shown;
  details_.SetVisible(shown);
  SetClientSize({kWidth, shown ? kHeightWithDetails : kHeight});
}

void T_frmBandWidthAlert::LocaliseDetailsButton() {
  btnDetails.SetCaption(
      language_.Text(details_shown_ ? text::DetailsButton2 : text::DetailsButton1));
}

}  // namespace alerts
