// Bitmaps in memory: pixels that GDI draws on and the program reads.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "platform/canvas.h"
#include "platform/geometry.h"
#include "platform/windows/drawing/gdi.h"
#include "platform/windows/drawing/gdi_canvas.h"

namespace platform::windows {

// A top-down picture of 32 bits a pixel in a device context of its own; black when it is new.
class Dib {
 public:
  // Returns null when the system is out of memory. Both sides must be above 0.
  [[nodiscard]] static std::unique_ptr<Dib> Make(Size size);

  [[nodiscard]] HDC dc() const { return dc_.get(); }
  [[nodiscard]] Size size() const { return size_; }
  // Returns the colour of a pixel as 0x00BBGGRR. The point must lie inside.
  [[nodiscard]] Colour Pixel(Point at) const;
  // Copies the colours of a row into `row` from the left. `y` must lie inside.
  void ReadRow(int y, std::span<Colour> row) const;

 private:
  Dib(MemoryDc dc, GdiBitmap bitmap, const std::uint32_t* bits, Size size);
  [[nodiscard]] const std::uint32_t* Row(int y) const;

  // The members stand in this order, so that the selection is undone first and the context is
  // destroyed last.
  MemoryDc dc_;
  GdiBitmap bitmap_;
  Selection selected_;
  const std::uint32_t* bits_;  // of bitmap_
  Size size_;
};

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
