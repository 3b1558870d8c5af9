#pragma once

#include <QUrl>

#include "export/output_tab.h"

/// The manual that ships with the program, where it is installed or else where it was built.
namespace veyruna::ui {

/// Its first page; invalid where there is no manual.
QUrl manual();

/// The chapter about a tab; invalid where there is no manual.
QUrl manualChapter(exports::OutputTab tab);

}  // namespace veyruna::ui
