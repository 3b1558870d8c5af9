#include "records/schema.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/records/weather.h"

namespace veyruna {
namespace {

using Json = nlohmann::json;
using tests::weatherType;

const Json document = Json::parse(records::documentSchema(weatherType()));
const Json line = Json::parse(records::lineSchema(weatherType()));

/// Every object of a schema, however deep.
void collectObjects(const Json& schema, std::vector<Json>& objects) {
  if (schema.is_object() && schema.value("type", "") == "object") {
    objects.push_back(schema);
  }
  for (const Json& part : schema) {
    if (part.is_structured()) {
      collectObjects(part, objects);
    }
  }
}

TEST(Schema, NamesItsDraftAndTheVersion) {
  for (const Json& schema : {document, line}) {
    EXPECT_EQ(schema["$schema"], "https://json-schema.org/draft/2020-12/schema");
    EXPECT_EQ(schema["title"], "veyruna weather, version 3");
    EXPECT_EQ(schema["description"], "What the air does");
    const Json& member = schema["properties"]["schema"];
    EXPECT_EQ(member["properties"]["name"]["const"], "weather");
    EXPECT_EQ(member["properties"]["version"]["const"], 3);
    EXPECT_EQ(member["required"], Json({"name", "version"}));
  }
}

TEST(Schema, LetsNoOtherMembersIn) {
  std::vector<Json> objects;
  collectObjects(document, objects);
  EXPECT_EQ(objects.size(), 3U);  // the document, its schema, a row
  collectObjects(line, objects);
  EXPECT_EQ(objects.size(), 5U);
  for (const Json& object : objects) {
    EXPECT_EQ(object["additionalProperties"], false);
  }
}

TEST(Schema, AsksForWhatIsNotOptional) {
  EXPECT_EQ(document["required"], Json({"schema", "place", "days"}));
  EXPECT_EQ(document["properties"]["days"]["items"]["required"], Json({"wind_knots"}));
  EXPECT_EQ(line["required"], Json({"schema", "place", "wind_knots"}));
}

TEST(Schema, SaysOfEachFieldWhatItHoldsAndMeans) {
  const Json& day = document["properties"]["days"]["items"]["properties"];
  EXPECT_EQ(day.size(), 8U);
  EXPECT_EQ(day["is_wet"], Json({{"type", "boolean"}, {"description", "Whether it rains"}}));
  EXPECT_EQ(day["sheep_blown_away"]["type"], "integer");
  EXPECT_EQ(day["wind_knots"]["type"], "number");
  EXPECT_EQ(day["remark"], Json({{"type", "string"}, {"description", "What was said"}}));
  EXPECT_EQ(day["from"]["enum"], Json({"sea", "land"}));
  EXPECT_EQ(day["clouds"]["type"], "array");
  EXPECT_EQ(day["clouds"]["items"], Json({{"type", "string"}}));
  EXPECT_EQ(day["gusts_knots"]["items"], Json({{"type", "number"}}));
  EXPECT_TRUE(day["date"].contains("pattern"));
  for (const auto& [name, schema] : day.items()) {
    EXPECT_EQ(line["properties"][name], schema) << name;
  }
}

}  // namespace
}  // namespace veyruna
