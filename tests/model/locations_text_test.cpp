// The form of the file of places: what is written, and what is taken for such a file.
#include "model/locations_text.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>

#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::CityPreset;
using model::locationsText;
using model::placesIn;

const QUuid someId(u"0a1b2c3d-4e5f-6789-abcd-ef0123456789"_s);

TEST(LocationsText, IsIndentedSortedAndUpperCase) {
  const QUuid other(u"{ffffffff-ffff-4fff-8fff-ffffffffffff}"_s);
  EXPECT_EQ(locationsText({{someId, u"Côte \"X\"\n"_s, 0.5, -0.3647738136668149},
                           {other, u"Ebb"_s, -0.0625, 3.0}})
                .toStdString(),
            "[\n"
            "    {\n"
            "        \"id\": \"0A1B2C3D-4E5F-6789-ABCD-EF0123456789\",\n"
            "        \"latitude\": 0.5,\n"
            "        \"longitude\": -0.3647738136668149,\n"
            "        \"name\": \"Côte \\\"X\\\"\\n\"\n"
            "    },\n"
            "    {\n"
            "        \"id\": \"FFFFFFFF-FFFF-4FFF-8FFF-FFFFFFFFFFFF\",\n"
            "        \"latitude\": -0.0625,\n"
            "        \"longitude\": 3,\n"
            "        \"name\": \"Ebb\"\n"
            "    }\n"
            "]\n");
  EXPECT_EQ(locationsText({}).toStdString(), "[\n]\n");
}

/// An object of the file, each part as it is given.
struct Entry {
  std::string id = "\"0A1B2C3D-4E5F-6789-ABCD-EF0123456789\"";
  std::string latitude = "0.5";
  std::string longitude = "-1.25";
  std::string name = "\"Ebb\"";

  [[nodiscard]] std::string text() const {
    return R"({"name":)" + name + R"(,"id":)" + id + R"(,"latitude":)" + latitude +
           R"(,"longitude":)" + longitude + "}";
  }
};

std::optional<QList<CityPreset>> read(const std::string& text) {
  return placesIn(QByteArray::fromStdString(text));
}

TEST(LocationsText, ReadsAnEntry) {
  const auto places = read("[" + Entry().text() + "]");
  ASSERT_TRUE(places);
  EXPECT_EQ(*places, (QList<CityPreset>{{someId, u"Ebb"_s, 0.5, -1.25}}));
  EXPECT_EQ(read(" [ ] "), QList<CityPreset>());
}

TEST(LocationsText, ReadsWhatPeopleAndProgramsMayWrite) {
  const std::vector<Entry> entries = {
      {.id = "\"0a1b2c3d-4e5f-6789-abcd-ef0123456789\""},
      {.id = "\"0A1b2C3d-4E5f-6789-aBcD-eF0123456789\""},
      {.latitude = "5e-1"},
      {.latitude = "0.5,\"note\":\"a lighthouse\",\"visited\":[1,{\"id\":7}]"},
      {.name = "\"\\u0045bb\""},
  };
  for (const Entry& entry : entries) {
    EXPECT_EQ(read("[" + entry.text() + "]"), (QList<CityPreset>{{someId, u"Ebb"_s, 0.5, -1.25}}))
        << entry.text();
  }
}

TEST(LocationsText, KeepsAnyNameAndAnyFiniteNumber) {
  const auto places = read("[" + Entry{.latitude = "1e308", .name = "\"\""}.text() + "]");
  ASSERT_TRUE(places);
  EXPECT_EQ(places->front().latitude, 1e308);
  EXPECT_EQ(places->front().name, QString());
}

TEST(LocationsText, KeepsTheOrderOfTheFile) {
  const auto places =
      read("[" + Entry{.name = "\"z\""}.text() + "," +
           Entry{.id = "\"0A1B2C3D-4E5F-6789-ABCD-EF0123456780\"", .name = "\"a\""}.text() + "]");
  ASSERT_TRUE(places);
  ASSERT_EQ(places->size(), 2);
  EXPECT_EQ(places->front().name, u"z"_s);
}

/// An id of zeros alone is 36 characters of a UUID, and it is not that of "Manual".
TEST(LocationsText, AnIdOfZerosIsAnId) {
  const auto places =
      read("[" + Entry{.id = "\"00000000-0000-0000-0000-000000000000\""}.text() + "]");
  ASSERT_TRUE(places);
  EXPECT_EQ(places->front().id, QUuid());
}

