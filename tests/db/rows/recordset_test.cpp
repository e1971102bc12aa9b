// SPDX-License-Identifier: MIT
#include "db/rows/recordset.h"

#include <limits>
#include <new>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "db/rows/field_of.h"
#include "support/failing_memory.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A table with a field of every kind, keyed by `name`.
class OpenRecordset : public ::testing::Test {
 protected:
  OpenRecordset() {
    Field id = Of("ID", FieldType::Long);
    id.IsUniqueID = true;
    Field sized = Of("sized", FieldType::Text, true);
    sized.Size = 5;
    db = DBEngine::CreateInMemory(mustWork);
    db.CreateTable(mustWork, {"t",
                              {id, Of("name", FieldType::Text, true), sized,
                               Of("filled", FieldType::Text), Of("memo", FieldType::Memo, true),
                               Of("filledmemo", FieldType::Memo), Of("yes", FieldType::Boolean),
                               Of("byte", FieldType::Byte), Of("integer", FieldType::Integer),
                               Of("long", FieldType::Long), Of("real", FieldType::Double)},
                              Index{"name", {"name"}}});
  }

  void Add(const std::string& name, std::string_view field = {}, const Value& value = {}) {
    Recordset rows = db.OpenTable(mustWork, "t");
    rows.AddNew();
    rows["name"] = name;
    if (!field.empty()) rows[field] = value;
    rows.Update();
  }

  Recordset All(FailureSink& sink, RecordsetType type = RecordsetType::Snapshot) {
    return db.OpenRecordset(sink, "SELECT * FROM t", {}, type);
  }

  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (Recordset rows = All(mustWork); !rows.AtEnd(); rows.MoveNext()) {
      names.push_back(rows["name"].Get().Text());
    }
    return names;
  }

  FailTest mustWork;
  RecordFailures failures;
  Database db;
};

struct AssignmentCase {
  std::string_view Field;
  Value Assigned;
  Value Kept;  // Null if the assignment fails
  int Number;  // of the failure, or 0
};

class Assigning : public OpenRecordset, public ::testing::WithParamInterface<AssignmentCase> {};

TEST_P(Assigning, KeepsAValueOrFails) {
  const auto& [field, assigned, kept, number] = GetParam();
  Recordset rows = db.OpenTable(failures, "t");
  rows.AddNew();
  rows["name"] = "row";

  rows[field] = assigned;
  rows.Update();

  if (number == 0) {
    EXPECT_THAT(failures.Numbers(), IsEmpty());
  } else {
    EXPECT_THAT(failures.Numbers(), ElementsAre(number));
  }
  EXPECT_EQ(All(mustWork)[field].Get(), kept);
}

