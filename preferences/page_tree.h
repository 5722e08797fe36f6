// The tree that leads to the pages of the preferences.
#pragma once

#include <span>
#include <string_view>

#include "language/texts.h"

namespace preferences {

struct PageTreeItem {
  int number;  // what the item is known by, wherever it stands
  int level;   // 0 at the root
  language::TextEntry text;
  std::string_view page;  // empty for a heading, which leads nowhere
};

// The items in the order in which they stand in the expanded tree.
[[nodiscard]] std::span<const PageTreeItem> PageTree();

}  // namespace preferences
