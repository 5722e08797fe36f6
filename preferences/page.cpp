#include "preferences/page.h"

#include <utility>

namespace preferences {

void Page::Localise(const language::Translation& say) {
  language::SayNames(*this, "SettingsForm", say);
  for (const Row::Words& words : says_) words(say);
}

void Page::Read(ReadStep step) {
  for (const Part& part : parts_) {
    if (part.step == step) part.read();
  }
}

void Page::Add(ReadStep step, std::span<const Row> rows) {
  for (const Row& row : rows) {
    if (row.event != nullptr) {
      *row.event = [this, follows = row.follows, take = row.take] {
        if (follows) follows();
        take(context_);
      };
    }
    if (row.read) Add(step, [this, read = row.read] { read(context_); });
    says_.insert(says_.end(), row.says.begin(), row.says.end());
  }
}

void Page::Add(ReadStep step, std::function<void()> read) {
  parts_.push_back({step, std::move(read)});
}

}  // namespace preferences
