// Bitmaps in memory.
#pragma once

#include <memory>
#include <utility>

#include "platform/canvas.h"
#include "platform/windows/drawing/dib.h"
#include "platform/windows/drawing/font_cache.h"
#include "platform/windows/drawing/gdi_canvas.h"

namespace platform::windows {

class DibBitmap final : public Bitmap {
 public:
  DibBitmap(std::unique_ptr<Dib> dib, FontCache& fonts)
      : dib_(std::move(dib)), canvas_(dib_->dc(), dib_->size(), fonts) {}

  [[nodiscard]] Size Extent() const override { return dib_->size(); }
  [[nodiscard]] Canvas& GetCanvas() override { return canvas_; }
  [[nodiscard]] Colour Pixel(Point at) const override;
  void ReadRow(int y, std::span<Colour> row) const override { dib_->ReadRow(y, row); }

  [[nodiscard]] const Dib& dib() const { return *dib_; }

 private:
  std::unique_ptr<Dib> dib_;  // never null
  GdiCanvas canvas_;          // draws on dib_
};

class Graphics final : public platform::Graphics {
 public:
  // `fonts` outlives this and every bitmap made by it.
  explicit Graphics(FontCache& fonts) : fonts_(fonts) {}

  [[nodiscard]] std::unique_ptr<Bitmap> CreateBitmap(Size size) override;

 private:
  FontCache& fonts_;
};

}  // namespace platform::windows
