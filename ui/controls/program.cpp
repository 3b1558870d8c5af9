#include "ui/controls/program.h"

namespace veyruna::ui {

QString programVersion() {
  return QStringLiteral(VEYRUNA_VERSION);
}
QString programBuild() {
  return QStringLiteral(VEYRUNA_BUILD_NUMBER);
}

}  // namespace veyruna::ui
