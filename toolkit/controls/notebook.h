// Pages of which one is seen, without tabs.
#pragma once

#include <string_view>
#include <vector>

#include "toolkit/controls/panel.h"

namespace toolkit {

class NotebookPage;

class Notebook : public Panel {
 public:
  Notebook(Control& parent, std::string_view name) : Panel(parent, name) {}

  // The name of the page that is seen, which is at first the first one; empty without pages.
  [[nodiscard]] std::string_view ActivePage() const;
  // False, and nothing changes, when there is no page of this name.
  bool SetActivePage(std::string_view name);

 protected:
  void Resized() override { PlacePages(); }
  void Rescale() override;

 private:
  friend class NotebookPage;

  void Add(NotebookPage& page);
  void Remove(NotebookPage& page);
  void PlacePages();

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

}  // namespace toolkit
