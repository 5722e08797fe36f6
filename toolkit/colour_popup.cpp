#include "toolkit/colour_popup.h"

#include <algorithm>
#include <array>
#include <functional>

#include "toolkit/application.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/layout.h"
#include "toolkit/controls/panel.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/placement.h"

namespace toolkit {
namespace {

// A field of colours, one of which is chosen with the mouse or the arrow keys.
// Its caption is the chosen colour as "#RRGGBB", which screen readers say as its value.
class ColourPalette : public ButtonControl {
 public:
  static constexpr int kColumns = 8;
  static constexpr int kRows = 6;

  ColourPalette(Control& parent, std::string_view name);

  // Returns the chosen colour, or nullopt when no cell is chosen.
  [[nodiscard]] std::optional<platform::Colour> Chosen() const;
  // Chooses the cell of a colour, or no cell when the field does not have the colour.
  void Choose(platform::Colour colour);

  // Runs when the user has chosen another cell.
  std::function<void()> OnChange;
  // Runs when the user confirms the chosen colour with a double click, Enter or the space bar.
  std::function<void()> OnConfirm;

 protected:
  void Paint(platform::Canvas& canvas) override;
  void OnMouseDown(const platform::MouseEvent& event) override;
  void OnMouseUp(const platform::MouseEvent& event) override;
  void OnDoubleClick(const platform::MouseEvent& event) override;
  bool OnKey(platform::Key key) override;
  void Clicked() override;
  [[nodiscard]] platform::Spoken Describe() const override;

 private:
  // Returns the cell at a point in real pixels, or -1 when the point is outside all cells.
  [[nodiscard]] int CellAt(platform::Point at) const;
  [[nodiscard]] platform::Rect CellArea(int cell) const;
  void Move(int to);
  void Show(int cell);

