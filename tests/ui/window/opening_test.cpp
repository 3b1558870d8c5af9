// A window that opens: nothing but it comes up, whatever was stored.
#include "tests/ui/window/windows.h"

namespace veyruna::ui {
namespace {

/// The kinds of the windows that came up while it lived.
class ShownWindows final : public QObject {
 public:
  ShownWindows() { qApp->installEventFilter(this); }
  [[nodiscard]] QStringList kinds() const { return kinds_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* const widget = qobject_cast<const QWidget*>(watched);
    if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow()) {
      kinds_.append(QString::fromLatin1(widget->metaObject()->className()));
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QStringList kinds_;
};

using Opening = tests::Windows;

TEST_F(Opening, NothingButTheWindowComesUp) {
  for (const bool isLive : {false, true}) {
    program.time().setOn(isLive);
    for (const QUuid& place : {model::manualCityID(), program.model().cities().at(3).id}) {
      program.model().setSelectedCityID(place);
      const ShownWindows shown;
      program.openWindow();
      finishCalculations();
      EXPECT_EQ(shown.kinds(), QStringList(QStringLiteral("veyruna::ui::MainView"))) << isLive;
    }
  }
}

}  // namespace
}  // namespace veyruna::ui
