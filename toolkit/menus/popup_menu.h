// Popup menus and their items.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/menus.h"
#include "toolkit/menus/menu_painter.h"
#include "toolkit/menus/short_cut.h"

namespace toolkit {

class Application;

class MenuItem {
 public:
  MenuItem() = default;
  explicit MenuItem(std::string_view caption) : Caption(caption) {}
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  std::string Caption;   // "-" is a separator; "&" marks the key, unless Literal
  bool Literal = false;  // the caption is shown letter by letter, ampersands too
  bool Enabled = true;
  bool RadioItem = false;
  int ImageIndex = -1;
  toolkit::ShortCut ShortCut = 0;
  std::string Hint;
  int Tag = 0;
  std::function<void()> OnClick;

  [[nodiscard]] bool Checked() const { return checked_; }
  // Checking a radio item takes the check from the other radio items of its menu.
  void SetChecked(bool checked);

  // Adds an item and returns it. This item owns it, and its address stays valid.
  MenuItem& Add(std::string_view caption);
  void AddSeparator() { Add("-"); }
  void Clear() { children_.clear(); }
  [[nodiscard]] std::size_t Count() const { return children_.size(); }
  [[nodiscard]] MenuItem& operator[](std::size_t index) const { return *children_[index]; }
  [[nodiscard]] const std::vector<std::shared_ptr<MenuItem>>& Children() const { return children_; }

 private:
  MenuItem* parent_ = nullptr;
  bool checked_ = false;
  std::vector<std::shared_ptr<MenuItem>> children_;
};

class PopupMenu {
 public:
  PopupMenu(Application& app, const ImageList& images);

  MenuItem Items;

  // Runs each time before the menu opens, to set the checks and enabled states of items.
  std::function<void()> OnPopup;

  // Opens the menu at a point of the screen, waits for the user's choice and runs its handler. Does
  // nothing when the chosen item was removed meanwhile, or when a menu is open already.
  void Popup(platform::Point screen);

  // Runs `next` at once when the menu is not open. Otherwise closes the menu and runs `next` when
  // it is gone, in place of a choice; several functions run in the order of their calls. A modal
  // window that opened under a menu would not get the mouse.
  void CloseThen(const std::function<void()>& next);

 private:
  Application& app_;
  MenuPainter painter_;
  bool open_ = false;
  std::vector<std::function<void()>> next_;
};

}  // namespace toolkit
