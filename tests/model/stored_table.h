#pragma once

#include <QDebug>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/qt_settings_store.h"
#include "tests/model/disk.h"
#include "tests/model/fakes.h"

/// Tables of what may be stored under the ten preferences and of what comes out.
namespace veyruna::tests {

inline const QString prefix = QStringLiteral("AstronomyModel.");
inline const QUuid manualID(QStringLiteral("00000000-0000-0000-0000-000000000001"));

struct Field {
  const char* name;
  QVariant defaultValue;
};

inline const std::vector<Field>& numberFields() {
  static const std::vector<Field> fields = {
      {"manualLatDeg", 40.5}, {"manualLongDeg", 20.9}, {"hour", 12.0}};
  return fields;
}
inline const std::vector<Field>& integerFields() {
  static const std::vector<Field> fields = {
      {"monthIndex", qint64{0}}, {"dayIndex", qint64{0}}, {"year", qint64{720}}};
  return fields;
}
inline const std::vector<Field>& switchFields() {
  static const std::vector<Field> fields = {
      {"latNorth", true}, {"longWest", true}, {"useLocalTime", false}};
  return fields;
}
inline const std::vector<Field>& idFields() {
  static const std::vector<Field> fields = {{"selectedCityID", manualID}};
  return fields;
}
inline std::vector<Field> allFields() {
  std::vector<Field> all;
  for (const auto* fields : {&idFields(), &numberFields(), &integerFields(), &switchFields()}) {
    all.insert(all.end(), fields->begin(), fields->end());
  }
  return all;
}

/// Something stored and the value that comes out; an invalid one means the default.
struct Stored {
  QVariant stored;
  QVariant value = {};
};

inline bool isSame(const QVariant& a, const QVariant& b) {
  if (a.typeId() == QMetaType::Double && b.typeId() == QMetaType::Double) {
    return a.toDouble() == b.toDouble() && std::signbit(a.toDouble()) == std::signbit(b.toDouble());
  }
  return a.typeId() == b.typeId() && a == b;
}

inline std::string shown(const QVariant& value) {
  QString text;
  QDebug(&text) << value;
  return text.toStdString();
}

inline void expectRead(const std::shared_ptr<model::SettingsStore>& store, const Field& field,
                       const Stored& stored) {
  const model::AstronomyModel model({store, std::nullopt, countingIds(), {}});
  for (const Field& each : allFields()) {
    const bool isIt = each.name == std::string_view(field.name);
    const QVariant expected = isIt && stored.value.isValid() ? stored.value : each.defaultValue;
    const QVariant read = model.property(each.name);
    EXPECT_TRUE(isSame(read, expected)) << shown(stored.stored) << " under " << field.name << ": "
                                        << each.name << " is " << shown(read);
  }
}

/// Each case under each field: as it is, and, where it is a text, from a file that a person wrote.
inline void expectTable(const std::vector<Field>& fields, const std::vector<Stored>& table) {
  const Folder folder;
  int number = 0;
  for (const Field& field : fields) {
    for (const Stored& stored : table) {
      const QString key = prefix + QString::fromLatin1(field.name);
      const auto memory = std::make_shared<MemorySettings>();
      if (stored.stored.isValid()) {
        memory->values.insert(key, stored.stored);
      }
      expectRead(memory, field, stored);
      if (stored.stored.typeId() == QMetaType::QString) {
        ++number;
        const QString path = folder / QString::number(number);
        writeBytes(path,
                   "[General]\n" + key.toLatin1() + "=" + stored.stored.toString().toUtf8() + "\n");
        expectRead(std::make_shared<model::QtSettingsStore>(path), field, stored);
      }
    }
  }
}

}  // namespace veyruna::tests
