#include "cli/batch/row_files.h"

#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>
#include <utility>

#include "model/name_parts.h"

namespace veyruna::cli {

namespace {

using documents::Document;
using documents::Entry;

QString textOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

qsizetype bytesOf(const QString& text) {
  return text.toUtf8().size();
}

/// "Sun & Moon Hourly": the window saves several tables in one file, a row each in one of its own.
QString titleOf(Document document) {
  const Entry& entry = documents::entryOf(document);
  const QString title = textOf(entry.fileTitle);
  return entry.kind == documents::Kind::table ? title + QChar(u' ') + textOf(entry.heading) : title;
}

/// The text with "-" for each character that some file system refuses or takes for a separator.
QString acceptable(const QString& text) {
  QString accepted = model::withoutSeparators(text);
  for (QChar& character : accepted) {
    const bool isLineBreak = character.category() == QChar::Separator_Line ||
                             character.category() == QChar::Separator_Paragraph;
    if (isLineBreak || QStringView(u"\\:*?\"<>|").contains(character)) {
      character = u'-';
    }
  }
  return accepted;
}

/// Whether a file system takes a name that begins so for a device, whatever stands behind the dot.
bool isDevice(const QString& name) {
  static const QStringList devices = [] {
    QStringList names = {QStringLiteral("con"),    QStringLiteral("prn"),
                         QStringLiteral("aux"),    QStringLiteral("nul"),
                         QStringLiteral("conin$"), QStringLiteral("conout$")};
    for (const QChar digit : QStringLiteral("0123456789¹²³")) {
      names << QStringLiteral("com") + digit << QStringLiteral("lpt") + digit;
    }
    return names;
  }();
  return devices.contains(name.section(u'.', 0, 0).trimmed().toLower());
}

/// A row's name as the beginning of a file's, which hides no file and means none of the system's.
QString asBeginning(const QString& name) {
  const QString accepted = acceptable(name);
  return accepted.startsWith(u'.') || isDevice(accepted) ? QChar(u'_') + accepted : accepted;
}

/// Coordinates as the window has them in names, with one blank between them.
QString placeIn(const BatchRow& row) {
  const astro::Observer& observer = row.sky.observer;
  const QString words = textOf(row.sky.place);
  const bool isCoordinates = placeAt(observer.latitude, observer.longitude).words == row.sky.place;
  return isCoordinates ? words.simplified() : words;
}

QString nameOf(const BatchRow& row, const RowFile& file, int number) {
  const QString between = QStringLiteral(" - ");
  const QString numbered = number > 1 ? QStringLiteral(" (%1)").arg(number) : QString();
  const QString middle = numbered + between + titleOf(file.document) + between;
  const QString end = between + model::momentInName(row.reading) + QChar(u'.') +
                      textOf(documents::formEntry(file.form).extension);
  const QString place = acceptable(placeIn(row));
  const qsizetype room = model::longestNameBytes - bytesOf(middle) - bytesOf(end);
  // Of two long names each keeps half of the room.
  const QString name =
      model::fitted(asBeginning(textOf(row.name)), room - std::min(bytesOf(place), room / 2));
  return name + middle + model::fitted(place, room - bytesOf(name)) + end;
}

/// What two names have in common that one file system or another takes for the same.
std::string keyOf(const QString& name) {
  return name.toCaseFolded().normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace

RowFileNames::RowFileNames(std::vector<RowFile> files) : files_(std::move(files)) {}

std::vector<std::string> RowFileNames::namesOf(const BatchRow& row) {
  int& last = lastNumbers_[files_.empty() ? std::string() : keyOf(nameOf(row, files_.front(), 1))];
  for (;;) {
    ++last;
    std::vector<std::string> names;
    std::vector<std::string> keys;
    for (const RowFile& file : files_) {
      const QString name = nameOf(row, file, last);
      names.push_back(name.toStdString());
      keys.push_back(keyOf(name));
    }
    if (std::ranges::none_of(keys,
                             [this](const std::string& key) { return taken_.contains(key); })) {
      taken_.insert(keys.begin(), keys.end());
      return names;
    }
  }
}

}  // namespace veyruna::cli
