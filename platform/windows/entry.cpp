#include "platform/windows/entry.h"

#include "platform/windows/win32.h"

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*arguments*/,
                    int /*show*/) {
  return platform::windows::Main();
}
