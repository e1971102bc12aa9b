// SPDX-License-Identifier: MIT
// From the program's query texts to statements of the engine underneath.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "db/failure.h"
#include "db/values/value.h"

namespace orrerix {

// What is bound to a parameter: a value, within a text literal with what stands round it there.
struct Parameter {
  bool IsText = false;
  std::string Before;
  std::string After;
};

// A statement ready to be prepared.
struct Statement {
  std::string Sql;
  std::vector<Parameter> Parameters;
  std::string Table;  // the one table of a plain "SELECT * FROM table ...", else empty
};

// Translates a query text whose places for values are marked "{}": within quotes a place of a
// text, elsewhere one of a number.
//
// What changes: texts compare without regard to the case of ASCII letters, "ORDER BY ucase(x)"
// orders like "ORDER BY x", rows that tie, and those of a query without an order, come in the order
// of insertion, and the functions "left", "right" and "isnull" get names that the engine takes.
// With `withRowid` a "SELECT *" gets a last column with the number of the row.
//
// A quote that is not closed, text after the statement, comments and NULs are syntax errors.
std::variant<Statement, Failure> TranslateTemplate(std::string_view text, bool withRowid = false);

// Translates a text without such places: a "{}" in it is just that.
std::variant<Statement, Failure> TranslateText(std::string_view text, bool withRowid = false);

// Whether a value must be written into the text to mean what it says: one with a "'" in it changes
// the statement, as it would in a joined text. All others can be bound.
bool MustBeWritten(std::initializer_list<Value> values);

// The text with the values written into the places, unescaped.
std::string WriteValues(std::string_view text, std::initializer_list<Value> values);

// What is bound to each parameter.
std::vector<Value> BoundValues(const Statement& statement, std::initializer_list<Value> values);

}  // namespace orrerix
