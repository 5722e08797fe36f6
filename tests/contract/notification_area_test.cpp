#include "platform/notification_area.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/contract/desk.h"

namespace contract {
namespace {

class NotificationAreaTest : public testing::Test, public platform::TrayIconEvents {
 protected:
  void OnTrayClick() override { ++clicks_; }
  void OnTrayMenu(platform::Point at) override { menu_at_ = at; }

  std::unique_ptr<platform::Bitmap> Picture(int side) {
    auto picture = desk_->Platform().graphics.CreateBitmap({side, side});
    picture->GetCanvas().Fill({0, 0, side, side}, 0x00FF00);
    return picture;
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
  int clicks_ = 0;
  platform::Point menu_at_;
  std::unique_ptr<platform::TrayIcon> icon_ = desk_->Platform().notification_area.CreateIcon(*this);
};

TEST_F(NotificationAreaTest, AnIconReportsItsClicksWhileItExists) {
  icon_->SetPicture(*Picture(16));
  desk_->ClickTray();
  EXPECT_EQ(clicks_, 1);
  desk_->RightClickTray({-20, 300});
  EXPECT_EQ(menu_at_, (platform::Point{-20, 300})) << "a monitor may lie left of the first";
}

TEST_F(NotificationAreaTest, TakesPicturesTextsAndBalloonsOfEverySize) {
  std::string long_text;
  for (int i = 0; i < 300; ++i) long_text += "\xF0\x9F\x93\xB6";  // of two UTF-16 units each
  for (const char* hint : {"", "short", "\xC3\xBC\xE4\xB8\xAD"}) {
    icon_->SetHint(hint);
    icon_->SetHint(long_text);
    for (const int side : {16, 20, 32, 48}) {
      icon_->SetPicture(*Picture(side));
      icon_->SetPicture(*Picture(side), 0x00FF00);
    }
    icon_->ShowBalloon(long_text, long_text, platform::BalloonIcon::kWarning, 30);
    icon_->ShowBalloon("", "", platform::BalloonIcon::kNone, 0);
  }
  EXPECT_GE(icon_->PictureSize(), 16);
}

TEST_F(NotificationAreaTest, AnIconMayGoAndComeAgain) {
  icon_->SetPicture(*Picture(16));
  icon_.reset();
  icon_ = desk_->Platform().notification_area.CreateIcon(*this);
  icon_->SetHint("again");
  icon_->SetPicture(*Picture(16));
  desk_->ClickTray();
  EXPECT_EQ(clicks_, 1);
}

}  // namespace
}  // namespace contract
