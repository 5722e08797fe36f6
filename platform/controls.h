// The system's own controls: their look, keyboard and screen reader support are the system's. What
// the code sets is never reported back.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/widget.h"

namespace platform {

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

enum class ButtonKind {
  kPush,
  kCheck,
  kRadio,
  kGroup,    // the frame with a title around other controls, which are made as its children
  kPainted,  // a push button whose face the program paints (OnPaint); its text is only its name
};

// A button of the system (BUTTON). "&" in its text marks the key. Click: OnClicked, after the box
// has changed. The radio buttons of one parent that were made one after the other exclude each
// other when the user chooses; of what the code checks, each stays as it is.
class Button : public Widget {
 public:
  virtual void SetChecked(bool checked) = 0;
  [[nodiscard]] virtual bool Checked() const = 0;
  // The look of a push button that Enter presses.
  virtual void SetDefault(bool is_default) = 0;
  // As by a click of the user (BM_CLICK).
  virtual void Press() = 0;
};

enum class EditKind { kLine, kPassword, kMemo };

struct EditStyle {
  EditKind kind = EditKind::kLine;
  Border border = Border::kSunken;
};

// An edit (EDIT). Typing: OnChanged. A password shows "x" for every character. A memo has several
// lines, separated by "\n", and its own scroll bar, and takes Enter for itself.
class Edit : public Widget {
 public:
  // Characters (code points) that the user can enter; 0 for no limit. What is too much of a typed
  // or pasted text is left out at its end. The code may set a longer text.
  virtual void SetMaxLength(int characters) = 0;
  virtual void SetReadOnly(bool read_only) = 0;
  virtual void SelectAll() = 0;
};

enum class ListKind {
  kBox,        // LISTBOX
  kCombo,      // drops down (COMBOBOX); its height is that of the closed one
  kFontCombo,  // a kCombo that shows each row in the font that it names, if that has letters
  kCheckBox,   // a check box in each row (SysListView32)
};

// A list. Selecting: OnChanged; ticking: OnRowChecked.
class ItemList : public Widget {
 public:
  // Replaces the rows; the selection is gone, nothing is ticked.
  virtual void SetItems(std::span<const std::string> items) = 0;
  [[nodiscard]] virtual int Count() const = 0;
  // The selected row, -1 for none.
  virtual void SetIndex(int index) = 0;
  [[nodiscard]] virtual int Index() const = 0;
  // Check lists only.
  virtual void SetChecked(int row, bool checked) = 0;
  [[nodiscard]] virtual bool Checked(int row) const = 0;
};

struct TreeItem {
  std::string text;
  int level = 0;  // 0 at the root
};

// A tree (SysTreeView32), all of it expanded. Selecting: OnChanged.
class Tree : public Widget {
 public:
  // Replaces all items; the selection is gone. A level is at most one deeper than that before it.
  virtual void SetItems(std::span<const TreeItem> items) = 0;
  // Position in the expanded tree, -1 for none.
  virtual void SetIndex(int index) = 0;
  [[nodiscard]] virtual int Index() const = 0;
  // Expands what the user has collapsed.
  virtual void ExpandAll() = 0;
};

// A row of tabs over an area for the pages (SysTabControl32), which are made as its children.
// Choosing a tab: OnChanged.
class Tabs : public Widget {
 public:
  // The chosen tab stays the one with the same number, or is the first.
  virtual void SetItems(std::span<const std::string> captions) = 0;
  virtual void SetIndex(int index) = 0;
  // -1 only without tabs.
  [[nodiscard]] virtual int Index() const = 0;
  // The area below the tabs, in client pixels.
  [[nodiscard]] virtual Rect PageArea() const = 0;
  // What the system fills that area with.
  [[nodiscard]] virtual Colour PageColour() const = 0;
};

// A slider (msctls_trackbar32). Moving it: OnChanged.
class TrackBar : public Widget {
 public:
  // `page` is the step of the page keys. The position is moved into the range.
  virtual void SetRange(int lowest, int highest, int page) = 0;
  virtual void SetPosition(int position) = 0;
  [[nodiscard]] virtual int Position() const = 0;
};

// How far something has come (msctls_progress32).
class ProgressBar : public Widget {
 public:
  virtual void SetRange(int lowest, int highest) = 0;
  virtual void SetPosition(int position) = 0;
};

}  // namespace platform