  int cell_ = -1;
  bool by_mouse_ = false;  // the next click comes from the mouse, which has chosen the cell already
};

using platform::Colour;

constexpr int kCells = ColourPalette::kColumns * ColourPalette::kRows;

constexpr Colour Rgb(Colour rgb) {
  return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF);
}

// From grey to the colours of the rainbow, each column from light to dark.
constexpr std::array<Colour, kCells> kColours = {
    Rgb(0xFFFFFF), Rgb(0xFF8080), Rgb(0xFFC080), Rgb(0xFFFF80), Rgb(0x80FF80), Rgb(0x80FFFF),
    Rgb(0x8080FF), Rgb(0xFF80FF), Rgb(0xE0E0E0), Rgb(0xFE8481), Rgb(0xFFA040), Rgb(0xFFFF40),
    Rgb(0x40FF40), Rgb(0x40FFFF), Rgb(0x4040FF), Rgb(0xFF40FF), Rgb(0xC0C0C0), Rgb(0xFF0000),
    Rgb(0xFF8000), Rgb(0xFFFF00), Rgb(0x00FF00), Rgb(0x00FFFF), Rgb(0x0000FF), Rgb(0xFF00FF),
    Rgb(0x808080), Rgb(0xCD0000), Rgb(0xC06000), Rgb(0xC0C000), Rgb(0x00C000), Rgb(0x00C0C0),
    Rgb(0x0000C0), Rgb(0xC000C0), Rgb(0x404040), Rgb(0x800000), Rgb(0x804000), Rgb(0x808000),
    Rgb(0x008000), Rgb(0x008080), Rgb(0x000080), Rgb(0x800080), Rgb(0x000000), Rgb(0x400000),
    Rgb(0x402000), Rgb(0x404000), Rgb(0x004000), Rgb(0x004040), Rgb(0x000040), Rgb(0x400040),
};

ColourPalette::ColourPalette(Control& parent, std::string_view name)
    : ButtonControl(parent, name, platform::ButtonKind::kPainted) {}

std::optional<platform::Colour> ColourPalette::Chosen() const {
  if (cell_ < 0) return std::nullopt;
  return kColours[static_cast<std::size_t>(cell_)];
}

void ColourPalette::Choose(platform::Colour colour) {
  const auto found = std::find(kColours.begin(), kColours.end(), colour);
  Show(found == kColours.end() ? -1 : static_cast<int>(found - kColours.begin()));
}

void ColourPalette::Show(int cell) {
  cell_ = cell;
  const std::optional<platform::Colour> chosen = Chosen();
  SetCaption(chosen ? ColourName(*chosen) : std::string());
  Invalidate();
}

platform::Spoken ColourPalette::Describe() const {
  return {.name = Parent()->ParentForm().Caption(), .value = Caption()};
}

void ColourPalette::Move(int to) {
  if (to < 0 || to >= kCells || to == cell_) return;
  Show(to);
  Fire(OnChange);
}

int ColourPalette::CellAt(platform::Point at) const {
  for (int cell = 0; cell < kCells; ++cell) {
    if (CellArea(cell).Contains(at)) return cell;
  }
  return -1;
}

platform::Rect ColourPalette::CellArea(int cell) const {
  const platform::Size size = ClientPixels();
  const int column = cell % kColumns;
  const int row = cell / kColumns;
  const int left = size.width * column / kColumns;
  const int top = size.height * row / kRows;
  return {left, top, size.width * (column + 1) / kColumns - left,
          size.height * (row + 1) / kRows - top};
}

void ColourPalette::Paint(platform::Canvas& canvas) {
  canvas.Fill(canvas.Area(), platform::colour::kButtonFace);
  for (int cell = 0; cell < kCells; ++cell) {
    const platform::Rect area = CellArea(cell);
    if (cell == cell_) canvas.Fill(area, platform::colour::kHighlight);
    const platform::Rect inside = DrawFrame(canvas, area.Shrunk(Scale(2)));
    canvas.Fill(inside, kColours[static_cast<std::size_t>(cell)]);
  }
}

void ColourPalette::OnMouseDown(const platform::MouseEvent& event) {
  if (event.button != platform::MouseButton::kLeft) return;
  App().Guard([&] {
    by_mouse_ = true;
    Move(CellAt(event.at));
  });
}

// The flag is cleared after the click that the release makes.
void ColourPalette::OnMouseUp(const platform::MouseEvent& event) {
  by_mouse_ = false;
  Control::OnMouseUp(event);
}

void ColourPalette::OnDoubleClick(const platform::MouseEvent& event) {
  App().Guard([&] {
    Move(CellAt(event.at));
    Fire(OnConfirm);
  });
}

bool ColourPalette::OnKey(platform::Key key) {
  App().Guard([&] {
    by_mouse_ = false;
    if (cell_ < 0) {
      Move(0);
      return;
    }
    const int column = cell_ % kColumns;
    switch (key) {
      case platform::Key::kLeft:
        if (column > 0) Move(cell_ - 1);
        break;
      case platform::Key::kRight:
        if (column < kColumns - 1) Move(cell_ + 1);
        break;
      case platform::Key::kUp:
        Move(cell_ - kColumns);
        break;
      case platform::Key::kDown:
        Move(cell_ + kColumns);
        break;
      case platform::Key::kHome:
        Move(0);
        break;
      case platform::Key::kEnd:
        Move(kCells - 1);
        break;
      default:
        break;
    }
  });
  return true;
}

void ColourPalette::Clicked() {
  if (!by_mouse_) Fire(OnConfirm);
}

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
        {palette_, {10, 10, 232, 144}},
        {sample_, {10, 162, 60, 25}},
        {btn_more_, {78, 162, 164, 25}, texts.more},
        {btn_ok_, {78, 193, 78, 25}, texts.ok},
        {btn_cancel_, {164, 193, 78, 25}, texts.cancel},
    });
    sample_.SetBevels(BevelCut::kEven, BevelCut::kNone);
    btn_ok_.SetDefault(true);
    palette_.Choose(App().Platform().screen.Resolve(present));
    sample_.SetColour(present);
    palette_.OnChange = [this] { Take(*palette_.Chosen()); };
    palette_.OnConfirm = [this] { EndModal(ModalResult::kOk); };
    btn_more_.OnClick = [this] { AskSystem(); };
    btn_ok_.ModalResult = ModalResult::kOk;
    btn_cancel_.ModalResult = ModalResult::kCancel;
    StandBelow(anchor);
  }

  [[nodiscard]] platform::Colour Chosen() const { return colour_; }

 private:
  void Take(platform::Colour colour) {
    colour_ = colour;
    sample_.SetColour(colour);
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
    SetWindowBounds(Inside({place.left, top, own.width, own.height}, work));
  }

  platform::Colour colour_;
  ColourPalette palette_{*this, "palette"};
  Panel sample_{*this, "sample"};
  Button btn_more_{*this, "btnMoreColors"};
  Button btn_ok_{*this, "btnColorOk"};
  Button btn_cancel_{*this, "btnColorCancel"};
};

}  // namespace

std::optional<platform::Colour> ChooseColour(Control& anchor, const ColourPopupTexts& texts,
                                             platform::Colour present) {
  ColourPopup popup(anchor, texts, present);
  if (anchor.App().Modals().Show(popup) != ModalResult::kOk) return std::nullopt;
  return popup.Chosen();
}

}  // namespace toolkit
