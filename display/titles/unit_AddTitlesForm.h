// The editor of the window titles into which the numeric line is posted.
#pragma once

#include <string_view>

#include "alerts/reactions.h"
#include "display/titles/posting.h"
#include "language/language.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/lists.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/placement_saver.h"

namespace display {

inline constexpr std::string_view kAddTitlesForm = "T_frmAddTitles";

// The edited list is kept whichever way the window closes: the posting takes it over, and it is
// stored in the list's file. When it cannot be stored, a balloon says so. A file that cannot be
// read is left as it is.
class T_frmAddTitles final : public toolkit::Form {
 public:
  // Makes the window hidden, with the lines of the file; the modal stack shows it. All arguments
  // outlive the window.
  T_frmAddTitles(toolkit::Application& app, TitlePosting& posting, alerts::Balloons& balloons,
                 const language::Language& language);
  ~T_frmAddTitles() override;

  void Localise() override;

 private:
  void FormCreate();
  void btnAddClick();
  void btnRemoveClick();
  void WindowTitlesListboxDelete();
  void OkBtnClick();
  void FormDestroy();
  void FormEndSession() override;
  // Enables the controls that can be used now, and tells the user why something cannot be done.
  void ShowState();
  // Returns false when the list cannot be written.
  bool Save();

  TitlePosting& posting_;
  alerts::Balloons& balloons_;
  const language::Language& language_;
  TitleFile file_;

  toolkit::ListBox WindowTitlesListbox{*this, "WindowTitlesListbox"};
  toolkit::Button btnRemove{*this, "btnRemove"};
  toolkit::Label AddNewLabel{*this, "AddNewLabel", toolkit::kCaptionText};
  toolkit::Edit AddNew{*this, "AddNew"};
  toolkit::Button btnAdd{*this, "btnAdd"};
  toolkit::Label Note{*this, "Note", toolkit::kWrappedText};
  toolkit::Button OkBtn{*this, "OkBtn"};
  toolkit::PlacementSaver placement_saver_;
};

}  // namespace display