const std::string kLong(255, 'x');
constexpr double kInfinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(Texts, Assigning,
                         ::testing::Values(AssignmentCase{"sized", "fünfe", "fünfe", 0},
                                           AssignmentCase{"sized", "sechse", Value(), 3163},
                                           AssignmentCase{"sized", "", "", 0},
                                           AssignmentCase{"sized", 12345, "12345", 0},
                                           AssignmentCase{"sized", 123456, Value(), 3163},
                                           AssignmentCase{"sized", 0.5, "0.5", 0},
                                           AssignmentCase{"filled", kLong, kLong, 0},
                                           AssignmentCase{"filled", kLong + "x", Value(), 3163},
                                           AssignmentCase{"filled", "", Value(), 3315},
                                           AssignmentCase{"filledmemo", "", Value(), 3315},
                                           AssignmentCase{"memo", "", "", 0},
                                           AssignmentCase{"memo", kLong + kLong, kLong + kLong, 0},
                                           AssignmentCase{"filled", Value(), Value(), 0}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, Assigning,
    ::testing::Values(
        AssignmentCase{"byte", 255.5, Value(), 6}, AssignmentCase{"byte", 255.4, 255, 0},
        AssignmentCase{"byte", -1, Value(), 6}, AssignmentCase{"byte", -0.5, 0, 0},
        AssignmentCase{"integer", 32767, 32767, 0}, AssignmentCase{"integer", 32768, Value(), 6},
        AssignmentCase{"integer", -32769, Value(), 6}, AssignmentCase{"integer", 2.5, 2, 0},
        AssignmentCase{"integer", 3.5, 4, 0}, AssignmentCase{"long", 2147483647, 2147483647, 0},
        AssignmentCase{"long", 2147483648.0, Value(), 6}, AssignmentCase{"long", -1.5, -2, 0},
        AssignmentCase{"long", "12 apples", 12, 0}, AssignmentCase{"long", "", 0, 0},
        AssignmentCase{"long", kInfinity, Value(), 6}, AssignmentCase{"real", 0.1, 0.1, 0},
        AssignmentCase{"real", kInfinity, Value(), 6}, AssignmentCase{"real", "1.5", 1.5, 0},
        AssignmentCase{"real", Value(), Value(), 0}, AssignmentCase{"yes", true, 1, 0},
        AssignmentCase{"yes", -1, 1, 0}, AssignmentCase{"yes", 0, 0, 0}));

TEST_F(OpenRecordset, AFailedAssignmentLeavesTheFieldAsItWas) {
  Add("row", "sized", "abc");
  Recordset rows = All(failures, RecordsetType::Dynaset);

  rows.Edit();
  rows["sized"] = "too long";
  rows.Update();

  EXPECT_EQ(failures.Failures[0].Description,
            "The field is too small to accept the amount of data you attempted to add.");
  EXPECT_EQ(All(mustWork)["sized"].Get(), "abc");
}

TEST_F(OpenRecordset, AFieldGrowsForATextThatIsSetWhateverItsLength) {
  Add("a", "sized", "12345");
  Recordset rows = All(failures, RecordsetType::Dynaset);

  rows.Edit();
  rows.SetFieldText("sized", "Süßholz");
  EXPECT_EQ(rows["sized"].Get(), Value("Süßholz"));
  rows["sized"] = "12345678";  // one more than the field has grown to
  rows.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3163));
  EXPECT_EQ(All(mustWork)["sized"].Get(), Value("Süßholz"));
}

TEST_F(OpenRecordset, AnyOtherTroubleOfSettingATextIsPassedOver) {
  Add("a", "filled", "x");
  Recordset rows = All(failures, RecordsetType::Dynaset);

  rows.SetFieldText("filled", "nothing is edited");
  rows.Edit();
  rows.SetFieldText("filled", "");
  rows.SetFieldText("missing", "x");
  rows.SetFieldText("byte", "256");

  EXPECT_THAT(failures.Failures, IsEmpty());
  EXPECT_EQ(rows["filled"].Get(), Value("x"));
  EXPECT_TRUE(rows["byte"].IsNull());
}

TEST_F(OpenRecordset, AnEmptyTextNamesItsTableAndField) {
  Recordset rows = db.OpenTable(failures, "t");
  rows.AddNew();
  rows["filled"] = "";

  EXPECT_EQ(failures.Failures[0].Description, "Field 't.filled' can't be a zero-length string.");
}

TEST_F(OpenRecordset, FieldsThatAreNeverAssignedAreNullAndBooleansFalse) {
  Add("row");

  Recordset rows = All(mustWork);
  for (const char* field : {"sized", "filled", "memo", "byte", "integer", "long", "real"}) {
    EXPECT_TRUE(rows[field].IsNull()) << field;
  }
  EXPECT_EQ(rows["yes"].Get(), 0);
}

TEST_F(OpenRecordset, AGeneratedKeyIsARandomPositiveNumber) {
  for (int i = 0; i < 20; ++i) Add(std::to_string(i));
  Add("own", "ID", 7);

  std::vector<std::int64_t> numbers;
  for (Recordset rows = All(mustWork); !rows.AtEnd(); rows.MoveNext()) {
    numbers.push_back(*rows["ID"].Get().Whole());
    EXPECT_GT(numbers.back(), 0);
    EXPECT_LE(numbers.back(), 2147483647);
  }
  EXPECT_EQ(numbers.back(), 7);
  EXPECT_NE(numbers[0], numbers[1]);
}

TEST_F(OpenRecordset, ASecondRowOfTheSameKeyFailsAtUpdateAndIsDropped) {
  Add("Fox");
  Recordset rows = db.OpenTable(failures, "t");
  rows.AddNew();
  rows["name"] = "fOX";
  EXPECT_THAT(failures.Numbers(), IsEmpty());

  rows.Update();
  rows.Update();

  // The second Update finds the recordset out of its editing state.
  EXPECT_THAT(failures.Numbers(), ElementsAre(3022, 3020));
  EXPECT_EQ(failures.Failures[0].Description,
            "The changes you requested were not successful because they would create duplicate "
            "values in the index.");
  EXPECT_THAT(Names(), ElementsAre("Fox"));
}

