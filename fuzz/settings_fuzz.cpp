// Any bytes as a stored preference and as the whole preferences file: what is accepted is of its
// type and comes back the same, and the program can live with it.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cmath>
#include <utility>
#include <vector>

#include "fuzz/target.h"
#include "model/astronomy_model.h"
#include "model/id_text.h"
#include "model/qt_settings_store.h"
#include "model/stored_settings.h"
#include "model/stored_value.h"

using namespace veyruna;
using fuzz::promise;

namespace {

bool isSame(double a, double b) {
  return a == b && std::signbit(a) == std::signbit(b);
}

void tryAsOneValue(const QVariant& stored) {
  if (const auto number = model::storedDouble(stored)) {
    promise(std::isfinite(*number), "a number is finite");
    const auto again = model::storedDouble(model::storableText(*number));
    promise(again && isSame(*again, *number), "a number comes back the same");
  }
  if (const auto number = model::storedInteger(stored)) {
    promise(model::storedInteger(QString::number(*number)) == number,
            "an integer comes back the same");
    promise(model::storedDouble(stored) == static_cast<double>(*number),
            "an integer is a number, too");
  }
  if (const auto isOn = model::storedSwitch(stored)) {
    promise(model::storedSwitch(*isOn ? QStringLiteral("true") : QStringLiteral("false")) == isOn,
            "a switch comes back the same");
  }
  if (const auto text = model::storedText(stored)) {
    const std::optional<QUuid> id = model::idOf(*text);
    promise(!id || model::idOf(model::canonicalText(*id)) == id, "an id comes back the same");
  }
}

/// A store that only keeps what it is given, so that the model itself lists its keys.
struct Listed final : model::SettingsStore {
  std::vector<std::pair<QString, QVariant>> values;

  [[nodiscard]] QVariant stored(const QString& /*key*/) const override { return {}; }
  void store(const std::vector<std::pair<QString, QVariant>>& group) override {
    for (const auto& [key, value] : group) {
      const bool isNumber = value.typeId() == QMetaType::Double;
      promise(!isNumber || std::isfinite(value.toDouble()), "a preference is finite");
      // Zeros compare alike whatever their sign; the text does not.
      values.emplace_back(key, isNumber ? model::storableText(value.toDouble()) : value);
    }
  }
};

/// Every preference in that file as the model takes it.
std::vector<std::pair<QString, QVariant>> inputsIn(const QString& path) {
  const model::QtSettingsStore store(path);
  Listed inputs;
  model::storeSettings(inputs, model::readLocationSettings(store));
  model::storeSettings(inputs, model::readDateSettings(store));
  return inputs.values;
}

model::AstronomyModel::Surroundings keptIn(const QString& path) {
  return {std::make_shared<model::QtSettingsStore>(path), std::nullopt, &QUuid::createUuid,
          [](const std::function<void()>& /*task*/) {}};
}

void tryAsTheFile(const QByteArray& bytes) {
  static const QTemporaryDir folder(
      (QFile::exists(QStringLiteral("/dev/shm")) ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
      QStringLiteral("/veyruna-XXXXXX"));
  static int number = 0;
  ++number;
  const QString path = folder.filePath(QString::number(number));
  QFile file(path);
  promise(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "room for a file");
  file.close();

  const auto inputs = inputsIn(path);
  {
    model::AstronomyModel model(keptIn(path));
    model.recalculate();
    promise(model.isCalculating() != model.errorMessage().has_value(),
            "a moment is calculated or refused");
    model.setHour(model.hour());
    model.setLatNorth(model.latNorth());
  }
  const QString elsewhere = path + QStringLiteral(".read");
  promise(QFile::rename(path, elsewhere), "preferences are written");
  promise(inputsIn(elsewhere) == inputs, "what is stored is read again");
  for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
    QFile::remove(folder.filePath(name));
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static int argc = 0;
  static const QCoreApplication application(argc, nullptr);
  // Qt warns of every strange type that a file asks for.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const QByteArray text(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
  tryAsOneValue(QString::fromUtf8(text));
  tryAsOneValue(text);
  tryAsTheFile(text);
  return 0;
}
