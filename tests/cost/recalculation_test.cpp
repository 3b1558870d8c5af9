// What all documents of a moment and place take of the mathematical library: counted, so that it is
// the same on every machine.
#include <cstdio>
#include <gtest/gtest.h>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "documents/documents.h"
#include "tests/cost/library_calls.h"

namespace veyruna {
namespace {

/// Counted when a recalculation took three quarters of its floor (docs/performance.md): 24,093,
/// 22,020 and 7,798. Compilers differ by some in what they find to be the same; a search that goes
/// on too long, or a body that is worked out twice in a row, is more.
constexpr std::size_t enoughSines = 24'500;
constexpr std::size_t enoughCosines = 22'400;
constexpr std::size_t enoughArcTangents = 7'950;

TEST(Cost, TheDocumentsCallTheLibraryNoMoreOftenThanTheyNeed) {
  const astro::Observer firstStart = {.baseTime = astro::standardBaseTime({720, 0, 0, 12.0}),
                                      .latitude = 40.5 * astro::pi / 180.0,
                                      .longitude = -20.9 * astro::pi / 180.0};
  for (const documents::Entry& entry : documents::allDocuments) {
    documents::textOf(entry.document, firstStart);  // what is made once, such as the catalogue
  }
  tests::takeLibraryCalls();
  using documents::Document;
  for (const Document document :
       {Document::starMap, Document::horoscope, Document::hourly, Document::monthly,
        Document::daily, Document::yearly, Document::positions, Document::date,
        Document::nextFullMoon, Document::nextNewMoon}) {
    ASSERT_FALSE(documents::textOf(document, firstStart).empty());
  }
  const tests::LibraryCalls calls = tests::takeLibraryCalls();
  std::printf("%zu sines, %zu cosines, %zu arc tangents\n", calls.sines, calls.cosines,
              calls.arcTangents);
  EXPECT_GT(calls.sines, 0U);
  EXPECT_LE(calls.sines, enoughSines);
  EXPECT_GT(calls.cosines, 0U);
  EXPECT_LE(calls.cosines, enoughCosines);
  EXPECT_GT(calls.arcTangents, 0U);
  EXPECT_LE(calls.arcTangents, enoughArcTangents);
}

}  // namespace
}  // namespace veyruna