TEST_F(OpenRecordset, ANullInAKeyFailsAtUpdate) {
  Recordset rows = db.OpenTable(failures, "t");
  rows.AddNew();
  rows.Update();

  ASSERT_THAT(failures.Numbers(), ElementsAre(3058));
  EXPECT_EQ(failures.Failures[0].Description, "Index or primary key can't contain a Null value.");
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(OpenRecordset, AFailedChangeLeavesTheOldRow) {
  Add("a");
  Add("b");
  Recordset rows = All(failures, RecordsetType::Dynaset);

  rows.Edit();
  rows["name"] = "B";
  rows.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3022));
  EXPECT_EQ(rows["name"].Get(), "a");
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
}

TEST_F(OpenRecordset, ReadingWhereNoRowIsFails) {
  Recordset rows = All(failures);

  EXPECT_TRUE(rows.AtEnd());
  EXPECT_TRUE(rows["name"].IsNull());
  rows.MoveNext();

  ASSERT_THAT(failures.Numbers(), ElementsAre(3021, 3021));
  EXPECT_EQ(failures.Failures[0].Description, "No current record.");
}

TEST_F(OpenRecordset, EditingWhereNoRowIsFails) {
  Recordset rows = All(failures, RecordsetType::Dynaset);

  rows.Edit();
  rows["name"] = "a";
  rows.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3021, 3020, 3020));
}

TEST_F(OpenRecordset, AFieldThatIsNotThereFails) {
  Add("a");
  Recordset rows = All(failures, RecordsetType::Dynaset);

  EXPECT_TRUE(rows["missing"].IsNull());
  rows.Edit();
  rows["missing"] = 5;
  rows.CancelUpdate();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3265, 3265));
}

TEST_F(OpenRecordset, NullWillNotDoWhereATextOrANumberIsRequired) {
  Add("12");
  Recordset rows = All(mustWork);

  EXPECT_EQ(rows["name"].RequireText(), "12");
  EXPECT_EQ(rows["name"].RequireLong(), 12);
  EXPECT_EQ(rows["name"].RequireNumber(), 12);
  try {
    rows["long"].RequireLong();
    ADD_FAILURE() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number, 94);
    EXPECT_EQ(failure.Description, "Invalid use of Null");
  }
}

TEST_F(OpenRecordset, WalksRowsInTheOrderOfTheirInsertion) {
  for (const char* name : {"c", "a", "b"}) Add(name);

  EXPECT_THAT(Names(), ElementsAre("c", "a", "b"));
  Recordset rows = All(mustWork);
  rows.MoveNext();
  rows.MoveNext();
  EXPECT_EQ(rows["name"].Get(), "b");
  rows.MoveFirst();
  EXPECT_EQ(rows["name"].Get(), "c");
  EXPECT_EQ(rows.RecordCount(), 3u);
}

TEST_F(OpenRecordset, AChangeIsSeenByTheRecordsetThatMadeIt) {
  Add("a");
  Recordset rows = All(mustWork, RecordsetType::Dynaset);

  rows.Edit();
  rows["long"] = 5;
  EXPECT_EQ(rows["long"].Get(), 5);
  rows.Update();

  EXPECT_EQ(rows["long"].Get(), 5);
  EXPECT_EQ(All(mustWork)["long"].Get(), 5);
}

