// SPDX-License-Identifier: MIT
#include "db/engine/engine_functions.h"

#include <cstdint>
#include <new>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "db/failure.h"
#include "db/values/like_pattern.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// The engine's extended codes hold a number of their own above the eight bits of the plain code.
// Its own numbers of SQLITE_ERROR end below 5.
constexpr int kExtendedCodeShift = 8;

std::string_view TextOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

bool IsNull(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_NULL;
}

void ReturnText(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

// Fails with a number of the language's own.
void ReturnFailure(sqlite3_context* context, int number, std::string_view message) {
  sqlite3_result_error(context, message.data(), static_cast<int>(message.size()));
  sqlite3_result_error_code(context, EngineCodeOf(number));
}

// No exception may pass the engine's own frames.
template <void (*Function)(sqlite3_context*, sqlite3_value**)>
void Guarded(sqlite3_context* context, int, sqlite3_value** arguments) {
  try {
    Function(context, arguments);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

void UcaseFunction(sqlite3_context* context, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return sqlite3_result_null(context);
  ReturnText(context, Ucase(TextOf(arguments[0])));
}

void LenFunction(sqlite3_context* context, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return sqlite3_result_null(context);
  sqlite3_result_int64(context, static_cast<sqlite3_int64>(Len(TextOf(arguments[0]))));
}

// Left or Right, distinguished by the function that cuts.
template <auto Cut>
void CutFunction(sqlite3_context* context, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return sqlite3_result_null(context);
  const sqlite3_int64 count = sqlite3_value_int64(arguments[1]);
  if (count < 0) {
    return ReturnFailure(context, failure_number::kInvalidProcedureCall,
                         StandardMessage(failure_number::kInvalidProcedureCall));
  }
  ReturnText(context, Cut(TextOf(arguments[0]), static_cast<std::size_t>(count)));
}

void IsNullFunction(sqlite3_context* context, sqlite3_value** arguments) {
  sqlite3_result_int(context, IsNull(arguments[0]) ? 1 : 0);
}

// SQLite hands the pattern over first, and keeps what was made of it for the other rows.
void LikeFunction(sqlite3_context* context, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return sqlite3_result_null(context);
  auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
  if (pattern == nullptr) {
    auto compiled = LikePattern::Compile(TextOf(arguments[0]));
    if (!compiled) {
      return ReturnFailure(context, failure_number::kInvalidPattern, "Invalid pattern string.");
    }
    sqlite3_set_auxdata(context, 0, new LikePattern(std::move(*compiled)),
                        [](void* kept) { delete static_cast<LikePattern*>(kept); });
    pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
    if (pattern == nullptr) return sqlite3_result_error_nomem(context);
  }
  sqlite3_result_int(context, pattern->Matches(TextOf(arguments[1])) ? 1 : 0);
}

}  // namespace

int EngineCodeOf(int failureNumber) {
  return SQLITE_ERROR | (failureNumber << kExtendedCodeShift);
}

std::optional<int> FailureNumberOf(int engineCode) {
  for (const int number :
       {failure_number::kInvalidProcedureCall, failure_number::kInvalidPattern}) {
    if (engineCode == EngineCodeOf(number)) return number;
  }
  return std::nullopt;
}

void RegisterEngineFunctions(sqlite3* connection) {
  const auto add = [connection](const char* name, int arguments,
                                void (*function)(sqlite3_context*, int, sqlite3_value**)) {
    sqlite3_create_function_v2(connection, name, arguments,
                               SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                               function, nullptr, nullptr, nullptr);
  };
  add("ucase", 1, Guarded<UcaseFunction>);
  add("len", 1, Guarded<LenFunction>);
  add("left", 2, Guarded<CutFunction<Left>>);
  add("right", 2, Guarded<CutFunction<Right>>);
  add("isnull", 1, Guarded<IsNullFunction>);
  add("like", 2, Guarded<LikeFunction>);
}

}  // namespace orrerix
