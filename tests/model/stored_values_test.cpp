// What the ten preferences make of whatever is stored under their keys.
#include <QDateTime>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/model/stored_table.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::AstronomyModel;

using tests::expectTable;
using tests::idFields;
using tests::integerFields;
using tests::manualID;
using tests::numberFields;
using tests::prefix;
using tests::switchFields;

constexpr double infinity = std::numeric_limits<double>::infinity();
const QStringList someList = {u"1"_s, u"2"_s};

TEST(StoredValues, NothingStoredGivesTheDefaults) {
  for (const tests::Field& field : tests::allFields()) {
    tests::expectRead(std::make_shared<tests::MemorySettings>(), field, {});
  }
}

TEST(StoredValues, Numbers) {
  expectTable(numberFields(), {
                                  {QVariant()},
                                  {u"18.25"_s, 18.25},
                                  {u"12"_s, 12.0},
                                  {u"12.0"_s, 12.0},
                                  {u"-33.125"_s, -33.125},
                                  {u"1e3"_s, 1000.0},
                                  {u"1E3"_s, 1000.0},
                                  {u"0"_s, 0.0},
                                  {u"-0"_s, -0.0},
                                  {u"-0.0"_s, -0.0},
                                  {u"360.5"_s, 360.5},
                                  {u"99999999999999999999"_s, 1e20},
                                  {u"1.7976931348623157e308"_s, std::numeric_limits<double>::max()},
                                  {u"5e-324"_s, std::numeric_limits<double>::denorm_min()},
                                  {18.25, 18.25},
                                  {-0.0, -0.0},
                                  {12, 12.0},
                                  {qint64{-7}, -7.0},
                                  {std::numeric_limits<quint64>::max(), 18446744073709551616.0},
                                  {u"1e999"_s},
                                  {u"-1e999"_s},
                                  {u"nan"_s},
                                  {u"NaN"_s},
                                  {u"-nan"_s},
                                  {u"inf"_s},
                                  {u"-inf"_s},
                                  {u"Infinity"_s},
                                  {std::nan("")},
                                  {infinity},
                                  {-infinity},
                                  {u""_s},
                                  {u"abc"_s},
                                  {u"12abc"_s},
                                  {u"18,25"_s},
                                  {u"1.2.3"_s},
                                  {u"0x10"_s},
                                  {u"१२"_s},
                                  {u"12 13"_s},
                                  {u"true"_s},
                                  {true},
                                  {someList},
                                  {QVariantMap{{u"1"_s, 2}}},
                                  {QDateTime::fromSecsSinceEpoch(0)},
                              });
}

TEST(StoredValues, Integers) {
  constexpr qint64 most = std::numeric_limits<qint64>::max();
  constexpr qint64 least = std::numeric_limits<qint64>::min();
  expectTable(integerFields(), {
                                   {QVariant()},
                                   {u"12"_s, qint64{12}},
                                   {u"0"_s, qint64{0}},
                                   {u"-3"_s, qint64{-3}},
                                   {u"007"_s, qint64{7}},
                                   {u"9223372036854775807"_s, most},
                                   {u"-9223372036854775808"_s, least},
                                   {12, qint64{12}},
                                   {most, most},
                                   {least, least},
                                   {4000000000U, qint64{4000000000}},
                                   {quint64{17}, qint64{17}},
                                   {u"9223372036854775808"_s},
                                   {u"-9223372036854775809"_s},
                                   {u"99999999999999999999"_s},
                                   {u"18446744073709551617"_s},
                                   {std::numeric_limits<quint64>::max()},
                                   {u"18.25"_s},
                                   {u"12.0"_s},
                                   {u"12."_s},
                                   {u"1e3"_s},
                                   {12.0},
                                   {18.25},
                                   {u"nan"_s},
                                   {u"inf"_s},
                                   {infinity},
                                   {std::nan("")},
                                   {u""_s},
                                   {u"abc"_s},
                                   {u"12abc"_s},
                                   {u"XII"_s},
                                   {u"0x10"_s},
                                   {u"１２"_s},
                                   {u"7,20"_s},
                                   {u"true"_s},
                                   {true},
                                   {someList},
                                   {QVariantMap{}},
                               });
}

TEST(StoredValues, Switches) {
  expectTable(switchFields(), {
                                  {QVariant()},
                                  {u"true"_s, true},
                                  {u"TRUE"_s, true},
                                  {u"True"_s, true},
                                  {u"tRUE"_s, true},
                                  {u"1"_s, true},
                                  {u"false"_s, false},
                                  {u"FALSE"_s, false},
                                  {u"fAlse"_s, false},
                                  {u"0"_s, false},
                                  {true, true},
                                  {false, false},
                                  {1, true},
                                  {0, false},
                                  {qint64{1}, true},
                                  {quint64{0}, false},
                                  {u"maybe"_s},
                                  {u"yes"_s},
                                  {u"no"_s},
                                  {u"on"_s},
                                  {u""_s},
                                  {u"2"_s},
                                  {u"-1"_s},
                                  {u"10"_s},
                                  {u"1.0"_s},
                                  {u"0.0"_s},
                                  {u"nan"_s},
                                  {u"99999999999999999999"_s},
                                  {u"truefalse"_s},
                                  {u"true,false"_s},
                                  {2},
                                  {-1},
                                  {1.0},
                                  {0.0},
                                  {someList},
                                  {QVariantMap{}},
                              });
}

TEST(StoredValues, Ids) {
  const QUuid some(u"0a1b2c3d-4e5f-6789-abcd-ef0123456789"_s);
  expectTable(idFields(), {
                              {QVariant()},
                              {u"0A1B2C3D-4E5F-6789-ABCD-EF0123456789"_s, some},
                              {u"0a1b2c3d-4e5f-6789-abcd-ef0123456789"_s, some},
                              {u"0A1B2C3D-4E5F-6789-abcd-ef0123456789"_s, some},
                              {u"00000000-0000-0000-0000-000000000001"_s, manualID},
                              {u"{0A1B2C3D-4E5F-6789-ABCD-EF0123456789}"_s},
                              {u"0A1B2C3D-4E5F-6789-ABCD-EF01234567890"_s},
                              {u"0A1B2C3D-4E5F-6789-ABCD-EF012345678"_s},
                              {u"0A1B2C3D-4E5F-6789-ABCD-EF0123456789-and-more"_s},
                              {u"0A1B2C3D4E5F6789ABCDEF0123456789"_s},
                              {u"0G1B2C3D-4E5F-6789-ABCD-EF0123456789"_s},
                              {u"Wendmark"_s},
                              {u""_s},
                              {u"12"_s},
                              {u"nan"_s},
                              {u"true"_s},
                              {12},
                              {12.5},
                              {true},
                              {someList},
                          });
}

/// An id of zeros alone is valid, too; no place has it, and so the observer is at the origin.
TEST(StoredValues, AnIdOfZerosIsAnId) {
  tests::FakeWorld world;
  world.settings->values.insert(prefix + u"selectedCityID"_s,
                                u"00000000-0000-0000-0000-000000000000"_s);
  const AstronomyModel model(world.surroundings());
  EXPECT_EQ(model.selectedCityID(), QUuid());
  EXPECT_EQ(model.effectiveLatitude(), 0.0);
}

}  // namespace
}  // namespace veyruna
