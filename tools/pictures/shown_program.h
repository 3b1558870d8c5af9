#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>
#include <QTemporaryDir>
#include <memory>

#include "astro/invariant.h"
#include "tools/pictures/evenings.h"
#include "ui/window/application.h"
#include "ui/window/main_view.h"

namespace veyruna::pictures {

enum class Look { light, dark };

/// Gives all windows the style, colours and type that the pictures have, whatever the desktop's
/// are.
void setLook(Look look);

/// The program with one window on an evening. Nothing of the user's is
/// read or written, and what it calculates is there when a setter returns.
class ShownProgram {
 public:
  ShownProgram(QSize size, const Evening& evening);
  ~ShownProgram();
  ShownProgram(const ShownProgram&) = delete;
  ShownProgram& operator=(const ShownProgram&) = delete;

  [[nodiscard]] ui::VeyrunaAstroApp& program() { return program_; }
  [[nodiscard]] ui::MainView& window() { return *window_; }

  /// The control of this object name; one that is missing is a broken invariant.
  template <class Control>
  Control& find(const char* name) {
    auto* const control = window_->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      astro::stopOnBrokenInvariant(name);
    }
    return *control;
  }

  /// What a part of the window shows when all of it has come, the map too.
  QImage pictureOf(QWidget& part);

  /// Moves the pointer over a part of the window; in its points.
  static void pointAt(QWidget& part, QPointF point);
  static void clickAt(QWidget& part, QPointF point);

 private:
  void settle();

  QTemporaryDir folder_;
  ui::VeyrunaAstroApp program_;
  ui::MainView* window_;
};

}  // namespace veyruna::pictures
