#include "tests/export/pdf_reader.h"

#include <QProcess>
#include <QRegularExpression>

namespace veyruna::tests {

using namespace Qt::StringLiterals;

namespace {

QString outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(120'000) || process.exitStatus() != QProcess::NormalExit ||
      process.exitCode() != 0) {
    throw std::runtime_error(program.toStdString() + ": " +
                             process.readAllStandardError().toStdString());
  }
  return QString::fromUtf8(process.readAllStandardOutput());
}

/// All matches of a pattern, each as its groups.
std::vector<QStringList> matches(const QString& pattern, const QString& text) {
  std::vector<QStringList> found;
  auto match = QRegularExpression(pattern).globalMatch(text);
  while (match.hasNext()) {
    found.push_back(match.next().capturedTexts());
  }
  return found;
}

}  // namespace

QStringList squeezedLines(const QString& text) {
  QStringList lines;
  for (const QString& line : QString(text).replace(u'\f', u'\n').split(u'\n')) {
    if (!line.simplified().isEmpty()) {
      lines.append(line.simplified());
    }
  }
  return lines;
}

PdfReader::PdfReader(const QByteArray& pdf) {
  writeBytes(path(), pdf);
}

std::vector<PdfReader::Page> PdfReader::pages() const {
  std::vector<Page> pages;
  const QString text = outputOf(u"pdfinfo"_s, {u"-l"_s, u"-1"_s, path()});
  for (const QStringList& size : matches(u"Page +\\d+ size: +([0-9.]+) x ([0-9.]+)"_s, text)) {
    pages.push_back({size.at(1).toDouble(), size.at(2).toDouble()});
  }
  return pages;
}

std::vector<PdfReader::Word> PdfReader::words() const {
  std::vector<Word> words;
  const QStringList pages =
      outputOf(u"pdftotext"_s, {u"-bbox"_s, path(), u"-"_s}).split(u"<page "_s).mid(1);
  const QString number = u"=\"(-?[0-9.]+)\""_s;
  const QString pattern = u"<word xMin"_s + number + u" yMin"_s + number + u" xMax"_s + number +
                          u" yMax"_s + number + u">([^<]*)"_s;
  for (qsizetype page = 0; page < pages.size(); ++page) {
    for (const QStringList& word : matches(pattern, pages.at(page))) {
      words.push_back({word.at(5), static_cast<std::size_t>(page), word.at(1).toDouble(),
                       word.at(2).toDouble(), word.at(3).toDouble(), word.at(4).toDouble()});
    }
  }
  return words;
}

QStringList PdfReader::lines() const {
  return squeezedLines(outputOf(u"pdftotext"_s, {u"-layout"_s, path(), u"-"_s}));
}

QStringList PdfReader::rawLines() const {
  return squeezedLines(outputOf(u"pdftotext"_s, {u"-raw"_s, path(), u"-"_s}));
}

QString PdfReader::information(const QString& name) const {
  for (const QString& line : outputOf(u"pdfinfo"_s, {path()}).split(u'\n')) {
    if (line.startsWith(name + u':')) {
      return line.mid(name.size() + 1).trimmed();
    }
  }
  return {};
}

QStringList PdfReader::embeddings() const {
  QStringList embeddings;
  for (const QString& line : outputOf(u"pdffonts"_s, {path()}).split(u'\n').mid(2)) {
    // From the end: object id and number, unicode, subset, embedded.
    const QStringList columns = line.simplified().split(u' ');
    if (columns.size() > 5) {
      embeddings.append(columns.at(columns.size() - 5));
    }
  }
  return embeddings;
}

QStringList PdfReader::imageSizes() const {
  QStringList sizes;
  for (const QString& line : squeezedLines(outputOf(u"pdfimages"_s, {u"-list"_s, path()})).mid(2)) {
    sizes.append(line.section(u' ', 3, 3) + u'x' + line.section(u' ', 4, 4));
  }
  return sizes;
}

QImage PdfReader::picture(int dotsPerInch) const {
  outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsPerInch), u"-png"_s, u"-singlefile"_s,
                           path(), folder_ / u"picture"_s});
  return QImage(folder_ / u"picture.png"_s).convertToFormat(QImage::Format_RGB32);
}

}  // namespace veyruna::tests
