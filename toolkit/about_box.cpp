#include "toolkit/about_box.h"

#include <utility>

#include "toolkit/controls/layout.h"

namespace toolkit {
namespace {

constexpr platform::Size kClientSize{300, 124};  // design pixels
constexpr int kProductFontHeight = 15;

}  // namespace

AboutBox::AboutBox(Application& app, const ImageList& images, std::function<AboutTexts()> texts)
    : Form(app, AboutBox::kName, platform::Frame::kDialog),
      texts_(std::move(texts)),
      Image1(*this, "Image1", images) {
  SetClientSize(kClientSize);
  ApplyLayout({
      {Image1, {12, 12, kSignSize, kSignSize}},
      {lblProduct, {60, 10, 228, 20}},
      {lblVersion, {60, 32, 228, 15}},
      {lblDescription, {60, 52, 228, 30}},
      {OkBtn, {213, 90, 75, 25}},
  });
  platform::FontStyle font = lblProduct.Font();
  font.height = kProductFontHeight;
  font.bold = true;
  lblProduct.SetFont(font);
  OkBtn.SetDefault(true);
  OkBtn.ModalResult = ModalResult::kOk;
  Localise();
  CentreOnScreen();
}

void AboutBox::Localise() {
  const AboutTexts texts = texts_();
  SetCaption(texts.title);
  lblProduct.SetCaption(texts.product);
  lblVersion.SetCaption(texts.version);
  lblDescription.SetCaption(texts.description);
  OkBtn.SetCaption(texts.ok);
}

}  // namespace toolkit