TEST_F(OpenRecordset, ACancelledEditLeavesNothing) {
  Add("a");
  Recordset rows = All(mustWork, RecordsetType::Dynaset);

  rows.Edit();
  rows["long"] = 5;
  rows.CancelUpdate();
  rows.AddNew();
  rows["name"] = "b";
  rows.CancelUpdate();

  EXPECT_TRUE(rows["long"].IsNull());
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(OpenRecordset, ASnapshotCannotBeEdited) {
  Add("a");
  Recordset rows = All(failures);

  rows.AddNew();
  rows.Edit();

  EXPECT_EQ(failures.Numbers().size(), 2u);
}

TEST_F(OpenRecordset, StaysReadableWhenItsDatabaseIsClosed) {
  Add("a");
  Recordset rows = All(failures, RecordsetType::Dynaset);

  db.Close();

  EXPECT_EQ(rows["name"].Get(), "a");
  rows.Edit();
  rows["long"] = 5;
  rows.Update();
  EXPECT_THAT(failures.Numbers(), ElementsAre(3420));
}

TEST_F(OpenRecordset, ARecordsetThatWasNeverOpenedIsAtItsEnd) {
  Recordset rows;

  EXPECT_TRUE(rows.AtEnd());
  rows.AddNew();
  rows.MoveNext();
  rows["x"] = 5;
  rows.Update();
  EXPECT_TRUE(rows["x"].IsNull());
}

TEST_F(OpenRecordset, TextsMayHoldAnyCharacter) {
  using namespace std::string_literals;
  for (const std::string& name : {"it's"s, "a\"b"s, "a\0b"s, "[x]"s, "€"s}) Add(name);

  EXPECT_THAT(Names(), ElementsAre("it's", "a\"b", "a\0b"s, "[x]", "€"));
}

TEST_F(OpenRecordset, AStepThatFailsLeavesItsFieldAndTheNextStatementRuns) {
  Recordset rows = db.OpenTable(failures, "t");
  rows.AddNew();
  rows["name"] = "a";
  rows["memo"] = "before";
  rows["memo"] = []() -> Value { throw RuntimeFailure(failure_number::kOverflow); };
  rows["filled"] = [] { return std::string("next"); };
  rows.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(failure_number::kOverflow));
  Recordset stored = All(mustWork);
  EXPECT_EQ(stored["memo"].Get(), Value("before"));
  EXPECT_EQ(stored["filled"].Get(), Value("next"));
}

TEST_F(OpenRecordset, ATextWithoutMemoryIsAFailureOfItsAssignmentOnly) {
  const std::string text(5000, 'x');
  Recordset rows = db.OpenTable(failures, "t");
  rows.AddNew();
  rows["name"] = "a";
  {
    const FailingSizes lack(5000, 5100);
    rows["memo"] = text;
  }
  rows["filled"] = "next";
  rows.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(failure_number::kOutOfMemory));
  Recordset stored = All(mustWork);
  EXPECT_TRUE(stored["memo"].IsNull());
  EXPECT_EQ(stored["filled"].Get(), Value("next"));
}

TEST_F(OpenRecordset, AnotherFieldsTextWithoutMemoryIsAFailureOfItsAssignmentOnly) {
  Add("from", "memo", std::string(5000, 'x'));
  Recordset from = All(mustWork);
  Recordset to = db.OpenTable(failures, "t");
  to.AddNew();
  {
    const FailingSizes lack(5000, 5100);
    to["memo"] = from["memo"];
  }
  to["name"] = "to";
  to.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(failure_number::kOutOfMemory));
  EXPECT_THAT(Names(), ElementsAre("from", "to"));
}

TEST_F(OpenRecordset, AnEditWithoutMemoryDoesNotHappen) {
  Add("a", "memo", std::string(5000, 'x'));
  Recordset rows = All(failures, RecordsetType::Dynaset);
  {
    const FailingSizes lack(5000, 5100);
    rows.Edit();
  }
  rows["filled"] = "lost";
  rows.Update();

  EXPECT_THAT(failures.Numbers(),
              ElementsAre(failure_number::kOutOfMemory, failure_number::kNotBeingEdited,
                          failure_number::kNotBeingEdited));
}

TEST_F(OpenRecordset, RowsOfTwoTablesCannotBeEdited) {
  Recordset rows =
      db.OpenRecordset(failures, "SELECT a.name FROM t a, t b", {}, RecordsetType::Dynaset);

  rows.AddNew();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3078, 3027));
}

// 2^21 fields at most are kept in memory: of 1,000 fields that is row 2,098.
TEST_F(OpenRecordset, RowsThatAreTooManyForMemoryGoIntoTheFile) {
  TableDef wide{"wide", {}, Index{"key", {"f0"}, false}};
  for (int i = 0; i < 1000; ++i) {
    Field field;
    field.Name = "f" + std::to_string(i);
    field.Type = FieldType::Long;
    wide.Fields.push_back(field);
  }
  db.CreateHeldTable(mustWork, wide);
  Recordset rows = db.OpenTable(failures, "wide");
  for (int row = 0; row < 2100; ++row) {
    rows.AddNew();
    rows[std::size_t{0}] = row;
    rows.Update();
  }
  rows.AddNew();
  rows[std::size_t{0}] = 7;
  rows.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3022));
  EXPECT_TRUE(db.TakeHeldRows().empty());
  EXPECT_EQ(db.RowCount(mustWork, "wide"), 2100);
}

