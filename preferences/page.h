// A page of the preferences.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "language/language.h"
#include "preferences/context.h"
#include "preferences/places.h"
#include "preferences/row.h"
#include "toolkit/controls/pages.h"

namespace preferences {

// The steps in which the stored settings are read, in their order. A page takes part in one or
// several of them.
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

  // Gives every control on the page the text under its name and, as its hint, the text under its
  // name with "Hint" behind it, as far as there are such texts. Then the rows set their own texts.
  virtual void Localise(const language::Translation& say);

  // Shows the stored values that belong to this step.
  void Read(ReadStep step);

 protected:
  // Adds the rows of a step, in the order in which they are read. Call it once for each row, when
  // the page is made.
  void Add(ReadStep step, std::span<const Row> rows);
  void Add(ReadStep step, std::initializer_list<Row> rows) {
    Add(step, std::span(rows.begin(), rows.size()));
  }
  // Adds rows that are read elsewhere, or have nothing to be read.
  void Add(std::initializer_list<Row> rows) { Add(ReadStep::kEnd, rows); }
  // Adds something else to be read in a step, after the rows added so far.
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

// The pages, each in the file of its name. Each function makes its page in the notebook. Both
// arguments outlive the page.
using MakePage = std::unique_ptr<Page>(toolkit::Notebook& notebook, Context& context);

MakePage MakeGeneralPage;
MakePage MakeGraphColorsPage;
MakePage MakeGraphGridsPage;
MakePage MakeGraphOthersPage;
MakePage MakeTextColorsPage;
MakePage MakeTextOtherPage;
MakePage MakeAdminPage;
MakePage MakeInterfacesPage;
MakePage MakeBandwidthAlertPage;
MakePage MakeNotificationPage;
MakePage MakeOtherPage;
MakePage MakeResetSettingsPage;

}  // namespace preferences
