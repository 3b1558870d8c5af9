#include "almanac/events/event.h"

#include "astro/invariant.h"

namespace veyruna::almanac {

constexpr std::array<EventKindEntry, eventKindCount> allEventKinds = {{
    {EventKind::eclipse, "eclipse", "a node crossing of the moon near a syzygy"},
    {EventKind::moon, "moon", "full and new moon"},
    {EventKind::conjunction, "conjunction", "two bodies within 2° of one longitude"},
    {EventKind::opposition, "opposition", "two bodies within 2° of opposite longitudes"},
    {EventKind::sign, "sign", "a body enters a sign"},
    {EventKind::station, "station", "a planet turns"},
    {EventKind::season, "season", "the sun at 0°, 90°, 180°, 270°"},
    {EventKind::rise, "rise", "a body rises", true},
    {EventKind::set, "set", "a body sets", true},
    {EventKind::culmination, "culmination", "a body passes the upper meridian", true},
}};

namespace {

constexpr bool everyKindHasItsRowInOrder() {
  for (std::size_t i = 0; i < allEventKinds.size(); ++i) {
    if (allEventKinds[i].kind != static_cast<EventKind>(i)) {
      return false;
    }
  }
  return true;
}
static_assert(everyKindHasItsRowInOrder());

}  // namespace

const EventKindEntry& entryOf(EventKind kind) {
  const auto row = static_cast<std::size_t>(kind);
  astro::requireInvariant(row < allEventKinds.size(), "a kind of event has its row");
  return allEventKinds[row];
}

}  // namespace veyruna::almanac
