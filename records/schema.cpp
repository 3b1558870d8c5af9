#include "records/schema.h"

#include <nlohmann/json.hpp>

namespace veyruna::records {

namespace {

using Json = nlohmann::ordered_json;

/// A text of which all that it can be is known, or any text.
Json textSchema(const std::vector<std::string>& words) {
  Json schema = {{"type", "string"}};
  if (!words.empty()) {
    schema["enum"] = words;
  }
  return schema;
}

Json valueSchema(const Field& field) {
  switch (field.type) {
    case ValueType::boolean:
      return {{"type", "boolean"}};
    case ValueType::integer:
      return {{"type", "integer"}};
    case ValueType::number:
      return {{"type", "number"}};
    case ValueType::numbers:
      return {{"type", "array"}, {"items", {{"type", "number"}}}};
    case ValueType::text:
      return textSchema(field.words);
    case ValueType::texts:
      return {{"type", "array"}, {"items", textSchema(field.words)}};
    case ValueType::date:
      return {{"type", "string"}, {"pattern", "^[0-9]{3,}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}$"}};
  }
  return {};
}

/// An object that has these members and no others.
class ObjectSchema {
 public:
  void add(const std::string& name, Json schema, bool isOptional) {
    properties_[name] = std::move(schema);
    if (!isOptional) {
      required_.push_back(name);
    }
  }

  void add(const std::vector<Field>& fields) {
    for (const Field& field : fields) {
      Json schema = valueSchema(field);
      schema["description"] = field.description;
      add(field.name, std::move(schema), field.isOptional);
    }
  }

  [[nodiscard]] Json json() const {
    return {{"type", "object"},
            {"properties", properties_},
            {"required", required_},
            {"additionalProperties", false}};
  }

 private:
  Json properties_ = Json::object();
  Json required_ = Json::array();
};

Json schemaMember(const RecordType& type) {
  ObjectSchema member;
  member.add("name", {{"const", type.name}}, false);
  member.add("version", {{"const", type.version}}, false);
  return member.json();
}

std::string textOf(const RecordType& type, const ObjectSchema& object) {
  Json whole = {{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                {"title", "veyruna " + type.name + ", version " + std::to_string(type.version)},
                {"description", type.description}};
  whole.update(object.json());
  return whole.dump(2) + "\n";
}

}  // namespace

std::string documentSchema(const RecordType& type) {
  requireSoundType(type);
  ObjectSchema row;
  row.add(type.fields);
  ObjectSchema document;
  document.add("schema", schemaMember(type), false);
  document.add(type.about);
  document.add(type.rowsMember, {{"type", "array"}, {"items", row.json()}}, false);
  return textOf(type, document);
}

std::string lineSchema(const RecordType& type) {
  requireSoundType(type);
  ObjectSchema line;
  line.add("schema", schemaMember(type), false);
  line.add(type.about);
  line.add(type.fields);
  return textOf(type, line);
}

}  // namespace veyruna::records
