// SPDX-License-Identifier: MIT
#include "db/engine/query_text.h"

#include <optional>

#include <fmt/format.h>

#include "db/rows/table_def.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::string_view kIgnoreCase = " COLLATE NOCASE";
constexpr std::string_view kPlaceholder = "{}";

struct Token {
  enum class Kind { Word, Literal, Name, Blank, Symbol } Kind = Kind::Symbol;
  std::string_view Text;  // as it stands, quotes and brackets included
};

bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

// Length of a quoted text at the start of `text`, doubled quotes included; nothing if it is open.
std::optional<std::size_t> QuotedLength(std::string_view text, char quote) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] != quote) continue;
    if (i + 1 < text.size() && text[i + 1] == quote) {
      ++i;
    } else {
      return i + 1;
    }
  }
  return std::nullopt;
}

// Cuts a text into tokens; nothing if it holds what no statement may hold.
std::optional<std::vector<Token>> Tokenize(std::string_view text) {
  std::vector<Token> tokens;
  while (!text.empty()) {
    Token token;
    std::size_t length = 1;
    const char c = text.front();
    if (c == '\0' || text.starts_with("--") || text.starts_with("/*")) return std::nullopt;
    if (c == '\'' || c == '"') {
      const auto quoted = QuotedLength(text, c);
      if (!quoted) return std::nullopt;
      token.Kind = c == '"' ? Token::Kind::Name : Token::Kind::Literal;
      length = *quoted;
    } else if (c == '[') {
      const std::size_t end = text.find(']');
      if (end == std::string_view::npos) return std::nullopt;
      token.Kind = Token::Kind::Name;
      length = end + 1;
    } else if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
      token.Kind = Token::Kind::Blank;
    } else if (IsWordCharacter(c)) {
      token.Kind = Token::Kind::Word;
      while (length < text.size() && IsWordCharacter(text[length])) ++length;
    }
    token.Text = text.substr(0, length);
    tokens.push_back(token);
    text.remove_prefix(length);
  }
  return tokens;
}

std::string Unquoted(const Token& token) {
  if (token.Kind != Token::Kind::Name) return std::string(token.Text);
  return std::string(token.Text.substr(1, token.Text.size() - 2));
}

// Writes the statement token by token.
class Translator {
 public:
  Translator(std::vector<Token> tokens, bool hasPlaces, bool withRowid)
      : tokens_(std::move(tokens)), hasPlaces_(hasPlaces), withRowid_(withRowid) {}

  // False if there is text after the statement.
  bool Run() {
    for (at_ = 0; at_ < tokens_.size(); ++at_) {
      const Token& token = tokens_[at_];
      switch (token.Kind) {
        case Token::Kind::Literal:
          WriteLiteral(token.Text);
          break;
        case Token::Kind::Word:
          WriteWord(token.Text);
          break;
        case Token::Kind::Symbol:
          if (token.Text == ";") return NothingFollows();
          WriteSymbol(token.Text);
          break;
        default:
          result_.Sql += token.Text;
      }
    }
    return true;
  }

  Statement TakeResult() {
    const bool plain = !compound_ && !grouped_;
    if (!plain) result_.Table.clear();
    if (ordered_ && plain) result_.Sql += ", _rowid_";
    // An index that serves the query would give the rows in its own order.
    if (isQuery_ && !ordered_ && !result_.Table.empty()) result_.Sql += " ORDER BY _rowid_";
    return std::move(result_);
  }

 private:
  bool NothingFollows() const {
    for (std::size_t i = at_ + 1; i < tokens_.size(); ++i) {
      if (tokens_[i].Kind != Token::Kind::Blank) return false;
    }
    return true;
  }

  const Token* Following(std::size_t& index) const {
    while (index < tokens_.size() && tokens_[index].Kind == Token::Kind::Blank) ++index;
    return index < tokens_.size() ? &tokens_[index] : nullptr;
  }

  bool IsCall() const {
    std::size_t index = at_ + 1;
    const Token* next = Following(index);
    return next != nullptr && next->Text == "(";
  }

  void AddParameter(Parameter parameter) {
    result_.Parameters.push_back(std::move(parameter));
    result_.Sql += fmt::format("?{}", result_.Parameters.size());
  }

