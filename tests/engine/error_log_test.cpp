#include "engine/error_log.h"

#include <gtest/gtest.h>

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
  struct Row {
    const char* why;
    std::string bytes, after;
  };
  const Row rows[] = {
      {"empty", "", "new\r\n"},
      {"no line end at the end", "a\r\nb", "a\r\nb\r\nnew\r\n"},
      {"other line ends", "a\nb\rc\n", "a\r\nb\r\nc\r\nnew\r\n"},
      {"an encoding of its own", "\xFC\r\n", "\xC3\xBC\r\nnew\r\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    memo = {"what the memo held before"};
    machine.files.PutBesideProgram("err.log", row.bytes);
    engine::ErrorLog(machine.files, machine.locale, memo).Append("new");
    EXPECT_EQ(File(), row.after);
  }
}

TEST_F(ErrorLog, WhatCannotBeWrittenIsKeptForLater) {
  const std::string full = std::string(engine::kErrorLogLimit - 2, 'x') + "\r\n";
  struct Row {
    const char* why;
    std::string before;  // none: no file
    std::string refuses, after;
  };
  const Row rows[] = {
      {"the folder", "", folder, "a\r\nb\r\nc\r\n"},
      {"a file held", "old\r\n", folder + "err.log", "old\r\na\r\nb\r\nc\r\n"},
      {"the full log cannot be put aside", full, folder + "err.old.log", "a\r\nb\r\nc\r\n"},
  };
  for (const Row& row : rows) {
    for (const bool wrote_before : {false, true}) {
      SCOPED_TRACE(std::string(row.why) + (wrote_before ? ", written in this run" : ""));
      memo.clear();
      engine::ErrorLog fresh(machine.files, machine.locale, memo);
      machine.files.Remove(folder + "err.log");
      if (wrote_before && row.before.size() > 2) {
        fresh.Append(std::string_view(row.before).substr(0, row.before.size() - 2));
      } else if (!row.before.empty()) {
        machine.files.PutBesideProgram("err.log", row.before);
      }
      const auto refuse = [&](bool refuses) {
        machine.files.SetHeld(row.refuses, refuses);
        machine.files.SetWritable(row.refuses, !refuses);
      };
      refuse(true);
      fresh.Append("a");
      fresh.Append("b");
      EXPECT_EQ(File(), row.before.empty() ? "(none)" : row.before);
      refuse(false);
      fresh.Append("c");
      EXPECT_EQ(File(), row.after);
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

TEST_F(ErrorLog, LinesThatTheUserTookOutStayOutAndADeletedFileComesBack) {
  log.Append("a");
  log.Append("b");
  machine.files.PutBesideProgram("err.log", "b");
  log.Append("c");
  EXPECT_EQ(File(), "b\r\nc\r\n");
  machine.files.Remove(folder + "err.log");
  log.Append("d");
  EXPECT_EQ(File(), "b\r\nc\r\nd\r\n");
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

TEST_F(ErrorLog, AFileThatCannotBeReadIsNotOverwritten) {
  machine.files.PutBesideProgram("err.log", "a\r\n");
  machine.notebook.FailCall(1);
  log.Append("b");
  EXPECT_EQ(File(), "a\r\n");
  log.Append("c");
  EXPECT_EQ(File(), "a\r\nb\r\nc\r\n");
}

}  // namespace
