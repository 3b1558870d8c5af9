#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// What the program knows, for programs to read: rows of values under names. One table says what a
/// row holds; the files and their schemas are both made of it.
namespace veyruna::records {

enum class ValueType {
  boolean,
  integer,
  number,  ///< written so that it reads back as the same double
  numbers,
  text,   ///< UTF-8; bytes that are none are replaced
  texts,  ///< several, in an order that matters
  date    ///< "720-06-12T22:30"; see dateOf
};

/// A value, or nothing where a field has none in this row.
using Value = std::variant<std::monostate, bool, std::int64_t, double, std::vector<double>,
                           std::string, std::vector<std::string>>;

struct Field {
  std::string name;  ///< in snake case, with the unit where there is one: "altitude_degrees"
  ValueType type = ValueType::text;
  std::string description;              ///< a sentence without its full stop
  bool isOptional = false;              ///< may be absent
  std::vector<std::string> words = {};  ///< of a text or texts: all that it can be; empty for any
};

/// What one command writes, whatever the notation. Names are unique, and "schema" is none of them.
struct RecordType {
  std::string name;         ///< in snake case, as `veyruna schema` is asked for it
  int version = 1;          ///< grows when a member is taken away or comes to mean something else
  std::string description;  ///< one line
  std::string rowsMember;   ///< of the JSON document: holds the rows
  std::vector<Field> about = {};  ///< what holds of all rows: once in a document, else in every row
  std::vector<Field> fields;
};

/// Values in the order of the fields.
using Row = std::vector<Value>;

/// Stops the program unless the row has a value of its type for each field, the optional ones
/// apart, and every number is finite and every word one of the field's.
void requireRowOf(const std::vector<Field>& fields, const Row& row);

/// Stops the program unless the names of the type are what they are said to be.
void requireSoundType(const RecordType& type);

/// A base time (days) as a date: the text output's reading of it. Nothing before the first
/// midnight, where the calendar has no date.
Value dateOf(double baseTime);

/// The value, or nothing.
template <class Held>
Value valueOf(const std::optional<Held>& held) {
  return held ? Value(*held) : Value();
}

}  // namespace veyruna::records
