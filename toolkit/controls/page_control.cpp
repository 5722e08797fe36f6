#include "toolkit/controls/page_control.h"

#include <algorithm>

#include "toolkit/application.h"

namespace toolkit {

PageControl::PageControl(Control& parent, std::string_view name)
    : Control(parent.App(), &parent, name) {
  RealiseChildren(parent);  // the system is asked for the colour now
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateTabs(on, Name(), *this), tabs_);
  });
  SetColour(tabs_->PageColour());  // the pages take it over
}

void PageControl::Add(TabSheet& page) {
  pages_.push_back(&page);
  page.SetVisible(false);
  page.SetAlign(Align::kClient);
  ShowCaptions();
  PlacePages();
  if (active_ < 0) ShowPage(0);
}

void PageControl::Remove(TabSheet& page) {
  std::erase(pages_, &page);
  if (active_ >= PageCount()) active_ = PageCount() - 1;
}

void PageControl::ShowCaptions() {
  std::vector<std::string> captions;
  for (const TabSheet* page : pages_) captions.push_back(page->Caption());
  tabs_->SetItems(captions);
}

// Places the hidden pages too, so that nothing moves when they are shown.
void PageControl::PlacePages() {
  for (const TabSheet* page : pages_) PlacePixels(*page, ChildArea());
}

void PageControl::Rescale() {
  Control::Rescale();
  PlacePages();
}

void PageControl::SetActivePageIndex(int index) {
  if (index == active_ || index < 0 || index >= PageCount()) return;
  tabs_->SetIndex(index);
  ShowPage(index);
  Fire(OnChange);
}

void PageControl::Step(int by) {
  if (PageCount() > 1) SetActivePageIndex((active_ + by + PageCount()) % PageCount());
}

void PageControl::OnChanged() {
  const int index = tabs_->Index();
  if (index == active_ || index < 0 || index >= PageCount()) return;
  ShowPage(index);
  Fire(OnChange);
}

void PageControl::ShowPage(int index) {
  TabSheet* before = active_ >= 0 ? pages_[static_cast<std::size_t>(active_)] : nullptr;
  // The tabs get the focus before the old page is hidden; otherwise the focus would leave the page
  // control.
  if (before != nullptr && before->Focused()) SetFocus();
  active_ = index;
  pages_[static_cast<std::size_t>(index)]->SetVisible(true);
  if (before != nullptr) before->SetVisible(false);
}

TabSheet::TabSheet(PageControl& pages, std::string_view name) : Panel(pages, name), pages_(pages) {
  pages_.Add(*this);
}

}  // namespace toolkit
