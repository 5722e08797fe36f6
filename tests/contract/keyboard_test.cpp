#include "platform/keyboard.h"

#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

TEST(KeyboardTest, AStrokeTogglesALockKey) {
  const std::unique_ptr<Desk> desk = MakeDesk();
  platform::Keyboard& keyboard = desk->Platform().keyboard;
  constexpr std::uint8_t kScroll = 145;
  constexpr std::uint8_t kScanCode = 69;
  const std::uint8_t before = keyboard.State(kScroll);
  ASSERT_LE(before, 1) << "the key is not held down";
  for (int stroke = 1; stroke <= 2; ++stroke) {
    keyboard.Send(kScroll, kScanCode, platform::kKeyExtended);
    keyboard.Send(kScroll, kScanCode, platform::kKeyExtended | platform::kKeyUp);
    const std::uint8_t wanted = stroke == 1 ? 1 - before : before;
    EXPECT_TRUE(desk->LetHappen([&] { return keyboard.State(kScroll) == wanted; })) << stroke;
  }
}

TEST(SoundTest, WhatCannotBePlayedIsSilence) {
  const std::unique_ptr<Desk> desk = MakeDesk();
  platform::Sound& sound = desk->Platform().sound;
  for (const char* path : {"", "C:\\nowhere\\nothing.wav", "\\\\gone\\share\\x.wav", "C:\\"}) {
    sound.Play(path);
  }
}

TEST(SessionTest, APrivilegeThatDoesNotExistIsRefused) {
  const std::unique_ptr<Desk> desk = MakeDesk();
  platform::Session& session = desk->Platform().session;
  EXPECT_TRUE(session.SetPrivilege("SeShutdownPrivilege", platform::Privilege::kEnable));
  EXPECT_TRUE(session.SetPrivilege("SeShutdownPrivilege", platform::Privilege::kDisable));
  EXPECT_FALSE(session.SetPrivilege("SeNoSuchPrivilege", platform::Privilege::kEnable));
}

}  // namespace
}  // namespace contract
