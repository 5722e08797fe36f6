// Pages behind a row of tabs.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "toolkit/controls/panel.h"

namespace toolkit {

class TabSheet;

class PageControl : public Control {
 public:
  PageControl(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  [[nodiscard]] int PageCount() const { return static_cast<int>(pages_.size()); }
  // The number of the page that is shown. The first page is shown as soon as there is one; -1
  // without pages.
  [[nodiscard]] int ActivePageIndex() const { return active_; }
  void SetActivePageIndex(int index);
  // To the page that is so many behind, around the ends.
  void Step(int by);

  // Runs when another page is shown.
  std::function<void()> OnChange;

 protected:
  void OnChanged() override;
  void Resized() override { PlacePages(); }
  void Rescale() override;
  [[nodiscard]] platform::Rect ChildArea() const override { return tabs_->PageArea(); }

 private:
  friend class TabSheet;

  void Add(TabSheet& page);
  void Remove(TabSheet& page);
  void ShowCaptions();
  void PlacePages();
  void ShowPage(int index);

  platform::Tabs* tabs_ = nullptr;  // the peer, owned by Control
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
