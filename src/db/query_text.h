// SPDX-License-Identifier: MIT
// From the program's query texts to statements of the engine underneath.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "db/failure.h"
#include "db/value.h"

namespace orrerix {

// A statement ready to be prepared, and what is bound to its parameters.
struct Statement {
  std::string Sql;
  std::vector<Value> Bound;
  std::string Table;  // the one table of a plain "SELECT * FROM table ...", else empty
};

// Translates a query text. Each "{}" in it stands for the next of `values`, put in as it is and
// unescaped: a value with a "'" in it changes the statement, as it would in a joined text.
// Values without one are bound, so that the statement can be used again.
//
// What changes: texts compare without regard to the case of ASCII letters, "ORDER BY ucase(x)"
// orders like "ORDER BY x", rows that tie keep the order of insertion, and the functions "left",
// "right" and "isnull" get names that the engine takes. With `withRowid` a "SELECT *" gets a last
// column with the number of the row.
//
// A quote that is not closed, text behind the statement, comments and NULs are syntax errors.
std::variant<Statement, Failure> Translate(std::string_view text,
                                           std::initializer_list<Value> values,
                                           bool withRowid = false);

}  // namespace orrerix
