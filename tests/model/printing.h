#pragma once

#include <QByteArray>
#include <QString>
#include <QUuid>
#include <ostream>

// How a failed comparison shows Qt's texts: as texts.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << '"' << bytes.toPercentEncoding(" {}[]\"':,\n").toStdString() << '"';
}
inline void PrintTo(const QUuid& id, std::ostream* out) {
  *out << id.toString().toStdString();
}
