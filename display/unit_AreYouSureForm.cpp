#include "display/unit_AreYouSureForm.h"

#include "language/texts.h"
#include "toolkit/controls/layout.h"

namespace display {
namespace {

namespace setting = settings::setting;
namespace text = language::text::AreYouSure;

constexpr platform::Size kClientSize{277, 102};  // design pixels

}  // namespace

T_frmAreYouSure::T_frmAreYouSure(toolkit::Application& app, settings::Store& store,
                                 const language::Language& language)
    : Form(app, kAreYouSureForm, platform::Frame::kDialog), store_(store), language_(language) {
  SetClientSize(kClientSize);
  toolkit::ApplyLayout({
      {Image1, {12, 10, toolkit::kSignSize, toolkit::kSignSize}},
      {lblQuestion1, {60, 10, 205, 14}},
      {lblQuestion2, {60, 25, 205, 14}},
      {AskCheck, {60, 46, 211, 17}},
      {btnYes, {110, 70, 75, 25}},
      {btnNo, {190, 70, 75, 25}},
  });
  btnYes.SetDefault(true);
  btnYes.ModalResult = toolkit::ModalResult::kYes;
  btnNo.ModalResult = toolkit::ModalResult::kNo;
  FormCreate();
}

void T_frmAreYouSure::FormCreate() {
  Localise();
  CentreOnScreen();
  AskCheck.SetChecked(store_.Read(setting::AskOnExit));
  AskCheck.OnClick = [this] { AskCheckClick(); };
}

void T_frmAreYouSure::Localise() {
  const language::Translation say = language_.Chosen();
  SetCaption(say(text::Title));
  language::SayNames(*this, text::Title.section, say);
}

// The check box comes first in reading order, but the focus starts on the answer.
void T_frmAreYouSure::FormShow() { btnYes.SetFocus(); }

// The value is stored at once, whatever the answer: the box is a setting of its own.
void T_frmAreYouSure::AskCheckClick() { store_.Write(setting::AskOnExit, AskCheck.Checked()); }

}  // namespace display
