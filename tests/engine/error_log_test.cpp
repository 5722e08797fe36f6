#include "engine/error_log.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tests/world.h"

namespace {

class ErrorLog : public testing::Test, protected test::Computer {
 protected:
  std::string File(const char* name = "err.log") {
    return machine.files.BytesBesideProgram(name).value_or("(none)");
  }

  std::vector<std::string> memo;
  engine::ErrorLog log{machine.files, machine.locale, memo};
  const std::string folder = machine.files.ProgramFolder();
};

TEST_F(ErrorLog, GrowsByOneLineAMessage) {
  log.Append("one\r\ntwo\nthree\rfour\n");
  log.Append("\u00FCmlauts and half a character: \xC3");
  log.Append("");
  EXPECT_EQ(File(), "one two three four \r\n\u00FCmlauts and half a character: \uFFFD\r\n\r\n");
  EXPECT_EQ(machine.files.loads + machine.files.saves, 1) << "made once, and then only appended to";
}

TEST_F(ErrorLog, KeepsTheLinesOfAFileThatIsThere) {
  memo = {"what the memo held before"};
  using Row = std::tuple<const char*, std::string, std::string>;
  for (const auto& [why, bytes, after] : {
           Row{"empty", "", "new\r\n"},
           Row{"no line end at the end", "a\r\nb", "a\r\nb\r\nnew\r\n"},
           Row{"other line ends", "a\nb\rc\n", "a\r\nb\r\nc\r\nnew\r\n"},
           Row{"an encoding of its own", "\xFC\r\n", "\xC3\xBC\r\nnew\r\n"},
           Row{"lines that the user took out stay out", "b", "b\r\nnew\r\n"},
       }) {
    machine.files.PutBesideProgram("err.log", bytes);
    log.Append("new");
    EXPECT_EQ(File(), after) << why;
  }
  machine.files.Remove(folder + "err.log");
  log.Append("d");
  EXPECT_EQ(File(), "b\r\nnew\r\nd\r\n") << "a deleted one comes back";
  machine.files.PutBesideProgram("err.log", "a\r\n");
  machine.notebook.FailCall(1);
  log.Append("b");
  EXPECT_EQ(File(), "a\r\n") << "one that cannot be read is not overwritten";
  log.Append("c");
  EXPECT_EQ(File(), "a\r\nb\r\nc\r\n");
}

TEST_F(ErrorLog, WhatCannotBeWrittenIsKeptForLater) {
  const std::string full = std::string(engine::kErrorLogLimit - 2, 'x');
  using Row = std::tuple<const char*, std::string, std::string, std::string>;
  for (const auto& [why, before, refuses, after] : {
           Row{"the folder", "", folder, "a\r\nb\r\nc\r\n"},
           Row{"a file held", "old", folder + "err.log", "old\r\na\r\nb\r\nc\r\n"},
           Row{"the full log is not put aside", full, folder + "err.old.log", "a\r\nb\r\nc\r\n"},
       }) {
    for (const bool in_this_run : {false, true}) {
      SCOPED_TRACE(std::string(why) + (in_this_run ? ", written in this run" : ""));
      memo.clear();
      engine::ErrorLog fresh(machine.files, machine.locale, memo);
      machine.files.Remove(folder + "err.log");
      const std::string there = before.empty() ? "(none)" : before + "\r\n";
      if (in_this_run && !before.empty()) fresh.Append(before);
      if (!in_this_run && !before.empty()) machine.files.PutBesideProgram("err.log", there);
      machine.files.SetHeld(refuses, true);
      machine.files.SetWritable(refuses, false);
      fresh.Append("a");
      fresh.Append("b");
      EXPECT_EQ(File(), there);
      machine.files.SetHeld(refuses, false);
      machine.files.SetWritable(refuses, true);
      fresh.Append("c");
      EXPECT_EQ(File(), after);
    }
  }
}

TEST_F(ErrorLog, OfWhatCannotBeWrittenTheFirstIsKept) {
  log.Append("old");
  machine.files.SetHeld(folder + "err.log", true);
  log.Append("the cause");
  for (int more = 0; more < 100; ++more) log.Append(std::string(1000, 'x'));
  EXPECT_LT(memo.size(), 80U);
  machine.files.SetHeld(folder + "err.log", false);
  log.Append("new");
  EXPECT_TRUE(File().starts_with("old\r\nthe cause\r\nx"));
  EXPECT_TRUE(File().ends_with("x\r\nnew\r\n"));
}

TEST_F(ErrorLog, AFullLogIsPutAsideAndANewOneBegins) {
  const std::string full = std::string(engine::kErrorLogLimit - 7, 'x') + "\r\n";
  machine.files.PutBesideProgram("err.log", full);
  log.Append("123");
  EXPECT_EQ(File(), full + "123\r\n") << "this one fits, just";
  log.Append("new");
  EXPECT_EQ(File(), "new\r\n");
  EXPECT_EQ(File("err.old.log"), full + "123\r\n");
  const std::string larger(engine::kErrorLogLimit + 1, 'x');
  machine.files.PutBesideProgram("err.log", larger);
  log.Append("newer");
  EXPECT_EQ(File(), "newer\r\n");
  EXPECT_EQ(File("err.old.log"), larger) << "in the place of the one before";
}

}  // namespace
