// Every setting of the model that is stored can be seen in the sidebar.
#include <QMetaProperty>
#include <gtest/gtest.h>

#include "tests/ui/shown_window.h"
#include "ui/sidebar/sidebar_view.h"

namespace veyruna::ui {
namespace {

struct EverySetting : testing::Test, tests::ShownWindow {
  /// The sidebar as it looks, without a cursor that blinks.
  QImage picture() {
    window.setFocus();
    QTest::qWait(0);
    return window.findChild<SidebarView*>()->grab().toImage();
  }
};

/// Another value of the same kind, within every range.
QVariant another(const QVariant& value, const QUuid& place) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return !value.toBool();
    case QMetaType::Double:
      return value.toDouble() + 1.5;
    case QMetaType::LongLong:
      return value.toLongLong() + 1;
    case QMetaType::QUuid:
      return place;
    default:
      return {};
  }
}

TEST_F(EverySetting, IsSeenInTheSidebar) {
  const QUuid place = std::get<QUuid>(model.addCity(QStringLiteral("Salt Quay")));
  const std::size_t storedBefore = settings->groups.size();
  std::size_t changed = 0;
  const QMetaObject& meta = model::AstronomyModel::staticMetaObject;
  for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    if (!property.isWritable() || qstrcmp(property.name(), "horoscopeBlackAndWhite") == 0) {
      continue;  // an output, or what is not stored and stands on one tab alone
    }
    const QVariant first = property.read(&model);
    const QVariant second = another(first, place);
    ASSERT_TRUE(second.isValid()) << property.name();
    const QImage before = picture();
    ASSERT_TRUE(property.write(&model, second)) << property.name();
    EXPECT_NE(picture(), before) << property.name() << " is not seen";
    ASSERT_TRUE(property.write(&model, first)) << property.name();
    EXPECT_EQ(picture(), before) << property.name();
    ++changed;
  }
  EXPECT_EQ(settings->groups.size() - storedBefore, 2 * changed);
  EXPECT_EQ(settings->values.size(), static_cast<qsizetype>(changed)) << "each is stored";
}

}  // namespace
}  // namespace veyruna::ui
