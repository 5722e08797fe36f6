#include "language/language.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/world.h"

namespace {

namespace text = language::text;
using namespace std::string_literals;

constexpr std::string_view kEnglishTitle = "Security";

class Language : public testing::Test, protected test::World {
 protected:
  void Put(const std::string& name, std::string_view bytes) {
    machine.files.PutBesideProgram("Languages\\" + name + ".lng", bytes);
  }
  void Choose(std::string_view name) { store.Write(settings::setting::Language, name); }
  std::string Title() { return language.Text(text::Security::Title); }
};

TEST_F(Language, WithoutAChoiceAllIsBuiltInEnglishAndNoFileIsRead) {
  Put("", "[Security]\r\nTitle=of a file without a name\r\n");
  EXPECT_EQ(Title(), kEnglishTitle);
  EXPECT_EQ(language.Text(text::Security::St1), "You have to be admin for use this feature.");
  EXPECT_EQ(machine.files.loads, 0);
}

TEST_F(Language, AFileChangesTheTextsThatItHasAndNothingElse) {
  Put("Klingon", "[Security]\r\nTitle=QaD\r\n");
  Choose("Klingon");
  EXPECT_EQ(Title(), "QaD");
  EXPECT_EQ(language.Text(text::Security::CancelButton), "Cancel");
  EXPECT_EQ(language.Text(text::AddTitles::Title), "Window Titles") << "the same key elsewhere";
}

TEST_F(Language, ReadsWhatUsersWriteIntoIniFilesAndADamagedOneIsEnglish) {
  const std::string longest(1000, 'A');
  const std::string good = "[Security]\nTitle=Größe\n";
  using Row = std::tuple<const char*, std::string, std::string_view>;
  for (const auto& [why, bytes, title] : {
           Row{"either case", "[SECURITY]\ntitle=A\n", "A"},
           Row{"blanks everywhere", " [ Security ] \n\t Title \t=  A b  \n", "A b"},
           Row{"quotes keep blanks", "[Security]\nTitle=\" A \"\n", " A "},
           Row{"quotes around quotes", "[Security]\nTitle=\"\"A\" or \"B\"\"\n", "\"A\" or \"B\""},
           Row{"one quote is a character", "[Security]\nTitle=\"\n", "\""},
           Row{"one pair of either goes", "[Security]\nTitle='\"A\"'\n", "\"A\""},
           Row{"two kinds are no pair", "[Security]\nTitle='A\"\n", "'A\""},
           Row{"equals signs in the text", "[Security]\nTitle=A=B\n", "A=B"},
           Row{"a comment", "[Security]\n;Title=A\nTitle=B ; none\n", "B ; none"},
           Row{"a text that is empty on purpose", "[Security]\nTitle=\n", ""},
           Row{"the first of two counts", "[Security]\nTitle=A\nTitle=B\n", "A"},
           Row{"it goes on", "[Security]\nx=1\n[Other]\nTitle=B\n[Security]\nTitle=A\n", "A"},
           Row{"a key before any section", "Title=A\n", kEnglishTitle},
           Row{"a section without end", "[Security]\nx=1\n[Security\nTitle=A\n", kEnglishTitle},
           Row{"no equals sign", "[Security]\nTitle\n", kEnglishTitle},
           Row{"the longest text", "[Security]\nTitle=" + longest, longest},
           Row{"a byte more", "[Security]\nTitle=" + longest + "x", kEnglishTitle},
           Row{"another line was cut", good + "St3=Kennw\xC3"s, "Größe"},
           Row{"4 MiB", good + std::string(4U << 20, ' '), kEnglishTitle},
           Row{"binary", "MZ\x90\0\3\0\0\0"s + good, kEnglishTitle},
           Row{"cut in the text", "[Security]\nSt1=ö\nTitle=Gr\xC3"s, kEnglishTitle},
       }) {
    Put("x", bytes);
    language.Choose("x");
    EXPECT_EQ(Title(), title) << why;
  }
  language.Choose("missing");
  EXPECT_EQ(Title(), kEnglishTitle);
}

TEST_F(Language, ANameDoesNotLeaveTheFolder) {
  machine.files.PutBesideProgram("secret.lng", "[Security]\nTitle=outside\n");
  machine.files.Put("C:\\secret.lng", "[Security]\nTitle=outside\n");
  Put("inside", "[Security]\nTitle=inside\n");
  for (const char* name : {"..\\secret", "../secret", "..\\Languages\\inside", "C:\\secret",
                           "\\secret", ".\\inside", "*", "i?side", "..", "CON", "inside.lng"}) {
    Choose(name);
    EXPECT_EQ(Title(), kEnglishTitle) << name;
  }
  EXPECT_EQ(machine.files.loads, 0);
  Choose("INSIDE");
  EXPECT_EQ(Title(), "inside");
}

TEST_F(Language, AFileThatCouldNotBeReadIsTriedAgainByTheNextWindow) {
  Put("one", "[Security]\nTitle=1\n");
  store.Write(settings::setting::Language, "one");
  machine.notebook.FailCall(4);  // the stored name, the list of the folder, the file
  EXPECT_EQ(Title(), kEnglishTitle);
  EXPECT_FALSE(machine.notebook.FailurePending());
  EXPECT_EQ(Title(), kEnglishTitle) << "a scan costs no file";
  EXPECT_EQ(language.Chosen()(text::Security::Title), "1");
  EXPECT_EQ(Title(), "1");
}

TEST_F(Language, ChoosingALanguageAgainReadsItsEditedFile) {
  Put("one", "[Security]\nTitle=before\n");
  language.Choose("one");
  const language::Translation before = language.Chosen();
  EXPECT_EQ(before(text::Security::Title), "before");
  Put("one", "[Security]\nTitle=after\n");
  language.Choose("one");
  EXPECT_EQ(Title(), "after");
  EXPECT_EQ(before(text::Security::Title), "before") << "what a window is just taking over";
  EXPECT_EQ(store.Read(settings::setting::Language), "one");
}

TEST_F(Language, AFormatKeepsItsPlaceHolders) {
  using Row = std::tuple<const char*, std::string, const char*>;
  for (const auto& [why, file, caption] : {
           Row{"translated", "seit %s", "seit 1.2.2024 12:00"},
           Row{"lost", "seit", "Data transferred since 1.2.2024 12:00"},
           Row{"one too many", "seit %s und %s", "Data transferred since 1.2.2024 12:00"},
           Row{"other signs are no place-holders", "%d %s %", "%d 1.2.2024 12:00 %"},
       }) {
    SCOPED_TRACE(why);
    Put("x", "[BandwidthStatisticsForm]\nB8=" + file + "\n[Security]\nTitle=%s");
    language.Choose("x");
    EXPECT_EQ(language.Text(text::BandwidthStatisticsForm::B8, {"1.2.2024 12:00"}), caption);
    EXPECT_EQ(Title(), kEnglishTitle) << "where English has none";
  }
  EXPECT_EQ(language::Filled("%s-%s", {"%s", "b"}), "%s-b") << "a value is no format";
}

TEST_F(Language, OffersEnglishFirstAndThenTheFilesFound) {
  using Names = std::vector<std::string>;
  EXPECT_EQ(language.Names(), Names{"English"}) << "without any file";
  Put("Turkish", "");
  Put("English", "");
  Put("Deutsch & mehr", "");
  machine.files.PutBesideProgram("Languages\\readme.txt", "");
  const Names names = language.Names();
  EXPECT_EQ(names, (Names{"English", "Deutsch & mehr", "Turkish"}));

  EXPECT_EQ(language.IndexIn(names), 0U) << "nothing stored";
  Choose("turkish");
  EXPECT_EQ(language.IndexIn(names), 2U);
  Choose("gone");
  EXPECT_EQ(language.IndexIn(names), 0U) << "what is shown is English";
}

}  // namespace
