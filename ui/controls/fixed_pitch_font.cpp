#include "ui/controls/fixed_pitch_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QStringList>

namespace veyruna::ui {

bool isFixedPitch(const QFont& font) {
  // Some themes name a proportional font for tables, and some fonts only say that they are fixed.
  const QFontMetricsF drawn(font);
  return QFontInfo(font).fixedPitch() &&
         drawn.horizontalAdvance(QLatin1Char('i')) == drawn.horizontalAdvance(QLatin1Char('W'));
}

QFont fixedPitchFont(const QFont& wanted, const std::function<bool(const QFont&)>& isFixed) {
  if (isFixed(wanted)) {
    return wanted;
  }
  QFont font = wanted;
  font.setStyleHint(QFont::Monospace);
  QStringList families = QFontDatabase::families();
  families.prepend(QStringLiteral("monospace"));
  for (const QString& family : families) {
    font.setFamilies({family});
    if (isFixed(font)) {
      return font;
    }
  }
  return wanted;
}

}  // namespace veyruna::ui
