// SPDX-License-Identifier: MIT
#include "db/engine/query_text.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "db/engine/engine.h"

namespace {

class Ignore : public orrerix::FailureSink {
 public:
  void Fail(const orrerix::Failure&) override {}
};

}  // namespace

// The input is a query text, and a value that is put into one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  orrerix::TranslateText(text);
  orrerix::TranslateTemplate(text, true);

  static Ignore ignore;
  static orrerix::Database database = [] {
    orrerix::Database made = orrerix::DBEngine::CreateInMemory(ignore);
    made.ExecuteNative(ignore, "CREATE TABLE t (name TEXT COLLATE NOCASE, number INT)");
    made.ExecuteNative(ignore, "INSERT INTO t VALUES ('fox', 1), ('Hound', 2)");
    return made;
  }();
  // Patterns and texts out of which a player's search is made.
  database.OpenRecordset(ignore, "SELECT * FROM t WHERE ucase(name) like '*{}*'", {text});
  database.OpenRecordset(ignore, "SELECT * FROM t WHERE name = '{}' ORDER BY ucase(name)", {text},
                         orrerix::RecordsetType::Dynaset);
  return 0;
}