// A dynaset reads 256 rows at a time: 600 are three times.
class LongDynaset : public OpenRecordset {
 protected:
  LongDynaset() {
    db.Begin(mustWork);
    for (int i = 0; i < 600; ++i) Add(NameOf(i), "long", i);
    db.Commit(mustWork);
  }

  static std::string NameOf(int row) { return "row " + std::to_string(row); }

  static void Skip(Recordset& rows, int count) {
    for (int i = 0; i < count; ++i) rows.MoveNext();
  }
};

TEST_F(LongDynaset, WalksAllRowsThereAndFromTheStartAgain) {
  Recordset rows = All(mustWork, RecordsetType::Dynaset);
  EXPECT_EQ(rows.RecordCount(), 600u);
  for (int pass = 0; pass < 2; ++pass) {
    for (int i = 0; i < 600; ++i, rows.MoveNext()) ASSERT_EQ(rows["long"].Get(), i);
    EXPECT_TRUE(rows.AtEnd());
    rows.MoveFirst();
  }
}

TEST_F(LongDynaset, ChangesTheRowItIsAtWhereverThatIs) {
  for (Recordset rows = All(mustWork, RecordsetType::Dynaset); !rows.AtEnd(); rows.MoveNext()) {
    rows.Edit();
    rows["long"] = rows["long"].RequireLong() + 1000;
    rows.Update();
    ASSERT_EQ(rows["name"].Get().Text(), NameOf(rows["long"].RequireLong() - 1000));
  }

  int i = 1000;
  for (Recordset rows = All(mustWork); !rows.AtEnd(); rows.MoveNext(), ++i) {
    ASSERT_EQ(rows["long"].Get(), i);
  }
}

TEST_F(LongDynaset, ShowsWhatBecameOfARowBeforeItsTurn) {
  Recordset rows = All(mustWork, RecordsetType::Dynaset);

  db.Execute(mustWork, "UPDATE t SET long = 7 WHERE name = 'row 599'");

  Skip(rows, 599);
  EXPECT_EQ(rows["long"].Get(), 7);
}

TEST_F(LongDynaset, PassesOverRowsThatWereDeletedBeforeTheirTurn) {
  Recordset rows = All(mustWork, RecordsetType::Dynaset);

  db.Execute(mustWork, "DELETE FROM t WHERE long = 256 OR long >= 300");

  Skip(rows, 256);
  EXPECT_EQ(rows["long"].Get(), 257);
  Skip(rows, 43);
  EXPECT_TRUE(rows.AtEnd());
}

TEST_F(LongDynaset, DoesNotShowRowsThatCameLater) {
  Recordset rows = All(mustWork, RecordsetType::Dynaset);

  Add("late");

  Skip(rows, 600);
  EXPECT_TRUE(rows.AtEnd());
}

TEST_F(LongDynaset, EndsAtTheFirstRowThatItCannotRead) {
  Recordset rows = All(failures, RecordsetType::Dynaset);

  db.Close();

  Skip(rows, 255);
  EXPECT_EQ(rows["long"].Get(), 255);
  rows.MoveNext();
  EXPECT_TRUE(rows.AtEnd());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3420));
}

TEST_F(LongDynaset, EndsWhereMemoryIsLacking) {
  db.Execute(mustWork, "UPDATE t SET memo = '{}' WHERE long = 300", {std::string(5000, 'x')});
  Recordset rows = All(failures, RecordsetType::Dynaset);
  {
    const FailingSizes lack(5000, 5100);
    Skip(rows, 256);
  }

  EXPECT_TRUE(rows.AtEnd());
  EXPECT_THAT(failures.Numbers(), ElementsAre(failure_number::kOutOfMemory));
}

TEST_F(OpenRecordset, ATableWithAKeyOnACalculatedColumnTakesRows) {
  db.ExecuteNative(mustWork,
                   "CREATE TABLE g (name TEXT, twice AS (name || name)); "
                   "CREATE UNIQUE INDEX i ON g (twice)");
  Recordset rows = db.OpenTable(failures, "g");
  rows.AddNew();
  rows["name"] = "a";

  rows.Update();

  EXPECT_THAT(failures.Numbers(), IsEmpty());
  EXPECT_EQ(db.RowCount(mustWork, "g"), 1);
}

}  // namespace
}  // namespace orrerix
