#include "tests/soak/gestures.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

namespace veyruna::tests {

namespace {

using namespace Qt::StringLiterals;
using Keys = QList<Qt::Key>;

/// Numbers, clocks and places that fit, lie at an edge, or are refused; and names.
const QStringList& typedTexts() {
  static const QStringList texts = {u"0"_s,          u"12"_s,         u"-33"_s,
                                    u"40.5"_s,       u"90"_s,         u"90.1"_s,
                                    u"180"_s,        u"1e9"_s,        u"720"_s,
                                    u"2777778"_s,    u"18:15"_s,      u"24:00"_s,
                                    u"nan"_s,        u""_s,           u" "_s,
                                    u"40,5°N"_s,     u"Ebb"_s,        u"ångström"_s,
                                    u"\U0001F71C"_s, u"a \"name\""_s, QString(300, u'x')};
  return texts;
}

void press(QWidget& widget, const Keys& keys, Chance& chance,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  const QPointer<QWidget> target(&widget);
  for (int times = 1 + chance.below(3); times > 0 && target; --times) {
    QTest::keyClick(target, chance.oneOf(keys), modifiers);
  }
}

void turnWheel(QWidget& widget, QPoint at, Chance& chance) {
  const QPoint turns(0, chance.oneOf(QList<int>{-240, -120, 120, 240}));
  const auto modifiers = chance.oneIn(3) ? Qt::ControlModifier : Qt::NoModifier;
  QWheelEvent event(at, widget.mapToGlobal(at), {}, turns, Qt::NoButton, modifiers,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

void drag(QWidget& widget, QPoint from, Chance& chance) {
  const QPointer<QWidget> target(&widget);
  const QPoint to(chance.below(std::max(1, widget.width())),
                  chance.below(std::max(1, widget.height())));
  QTest::mousePress(&widget, Qt::LeftButton, {}, from);
  for (const QPoint& at : {(from + to) / 2, to}) {
    if (target) {
      QMouseEvent move(QEvent::MouseMove, at, target->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
      QApplication::sendEvent(target, &move);
    }
  }
  if (target) {
    QTest::mouseRelease(target, Qt::LeftButton, {}, to);
  }
}

void openContextMenu(QWidget& widget, QPoint at) {
  QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget.mapToGlobal(at));
  QApplication::sendEvent(&widget, &event);
}

const Keys arrows = {Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left, Qt::Key_Right,
                     Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};

/// What is done to anything that can be seen, so that a new kind of control is driven, too.
QString gesture(QWidget& widget, QPoint at, Chance& chance) {
  switch (chance.below(8)) {
    case 0:
      QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
      return u"click"_s;
    case 1:
      drag(widget, at, chance);
      return u"drag"_s;
    case 2:
      turnWheel(widget, at, chance);
      return u"wheel"_s;
    case 3:
      openContextMenu(widget, at);
      return u"context menu"_s;
    case 4:
      QTest::mouseMove(&widget, at);
      return u"point"_s;
    case 5:
      widget.setFocus();
      press(widget, arrows, chance);
      return u"arrows"_s;
    case 6:
      press(widget, {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Return},
            chance);
      return u"keys"_s;
    default:
      press(widget, {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0, Qt::Key_C, Qt::Key_A}, chance,
            chance.oneIn(2) ? Qt::ControlModifier : Qt::NoModifier);
      return u"letters"_s;
  }
}

QString type(QWidget& widget, Chance& chance) {
  const QString text = chance.oneOf(QList<QString>(typedTexts()));
  typeOver(widget, text);
  if (!chance.oneIn(3)) {
    press(widget, {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape}, chance);
  }
  return u"type \"%1\""_s.arg(text.left(20));
}

}  // namespace

std::optional<QPoint> pointInReach(const QWidget& widget, Chance& chance) {
  const QRect seen = widget.visibleRegion().boundingRect();
  if (seen.isEmpty()) {
    return std::nullopt;
  }
  const QPoint at =
      seen.topLeft() + QPoint(chance.below(seen.width()), chance.below(seen.height()));
  const QWidget* const window = widget.window();
  const QWidget* const met = window->childAt(widget.mapTo(window, at));
  const bool isMet = met == &widget || (met != nullptr && widget.isAncestorOf(met)) ||
                     (met == nullptr && window == &widget);
  return isMet ? std::optional(at) : std::nullopt;
}

QString doSomething(QWidget& widget, QPoint at, Chance& chance) {
  const bool isField = qobject_cast<QLineEdit*>(&widget) != nullptr ||
                       qobject_cast<QAbstractSpinBox*>(&widget) != nullptr;
  if (isField && !chance.oneIn(3)) {
    return type(widget, chance);
  }
  const bool isPressed = qobject_cast<QAbstractButton*>(&widget) != nullptr ||
                         qobject_cast<QMenuBar*>(&widget) != nullptr ||
                         qobject_cast<QComboBox*>(&widget) != nullptr;
  if (isPressed && !chance.oneIn(4)) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    return u"click"_s;
  }
  const bool isWalked = qobject_cast<QAbstractSlider*>(&widget) != nullptr ||
                        qobject_cast<QAbstractItemView*>(&widget) != nullptr ||
                        qobject_cast<QComboBox*>(&widget) != nullptr;
  if (isWalked && chance.oneIn(2)) {
    widget.setFocus();
    press(widget, arrows, chance);
    return u"arrows"_s;
  }
  return gesture(widget, at, chance);
}

void typeOver(QWidget& field, const QString& text) {
  const QPointer<QWidget> target(&field);
  field.setFocus();
  QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&field, Qt::Key_Delete);
  for (const QChar letter : text) {
    if (target) {
      QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
  }
}

}  // namespace veyruna::tests
