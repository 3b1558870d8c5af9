#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "almanac/motion/range.h"
#include "records/event_record.h"
#include "records/record_writer.h"
#include "web/question.h"

/// What questions over a stretch of time have in common.
namespace veyruna::web {

/// How a place is given, for messages.
inline constexpr std::string_view placeIsGivenBy = "give one with lat and long";

/// The place of lat, long and place_name, if one was asked for.
std::optional<records::Lookout> askedLookout(const Question& question);

/// From from to to, or for a length; its clocks those of the place where the question is local.
almanac::Range askedRange(const Question& question, const std::optional<records::Lookout>& lookout);

/// Rows as JSON, one behind the other.
class Rows {
 public:
  /// What an answer holds at most: a browser's memory is not a disk.
  static constexpr std::int64_t most = 500'000;

  explicit Rows(const records::RecordType& type);

  /// Whether there is room for one more.
  [[nodiscard]] bool write(const records::Row& row);

  /// All of them. Throws words::UsageError where there were more than find room.
  std::string finish();

 private:
  std::string text_;
  records::RecordWriter writer_;
  std::int64_t count_ = 0;
};

}  // namespace veyruna::web
