#include "toolkit/colour_popup.h"

#include <algorithm>

#include "toolkit/application.h"
#include "toolkit/colour_palette.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/layout.h"
#include "toolkit/controls/panel.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

constexpr platform::Size kClient{252, 226};

platform::TopWindowParams Params(std::string_view caption) {
  platform::TopWindowParams params;
  params.name = "ColourPopup";
  params.caption = caption;
  return params;
}

class ColourPopup final : public Form {
 public:
  ColourPopup(Control& anchor, const ColourPopupTexts& texts, platform::Colour present)
      : Form(anchor.App(), Params(texts.caption), &anchor.ParentForm()), colour_(present) {
    SetClientSize(kClient);
    ApplyLayout({
        {palette, {10, 10, 232, 144}},
        {sample, {10, 162, 60, 25}},
        {btn_more, {78, 162, 164, 25}, texts.more},
        {btn_ok, {78, 193, 78, 25}, texts.ok},
        {btn_cancel, {164, 193, 78, 25}, texts.cancel},
    });
    sample.SetBevels(BevelCut::kLowered, BevelCut::kNone);
    btn_ok.SetDefault(true);
    palette.Choose(App().Platform().screen.Resolve(present));
    sample.SetColour(present);
    palette.OnChange = [this] { Take(*palette.Chosen()); };
    palette.OnConfirm = [this] { EndModal(ModalResult::kOk); };
    btn_more.OnClick = [this] { AskSystem(); };
    btn_ok.ModalResult = ModalResult::kOk;
    btn_cancel.ModalResult = ModalResult::kCancel;
    StandBelow(anchor);
  }

  [[nodiscard]] platform::Colour Chosen() const { return colour_; }

 private:
  void Take(platform::Colour colour) {
    colour_ = colour;
    sample.SetColour(colour);
  }

  // Shows the system's dialog. A colour that the user confirms there ends the popup too.
  void AskSystem() {
    std::optional<platform::Colour> mixed;
    App().Modals().RunSystemDialog(
        *this, [&] { mixed = App().Platform().system_dialogs.ChooseColour(colour_, Window()); });
    if (!mixed) return;
    Take(*mixed);
    EndModal(ModalResult::kOk);
  }

  // Places the popup below the anchor, or above it when there is no room, and within the work area.
  void StandBelow(const Control& anchor) {
    const platform::Rect place = anchor.OnScreen();
    const platform::Rect work = App().Platform().screen.MonitorOf(place).work_area;
    const platform::Rect own = WindowBounds();
    int top = place.Bottom() + Scale(2);
    if (top + own.height > work.Bottom()) top = place.top - Scale(2) - own.height;
    SetWindowBounds(
        {std::clamp(place.left, work.left, std::max(work.left, work.Right() - own.width)),
         std::clamp(top, work.top, std::max(work.top, work.Bottom() - own.height)), own.width,
         own.height});
  }

  platform::Colour colour_;
  ColourPalette palette{*this, "palette"};
  Panel sample{*this, "sample"};
  Button btn_more{*this, "btnMoreColors"};
  Button btn_ok{*this, "btnColorOk"};
  Button btn_cancel{*this, "btnColorCancel"};
};

}  // namespace

std::optional<platform::Colour> ChooseColour(Control& anchor, const ColourPopupTexts& texts,
                                             platform::Colour present) {
  ColourPopup popup(anchor, texts, present);
  if (anchor.App().Modals().Show(popup) != ModalResult::kOk) return std::nullopt;
  return popup.Chosen();
}

}  // namespace toolkit