TEST(LocationsText, RefusesOtherEntries) {
  const std::vector<Entry> entries = {
      {.id = "\"0A1B2C3D-4E5F-6789-ABCD-EF012345678\""},
      {.id = "\"0A1B2C3D-4E5F-6789-ABCD-EF01234567890\""},
      {.id = "\"{0A1B2C3D-4E5F-6789-ABCD-EF0123456789}\""},
      {.id = "\"{0A1B2C3D-4E5F-6789-ABCD-EF01234567}\""},
      {.id = "\"0A1B2C3D4E5F6789ABCDEF0123456789\""},
      {.id = "\"0A1B2C3D-4E5F-6789-ABCDE-F0123456789\""},
      {.id = "\"0A1B2C3D 4E5F 6789 ABCD EF0123456789\""},
      {.id = "\"0G1B2C3D-4E5F-6789-ABCD-EF0123456789\""},
      {.id = "\"+A1B2C3D-4E5F-6789-ABCD-EF0123456789\""},
      {.id = "\" 0A1B2C3D-4E5F-6789-ABCD-EF012345678\""},
      {.id = "\"00000000-0000-0000-0000-000000000001\""},
      {.id = "\"\""},
      {.id = "7"},
      {.id = "null"},
      {.latitude = "\"0.5\""},
      {.latitude = "null"},
      {.latitude = "true"},
      {.latitude = "1e999"},
      {.latitude = "nan"},
      {.latitude = "0,5"},
      {.latitude = "[0.5]"},
      {.longitude = "\"-1.25\""},
      {.longitude = "-1e999"},
      {.longitude = "Infinity"},
      {.name = "7"},
      {.name = "null"},
      {.name = "[\"Ebb\"]"},
      {.name = "\"Ebb"},
      {.name = "\"\xFF\xFE\""},
      {.name = "\"\xC3\""},
  };
  for (const Entry& entry : entries) {
    EXPECT_EQ(read("[" + entry.text() + "]"), std::nullopt) << entry.text();
  }
}

TEST(LocationsText, RefusesOtherFiles) {
  const std::string entry = Entry().text();
  const std::vector<std::string> files = {
      "",
      " ",
      entry,
      "{}",
      "{\"places\":[" + entry + "]}",
      "null",
      "7",
      "\"[]\"",
      "[",
      "[" + entry,
      "[" + entry + ",]",
      "[" + entry + "]]",
      "[" + entry + "] and more",
      "[" + entry + "," + entry + "]",
      "[" + entry + "," + Entry{.id = "\"0a1b2c3d-4e5f-6789-abcd-ef0123456789\""}.text() + "]",
      "[" + entry + ",7]",
      "[" + entry + ",null]",
      "[[" + entry + "]]",
      "[{}]",
      R"([{"name":"Ebb","latitude":0.5,"longitude":1}])",
      R"([{"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","latitude":0.5,"longitude":1}])",
      R"([{"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","name":"Ebb","longitude":1}])",
      R"([{"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","name":"Ebb","latitude":1}])",
      R"([{"ID":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","name":"E","latitude":1,"longitude":1}])",
      std::string("[]\0[]", 5),
      std::string(100'000, '['),
  };
  for (const std::string& file : files) {
    EXPECT_EQ(read(file), std::nullopt) << file.substr(0, 200);
  }
}

/// Names of any letters, from every plane.
rc::Gen<QString> names() {
  return rc::gen::map(
      rc::gen::container<std::vector<char32_t>>(
          rc::gen::oneOf(tests::wholeBetween(1, 0x7F), tests::wholeBetween(0x80, 0xD7FF),
                         tests::wholeBetween(0xE000, 0x10FFFF))),
      [](const std::vector<char32_t>& points) {
        return QString::fromUcs4(points.data(), static_cast<qsizetype>(points.size()));
      });
}

TEST(LocationsText, ReadsBackEveryListExactly) {
  EXPECT_TRUE(rc::check("a list that is written reads back as it was", [] {
    QList<CityPreset> places;
    const auto count = *tests::wholeBetween(0, 5);
    for (std::int64_t i = 0; i < count; ++i) {
      places.append(
          {QUuid::createUuid(), *names(), *tests::finiteDoubles(), *tests::finiteDoubles()});
    }
    RC_ASSERT(placesIn(locationsText(places)) == places);
  }));
  const double least = std::numeric_limits<double>::denorm_min();
  const double most = std::numeric_limits<double>::max();
  const QList<CityPreset> ends = {{someId, u"ends"_s, least, -most},
                                  {QUuid::createUuid(), u"whole"_s, 9007199254740993.0, -1e18}};
  EXPECT_EQ(placesIn(locationsText(ends)), ends);
}

}  // namespace
}  // namespace veyruna
