#include "toolkit/controls/pages.h"

#include <algorithm>

#include "toolkit/application.h"

namespace toolkit {

std::string_view Notebook::ActivePage() const {
  return active_ != nullptr ? std::string_view(active_->Name()) : std::string_view();
}

bool Notebook::SetActivePage(std::string_view name) {
  const auto found = std::find_if(pages_.begin(), pages_.end(), [name](const NotebookPage* page) {
    return page->Name() == name;
  });
  if (found == pages_.end()) return false;
  if (*found == active_) return true;
  RealiseChildren(**found);
  NotebookPage* before = active_;
  active_ = *found;
  active_->SetVisible(true);
  if (before != nullptr) before->SetVisible(false);
  return true;
}

void Notebook::Add(NotebookPage& page) {
  pages_.push_back(&page);
  page.SetVisible(active_ == nullptr);
  if (active_ == nullptr) active_ = &page;
  page.SetAlign(Align::kClient);
}

void Notebook::Remove(NotebookPage& page) {
  std::erase(pages_, &page);
  if (active_ == &page) active_ = nullptr;
}

NotebookPage::NotebookPage(Notebook& pages, std::string_view name)
    : Panel(pages, name), pages_(pages) {
  pages_.Add(*this);
  if (!Visible()) LetChildrenWait();
}

PageControl::PageControl(Control& parent, std::string_view name) : ControlOf(parent, name) {
  RealiseChildren(parent);  // the system is asked for the colour now
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateTabs(on, Name(), *this);
  });
  SetColour(Peer()->PageColour());  // the pages take it over
}

void PageControl::Add(TabSheet& page) {
  pages_.push_back(&page);
  page.SetVisible(false);
  ShowCaptions();
  page.SetAlign(Align::kClient);
  if (active_ < 0) ShowPage(0);
}

void PageControl::Remove(TabSheet& page) {
  std::erase(pages_, &page);
  if (active_ >= PageCount()) active_ = PageCount() - 1;
}

void PageControl::ShowCaptions() {
  std::vector<std::string> captions;
  for (const TabSheet* page : pages_) captions.push_back(page->Caption());
  Peer()->SetItems(captions);
}

void PageControl::SetActivePageIndex(int index) {
  if (ShowPage(index)) Fire(OnChange);
}

void PageControl::Step(int by) {
  if (PageCount() > 1) SetActivePageIndex((active_ + by + PageCount()) % PageCount());
}

void PageControl::OnChanged() { SetActivePageIndex(Peer()->Index()); }

bool PageControl::ShowPage(int index) {
  if (index == active_ || index < 0 || index >= PageCount()) return false;
  Peer()->SetIndex(index);
  TabSheet* before = active_ >= 0 ? pages_[static_cast<std::size_t>(active_)] : nullptr;
  // The tabs get the focus before the old page is hidden; otherwise the focus would leave the page
  // control.
  if (before != nullptr && before->Focused()) SetFocus();
  active_ = index;
  pages_[static_cast<std::size_t>(index)]->SetVisible(true);
  if (before != nullptr) before->SetVisible(false);
  return true;
}

TabSheet::TabSheet(PageControl& pages, std::string_view name) : Panel(pages, name), pages_(pages) {
  pages_.Add(*this);
}

}  // namespace toolkit
