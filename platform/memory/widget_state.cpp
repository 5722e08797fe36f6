#include "platform/memory/widget_state.h"

namespace platform::memory {

Point WidgetState::ToScreen(Point client) const {
  Point at = client;
  for (const WidgetState* state = this; state != nullptr; state = state->parent) {
    at.x += state->bounds.left + state->client_origin.x;
    at.y += state->bounds.top + state->client_origin.y;
  }
  return at;
}

bool WidgetState::OnScreen() const { return visible && (parent == nullptr || parent->OnScreen()); }

bool WidgetState::Reachable() const {
  return visible && enabled && (parent == nullptr || parent->Reachable());
}

bool WidgetState::IsIn(const WidgetState& other) const {
  return this == &other || (parent != nullptr && parent->IsIn(other));
}

bool WidgetState::TakesKeyboard() const {
  switch (kind) {
    case Kind::kTopWindow:
    case Kind::kSurface:
    case Kind::kText:
    case Kind::kProgressBar:
      return false;
    default:
      return !IsButton(ButtonKind::kGroup);
  }
}

void WidgetState::Select(int row) {
  index = row >= 0 && row < static_cast<int>(items.size()) ? row : -1;
  const bool drops_down = list == ListKind::kCombo || list == ListKind::kFontCombo;
  if (kind != Kind::kList || !drops_down) return;
  text = index < 0 ? std::string() : items[static_cast<std::size_t>(index)];
}

std::unique_ptr<Raster> WidgetState::Paint(Screen& screen) const {
  const Size size = ClientSize();
  auto picture = std::make_unique<Raster>(size, screen);
  const Rect all{0, 0, size.width, size.height};
  picture->Fill(all, background);
  if (kind == Kind::kText) {
    picture->Text(all, text, font, text_colour, text_style.align);
  } else if (kind == Kind::kTopWindow || kind == Kind::kSurface || IsButton(ButtonKind::kPainted)) {
    events->OnPaint(*picture);
  }
  return picture;
}

}  // namespace platform::memory