  void WriteLiteral(std::string_view literal) {
    const std::size_t place = literal.find(kPlaceholder);
    if (place == std::string_view::npos || !hasPlaces_) {
      result_.Sql += literal;
    } else {
      AddParameter({true, std::string(literal.substr(1, place - 1)),
                    std::string(literal.substr(place + 2, literal.size() - place - 3))});
    }
    result_.Sql += kIgnoreCase;
  }

  void WriteSymbol(std::string_view symbol) {
    const bool isPlace =
        hasPlaces_ && symbol == "{" && at_ + 1 < tokens_.size() && tokens_[at_ + 1].Text == "}";
    if (isPlace) {
      AddParameter({});
      ++at_;
    } else if (symbol == "*" && withRowid_ && selected_ && result_.Table.empty()) {
      result_.Sql += "*, _rowid_";
      selected_ = false;
    } else {
      if (symbol == "," && inFrom_) compound_ = true;
      result_.Sql += symbol;
    }
  }

  void WriteWord(std::string_view word) {
    const std::string upper = Ucase(word);
    if (result_.Sql.empty()) isQuery_ = upper == "SELECT";
    if (upper == "SELECT") selected_ = true;
    if (upper == "JOIN" || upper == "UNION" || upper == "LIMIT") compound_ = true;
    if (upper == "GROUP") grouped_ = true;
    if (upper == "ORDER") ordered_ = true;
    if (upper == "FROM") NoteTable();
    inFrom_ = inFrom_ ? upper != "WHERE" && upper != "ORDER" : upper == "FROM";
    if (upper == "UCASE" && ordered_ && IsCall()) return;  // its brackets stay
    if ((upper == "LEFT" || upper == "RIGHT" || upper == "ISNULL") && IsCall()) {
      result_.Sql += QuoteName(word);
    } else {
      result_.Sql += word;
    }
  }

  void NoteTable() {
    std::size_t index = at_ + 1;
    const Token* table = Following(index);
    if (table == nullptr || !result_.Table.empty()) return;
    if (table->Kind == Token::Kind::Symbol) compound_ = true;  // rows of another query
    result_.Table = Unquoted(*table);
  }

  std::vector<Token> tokens_;
  bool hasPlaces_;
  bool withRowid_;
  std::size_t at_ = 0;
  Statement result_;
  bool isQuery_ = false;
  bool selected_ = false;
  bool inFrom_ = false;
  bool compound_ = false;  // of more than one table, or of more than one query
  bool grouped_ = false;
  bool ordered_ = false;
};

std::variant<Statement, Failure> Translate(std::string_view text, bool hasPlaces, bool withRowid) {
  auto tokens = Tokenize(text);
  if (tokens) {
    Translator translator(std::move(*tokens), hasPlaces, withRowid);
    if (translator.Run()) return translator.TakeResult();
  }
  return EngineFailure(failure_number::kSyntaxError, "Syntax error in query expression.");
}

}  // namespace

std::variant<Statement, Failure> TranslateTemplate(std::string_view text, bool withRowid) {
  return Translate(text, true, withRowid);
}

std::variant<Statement, Failure> TranslateText(std::string_view text, bool withRowid) {
  return Translate(text, false, withRowid);
}

bool MustBeWritten(std::initializer_list<Value> values) {
  for (const Value& value : values) {
    const std::string* text = value.TextContent();
    if (text != nullptr && Contains(*text, "'")) return true;
  }
  return false;
}

std::string WriteValues(std::string_view text, std::initializer_list<Value> values) {
  std::string joined;
  for (const Value& value : values) {
    const std::size_t place = text.find(kPlaceholder);
    joined += text.substr(0, place);
    joined += value.Text();
    text.remove_prefix(place + kPlaceholder.size());
  }
  return joined + std::string(text);
}

std::vector<Value> BoundValues(const Statement& statement, std::initializer_list<Value> values) {
  std::vector<Value> bound;
  const Value* next = values.begin();
  for (const Parameter& parameter : statement.Parameters) {
    const Value& value = *next++;
    if (!parameter.IsText) {
      bound.push_back(value);
    } else if (parameter.Before.empty() && parameter.After.empty()) {
      bound.emplace_back(value.Text());
    } else {
      bound.emplace_back(parameter.Before + value.Text() + parameter.After);
    }
  }
  return bound;
}

}  // namespace orrerix
