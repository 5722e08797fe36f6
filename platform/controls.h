// The system's own controls. The system gives them their look, keyboard and screen reader support.
// A change by the code is never reported back.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/widget.h"

namespace platform {

enum class Border { kNone, kSunken };

// How a text stands in its box (STATIC). A text that wraps starts at the top; the others are
// centred vertically.
struct TextStyle {
  TextAlign align = TextAlign::kLeft;
  Border border = Border::kNone;
  bool wraps = false;
  // When true, "&" marks the key of the control that follows in tab order; when false, "&" is a
  // letter like any other.
  bool mnemonic = false;
};

enum class ButtonKind {
  kPush,
  kCheck,
  kRadio,
  kGroup,    // the frame with a title around other controls, which are made as its children
  kPainted,  // a push button whose face the program paints (OnPaint); its text is only its name
};

// A button of the system (BUTTON). "&" in its text marks the key. A click reports OnClicked, after
// the box has changed. The radio buttons of one parent that were made one after the other exclude
// each other when the user chooses one; when the code checks one, the others stay as they are.
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

// An edit (EDIT). Typing reports OnChanged. A password edit shows "x" for every character. A memo
// has several lines, separated by "\n", has its own scroll bar and takes Enter for itself.
class Edit : public Widget {
 public:
  // Sets how many characters (code points) the user can enter; 0 means no limit. A typed or pasted
  // text that is too long is cut at its end. The code may set a longer text.
  virtual void SetMaxLength(int characters) = 0;
  virtual void SetReadOnly(bool read_only) = 0;
  virtual void SelectAll() = 0;
};

enum class ListKind {
  kBox,        // LISTBOX
  kCombo,      // drops down (COMBOBOX); its height is that of the closed list
  kFontCombo,  // a kCombo that shows each row in the font that the row names, if that has letters
  kCheckBox,   // a check box in each row (SysListView32)
};

// A list. Selecting a row reports OnChanged; ticking one reports OnRowChecked.
class ItemList : public Widget {
 public:
  // Puts `added` in the place of the `removed` rows from `first` on; the new rows are not ticked.
  // The rows around them keep their ticks. Which row is selected afterwards is not said, unless all
  // were replaced: then it is none.
  virtual void Replace(int first, int removed, std::span<const std::string> added) = 0;
  // The selected row; -1 means none.
  virtual void SetIndex(int index) = 0;
  [[nodiscard]] virtual int Index() const = 0;
  // For kCheckBox lists only.
  virtual void SetChecked(int row, bool checked) = 0;
  [[nodiscard]] virtual bool Checked(int row) const = 0;
};

struct TreeItem {
  std::string text;
  int level = 0;  // 0 at the root
};

// A tree (SysTreeView32) with all items expanded. Selecting an item reports OnChanged.
class Tree : public Widget {
 public:
  // Replaces all items. Afterwards none is selected. The level of an item is at most one deeper
  // than that of the item before it.
  virtual void SetItems(std::span<const TreeItem> items) = 0;
  // The selected item, as its position in the expanded tree; -1 means none.
  virtual void SetIndex(int index) = 0;
  [[nodiscard]] virtual int Index() const = 0;
  // Expands the items that the user has collapsed.
  virtual void ExpandAll() = 0;
};

// A row of tabs over an area for the pages (SysTabControl32), which are made as its children.
// Choosing a tab: OnChanged.
class Tabs : public Widget {
 public:
  // Replaces the tabs. The chosen tab keeps its number, or is the first when that number is gone.
  virtual void SetItems(std::span<const std::string> captions) = 0;
  virtual void SetIndex(int index) = 0;
  // Returns the number of the chosen tab, or -1 when there are no tabs.
  [[nodiscard]] virtual int Index() const = 0;
  // Returns the area below the tabs, in client pixels.
  [[nodiscard]] virtual Rect PageArea() const = 0;
  // Returns the colour with which the system fills that area.
  [[nodiscard]] virtual Colour PageColour() const = 0;
};

// A slider (msctls_trackbar32). Moving it reports OnChanged.
class TrackBar : public Widget {
 public:
  // Sets the range and moves the position into it. `page` is the step of the page keys.
  virtual void SetRange(int lowest, int highest, int page) = 0;
  virtual void SetPosition(int position) = 0;
  [[nodiscard]] virtual int Position() const = 0;
};

// A progress bar (msctls_progress32).
class ProgressBar : public Widget {
 public:
  virtual void SetRange(int lowest, int highest) = 0;
  virtual void SetPosition(int position) = 0;
};

}  // namespace platform
