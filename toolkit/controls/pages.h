// Pages of which one is seen: without tabs, and behind a row of tabs.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "toolkit/controls/panel.h"

namespace toolkit {

class NotebookPage;
class TabSheet;

// Pages without tabs.
class Notebook : public Panel {
 public:
  using Panel::Panel;

  // Returns the name of the page that is seen, which is at first the first one; it is empty without
  // pages.
  [[nodiscard]] std::string_view ActivePage() const;
  // Returns false, and changes nothing, when there is no page of this name.
  bool SetActivePage(std::string_view name);

 private:
  friend class NotebookPage;

  void Add(NotebookPage& page);
  void Remove(NotebookPage& page);

  std::vector<NotebookPage*> pages_;
  NotebookPage* active_ = nullptr;
};

class NotebookPage : public Panel {
 public:
  NotebookPage(Notebook& pages, std::string_view name);
  ~NotebookPage() override { pages_.Remove(*this); }

 private:
  Notebook& pages_;
};

// Pages behind a row of tabs.
class PageControl : public ControlOf<platform::Tabs> {
 public:
  PageControl(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  [[nodiscard]] int PageCount() const { return static_cast<int>(pages_.size()); }
  // The number of the page that is shown. The first page is shown as soon as there is one; -1
  // without pages.
  [[nodiscard]] int ActivePageIndex() const { return active_; }
  void SetActivePageIndex(int index);
  // Shows the page that is `by` pages behind the present one, around the ends.
  void Step(int by);

  // Runs when another page is shown.
  std::function<void()> OnChange;

 protected:
  void OnChanged() override;
  [[nodiscard]] platform::Rect ChildArea() const override { return Peer()->PageArea(); }

 private:
  friend class TabSheet;

  void Add(TabSheet& page);
  void Remove(TabSheet& page);
  void ShowCaptions();
  // Returns false, and changes nothing, when the page is shown already or does not exist.
  bool ShowPage(int index);

  std::vector<TabSheet*> pages_;
  int active_ = -1;
};

// A page; its caption is on its tab. The tabs stand in the order in which the pages were made.
class TabSheet : public Panel {
 public:
  TabSheet(PageControl& pages, std::string_view name);
  ~TabSheet() override { pages_.Remove(*this); }

 protected:
  void CaptionChanged() override { pages_.ShowCaptions(); }

 private:
  friend class PageControl;

  PageControl& pages_;
};

}  // namespace toolkit
