// How the spy in the program tells what it sees in an open menu. A menu belongs to its process, and
// under Wine no other process can read it.
#pragma once

namespace desktop {

inline constexpr wchar_t kSpyModule[] = L"menu_spy.dll";
inline constexpr char kSpyProcedure[] = "SpyOnMenu";
// Sent to a menu's window, with the window (w) whose text becomes the answer: a line for each item
// of the menu and of those in it, "checked left top right bottom" and, each behind a tab, the texts
// that lead to it. The place is on the screen, and means something where the menu is open.
inline constexpr wchar_t kSpyMessage[] = L"TremoluxSpyOnMenu";

}  // namespace desktop
