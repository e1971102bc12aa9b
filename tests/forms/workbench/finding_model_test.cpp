// SPDX-License-Identifier: MIT
#include "forms/workbench/finding_model.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

using check::Finding;
using check::FindingState;
using check::Severity;

Finding Make(const char* rule, Severity severity, const char* file, int line, const char* message) {
  Finding finding;
  finding.Rule = rule;
  finding.Severity = severity;
  finding.File = file;
  finding.Line = line;
  finding.Message = message;
  return finding;
}

class Findings : public ::testing::Test {
 protected:
  Findings() {
    Finding suppressed = Make("no-equals", Severity::Warning, "DATA/a.ini", 9, "hidden");
    suppressed.State = FindingState::Suppressed;
    model.Show({Make("good-part", Severity::Error, "DATA/b.ini", 12, "good does not exist: x"),
                Make("no-equals", Severity::Warning, "DATA/b.ini", 2, "line without ="),
                Make("no-equals", Severity::Warning, "DATA/a.ini", 7, "line without ="),
                suppressed});
  }

  QString Text(int group, int row, int column) {
    const QModelIndex parent = filter.index(group, 0);
    return filter.index(row, column, parent).data().toString();
  }
  QString Title(int group) { return filter.index(group, 0).data().toString(); }
  int Rows(int group) { return filter.rowCount(filter.index(group, 0)); }

  LanguageChoice choice;
  FindingModel model{choice};
  FindingFilter filter{model};
};

TEST_F(Findings, AreGroupedByRuleAndThoseThatDoNotCountAreNotShown) {
  ASSERT_EQ(filter.rowCount(), 2);

  EXPECT_EQ(Title(0), "good-part (1)");
  EXPECT_EQ(Title(1), "no-equals (2)");
  EXPECT_EQ(Text(0, 0, FindingModel::PlaceColumn), "DATA/b.ini:12");
  EXPECT_EQ(Text(0, 0, FindingModel::SeverityColumn), "Error");
  EXPECT_EQ(Text(0, 0, FindingModel::MessageColumn), "good does not exist: x");
}

TEST_F(Findings, AreGroupedByFile) {
  model.GroupBy(FindingModel::Grouping::ByFile);

  ASSERT_EQ(filter.rowCount(), 2);
  EXPECT_EQ(Title(0), "DATA/a.ini (1)");
  EXPECT_EQ(Title(1), "DATA/b.ini (2)");
}

TEST_F(Findings, OfASeverityThatIsNotWantedAreGoneWithTheirGroup) {
  filter.Want(Severity::Warning, false);

  ASSERT_EQ(filter.rowCount(), 1);
  EXPECT_EQ(Title(0), "good-part (1)");
}

TEST_F(Findings, AreFilteredByAnyOfTheirTextsWhateverTheCase) {
  filter.WantText("A.INI");

  ASSERT_EQ(filter.rowCount(), 1);
  EXPECT_EQ(Rows(0), 1);
  EXPECT_EQ(Text(0, 0, FindingModel::PlaceColumn), "DATA/a.ini:7");
}

TEST_F(Findings, AreSortedByFileAndThenByTheNumberOfTheirLine) {
  model.Show({Make("no-equals", Severity::Note, "DATA/a.ini", 10, ""),
              Make("no-equals", Severity::Note, "DATA/a.ini", 9, "")});
  filter.sort(FindingModel::PlaceColumn);

  EXPECT_EQ(Text(0, 0, FindingModel::PlaceColumn), "DATA/a.ini:9");
  EXPECT_EQ(Text(0, 1, FindingModel::PlaceColumn), "DATA/a.ini:10");
}

TEST_F(Findings, AGroupIsNoFinding) {
  EXPECT_EQ(model.FindingAt(model.index(0, 0)), nullptr);
  EXPECT_EQ(model.FindingAt({}), nullptr);
  EXPECT_EQ(model.parent(model.index(0, 0, model.index(1, 0))), model.index(1, 0));
}

}  // namespace
}  // namespace orrerix
