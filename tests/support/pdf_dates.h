#pragma once

#include <QByteArray>
#include <stdexcept>

namespace veyruna::tests {

/// A PDF's bytes without the moment of its making, the one thing in it that is not its content.
inline QByteArray withoutDates(QByteArray pdf) {
  const QByteArray key = "/CreationDate (";
  const qsizetype begin = pdf.indexOf(key) + key.size();
  const qsizetype end = pdf.indexOf(')', begin);
  if (begin < key.size() || end < 0) {
    throw std::runtime_error("no PDF, or one without the date of its making");
  }
  return pdf.replace(begin, end - begin, QByteArray());
}

}  // namespace veyruna::tests
