// A page of the preferences.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "language/language.h"
#include "preferences/context.h"
#include "preferences/places.h"
#include "preferences/row.h"
#include "toolkit/controls/notebook.h"

namespace preferences {

// The steps of the settings read, in their order; a page has its part in one or several.
enum class ReadStep {
  kBevels,
  kGrids,
  kGeneral,
  kTransparency,
  kGraphColours,
  kIconKind,
  kGraphOther,
  kScale,
  kIconFile,
  kNumericColours,
  kNumericLine,
  kLock,
  kWindowTitle,
  kExitAndFade,
  kTicker,
  kBandwidthAlert,
  kNotificationRule,
  kNotificationsActive,
  kLeds,
  kInterfaces,
  kEnd,
};

class Page : public toolkit::NotebookPage {
 public:
  Page(toolkit::Notebook& notebook, std::string_view name, Context& context)
      : NotebookPage(notebook, name), context_(context) {}

  // Gives every control on the page the text under its name and, as its hint, that under its name
  // with "Hint" behind it, as far as there are such; then the rows theirs.
  virtual void Localise(const language::Translation& say);

  // Shows what is stored, as far as it belongs to this step.
  void Read(ReadStep step);

 protected:
  // Once, when the page is made: the rows of a step, in the order in which they are read.
  void Add(ReadStep step, const std::vector<Row>& rows);
  // Rows that are read elsewhere, or have nothing to be read.
  void Add(const std::vector<Row>& rows) { Add(ReadStep::kEnd, rows); }
  // What else is read in a step, behind the rows so far.
  void Add(ReadStep step, std::function<void()> read);

  Context& context_;

 private:
  struct Part {
    ReadStep step;
    std::function<void()> read;
  };
  std::vector<Part> parts_;
  std::vector<Row::Words> says_;
};

}  // namespace preferences
