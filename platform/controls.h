// The system's own controls: their look, keyboard and screen reader support are the system's. What
// the code sets is never reported back.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/widget.h"

namespace platform {

enum class ButtonKind { kPush, kCheck, kRadio, kGroup };

// A push button, check box, radio button (BUTTON), or the frame with a title around a group of
// controls. "&" in its text marks the key. Click: OnClick, after the box has changed; the radio
// buttons of one parent that follow each other exclude each other.
class Button : public Widget {
 public:
  virtual void SetChecked(bool checked) = 0;
  [[nodiscard]] virtual bool Checked() const = 0;
  // Pressed by Enter anywhere in the window; at most one of a window.
  virtual void SetDefault(bool is_default) = 0;
};

enum class EditKind { kLine, kPassword, kMemo };

// An edit (EDIT). Typing: OnChange. A password shows "x" for every character. A memo has several
// lines, separated by "\n", and its own scroll bar.
class Edit : public Widget {
 public:
  // Characters that the user can enter; 0 for no limit.
  virtual void SetMaxLength(int characters) = 0;
  virtual void SetReadOnly(bool read_only) = 0;
  virtual void SelectAll() = 0;
};

enum class ListKind { kBox, kCombo, kCheckBox };

// A list (LISTBOX), a drop-down list (COMBOBOX) or a list with a check box in each row. Selecting:
// OnChange; ticking: OnCheck.
class ItemList : public Widget {
 public:
  // Replaces the rows; the selection is gone, nothing is ticked.
  virtual void SetItems(std::span<const std::string> items) = 0;
  [[nodiscard]] virtual int Count() const = 0;
  // The selected row, -1 for none.
  virtual void SetIndex(int index) = 0;
  [[nodiscard]] virtual int Index() const = 0;
  virtual void SetChecked(int row, bool checked) = 0;
  [[nodiscard]] virtual bool Checked(int row) const = 0;
  // Each row is shown in the font that it names.
  virtual void ShowItemsAsFonts() = 0;
};

struct TreeItem {
  std::string text;
  int level = 0;  // 0 at the root
};

// A tree (SysTreeView32), all of it expanded. Selecting: OnChange.
class Tree : public Widget {
 public:
  virtual void SetItems(std::span<const TreeItem> items) = 0;
  // Position in the expanded tree, -1 for none.
  virtual void SetIndex(int index) = 0;
  [[nodiscard]] virtual int Index() const = 0;
  virtual void ExpandAll() = 0;
};

// A row of tabs over an area for the pages (SysTabControl32), which is left to the caller. Choosing
// a tab, also by Ctrl+Tab anywhere in the window: OnChange.
class Tabs : public Widget {
 public:
  virtual void SetItems(std::span<const std::string> captions) = 0;
  virtual void SetIndex(int index) = 0;
  [[nodiscard]] virtual int Index() const = 0;
  // The area below the tabs, in client pixels.
  [[nodiscard]] virtual Rect PageArea() const = 0;
};

// A slider (msctls_trackbar32). Moving it: OnChange.
class TrackBar : public Widget {
 public:
  virtual void SetRange(int lowest, int highest, int page) = 0;
  virtual void SetPosition(int position) = 0;
  [[nodiscard]] virtual int Position() const = 0;
};

class ProgressBar : public Widget {
 public:
  virtual void SetRange(int lowest, int highest) = 0;
  virtual void SetPosition(int position) = 0;
};

enum class Border { kNone, kSunken };

// How a text stands in its box (STATIC). One that wraps starts at the top; the others are centred
// vertically.
struct TextStyle {
  TextAlign align = TextAlign::kLeft;
  Border border = Border::kNone;
  bool wraps = false;
  // "&" marks the key of the control that follows in tab order; off: it is a letter like any other.
  bool mnemonic = false;
};

}  // namespace platform
