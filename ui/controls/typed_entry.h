#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QFocusEvent;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace veyruna::ui {

class RefusedEdge;

/// What a text is worth that is being typed.
enum class Reading {
  accepted,
  unfinished,  ///< no value yet, but it may become one: "03:"
  refused      ///< no value, and typing on will not make it one: day 45
};

/// Watches over what a person types into a field until it counts or is given up.
/// It counts when the field is ended: by Return, by leaving it, or by whoever calls finish().
/// Escape gives it up. What is refused gets an edge and a note that says what is accepted, and is
/// never turned into another value: Return leaves it standing to be mended; a field that is left
/// goes back to the value in use, and its note says so.
class TypedEntry final : public QObject {
  Q_OBJECT

 public:
  /// How the field reads its texts.
  struct Rules {
    std::function<Reading(const QString& text)> read;
    /// What the note says of a text that is refused or unfinished: "Day 1 to 30".
    std::function<QString(const QString& text)> accepted;
    /// Makes an accepted text the value in use; calls show().
    std::function<void(const QString& text)> take;
  };

  /// The line may be the field itself.
  TypedEntry(QWidget& field, QLineEdit& line, Rules rules);

  /// Shows the value in use as the field writes it; what was being typed is gone.
  void show(const QString& text);

  /// Takes over what is being typed, or goes back to the value in use.
  void finish();

  /// Goes back to the value in use without a word.
  void giveUp();

  [[nodiscard]] bool isTyping() const { return isTyping_; }

 Q_SIGNALS:
  /// What the person is to know about what they typed; empty when there is nothing any more.
  void noted(const QString& note);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void judge();
  void take();
  void onKey(const QKeyEvent& event);
  void onLeaving(const QFocusEvent& event);
  void note(const QString& note, bool isRefused);

  QWidget& field_;
  QLineEdit& line_;
  Rules rules_;
  RefusedEdge* edge_;
  QString inUse_;
  QString note_;
  bool isTyping_ = false;
};

}  // namespace veyruna::ui
