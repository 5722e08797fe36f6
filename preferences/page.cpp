#include "preferences/page.h"

#include <string>
#include <utility>

namespace preferences {
namespace {

void SayNames(const toolkit::Control& parent, const language::Translation& say) {
  for (toolkit::Control* control : parent.Children()) {
    if (const auto* text = FindText(control->Name())) control->SetCaption(say(*text));
    if (const auto* hint = FindText(control->Name() + "Hint")) control->SetHint(say(*hint));
    if (!control->IsComposite()) SayNames(*control, say);
  }
}

}  // namespace

void Page::Localise(const language::Translation& say) {
  SayNames(*this, say);
  for (const auto& wording : wordings_) wording(say);
}

void Page::Read(ReadStep step) {
  for (const Part& part : parts_) {
    if (part.step == step) part.read();
  }
}

void Page::Add(ReadStep step, std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    if (row.connect) row.connect(context_, row.follows);
    if (row.read) Add(step, [this, read = row.read] { read(context_); });
    if (row.say) wordings_.push_back(row.say);
  }
}

void Page::Add(ReadStep step, std::function<void()> read) {
  parts_.push_back({step, std::move(read)});
}

void Page::Say(const language::Translation& say, std::initializer_list<Wording> wordings) {
  for (const Wording& wording : wordings) {
    if (!wording.text.key.empty()) wording.control.SetCaption(say(wording.text));
    if (!wording.hint.key.empty()) wording.control.SetHint(say(wording.hint));
  }
}

}  // namespace preferences
