// The fuzzer of one target, which the variable FUZZ_TARGET of the environment names.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tools/fuzz/targets.h"

namespace {

const fuzz::Target& Chosen() {
  const char* const name = std::getenv("FUZZ_TARGET");
  for (const fuzz::Target& target : fuzz::Targets()) {
    if (name != nullptr && target.name == name) return target;
  }
  std::fputs("FUZZ_TARGET names no target\n", stderr);
  std::exit(2);
}

}  // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {  // NOLINT
  static const fuzz::Target& target = Chosen();
  target.read({reinterpret_cast<const char*>(data), size});
  return 0;
}
