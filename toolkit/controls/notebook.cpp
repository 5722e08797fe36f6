#include "toolkit/controls/notebook.h"

#include <algorithm>

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
  PlacePages();
}

void Notebook::Remove(NotebookPage& page) {
  std::erase(pages_, &page);
  if (active_ == &page) active_ = nullptr;
}

// The hidden ones too, so that nothing moves when they are shown.
void Notebook::PlacePages() {
  for (const NotebookPage* page : pages_) PlacePixels(*page, ChildArea());
}

void Notebook::Rescale() {
  Panel::Rescale();
  PlacePages();
}

NotebookPage::NotebookPage(Notebook& pages, std::string_view name)
    : Panel(pages, name), pages_(pages) {
  pages_.Add(*this);
  if (!Visible()) LetChildrenWait();
}

}  // namespace toolkit
