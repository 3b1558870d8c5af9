#include "tests/ui/golden/widget_properties.h"

#include <QMetaProperty>
#include <QRect>
#include <QScrollBar>
#include <QSizePolicy>
#include <QUrl>

#include "tests/support/source_path.h"
#include "ui/controls/program.h"

namespace veyruna::tests {

namespace {

/// A property and what is not worth a word, as it is written here.
struct Property {
  const char* name;
  const char* usual;
};

constexpr Property properties[] = {
    {"windowTitle", ""},
    {"title", ""},
    {"text", ""},
    {"currentText", ""},
    {"placeholderText", ""},
    {"toolTip", ""},
    {"accessibleName", ""},
    {"accessibleDescription", ""},
    {"shortcut", ""},
    {"enabled", "true"},
    {"focusPolicy", "NoFocus"},
    {"windowModality", "NonModal"},
    {"contextMenuPolicy", "DefaultContextMenu"},
    {"sizePolicy", "Preferred x Preferred"},
    {"minimumSize", "0x0"},
    {"maximumSize", "16777215x16777215"},
    {"autoFillBackground", "false"},
    {"frameShape", "NoFrame"},
    // Labels
    {"alignment", "AlignLeading|AlignVCenter"},
    {"wordWrap", "false"},
    {"textFormat", "AutoText"},
    {"textInteractionFlags", "LinksAccessibleByMouse"},
    {"margin", "0"},
    {"indent", "-1"},
    // Buttons
    {"checkable", "false"},
    {"checked", "false"},
    {"autoRepeat", "false"},
    {"autoDefault", "false"},
    {"default", "false"},
    {"flat", "false"},
    {"iconSize", "16x16"},
    {"toolButtonStyle", "ToolButtonIconOnly"},
    {"autoRaise", "false"},
    {"arrowType", "NoArrow"},
    // Fields, lists and sliders
    {"readOnly", "false"},
    {"maxLength", "32767"},
    {"wrapping", "false"},
    {"count", ""},
    {"editable", "false"},
    {"sizeAdjustPolicy", "AdjustIgnored"},
    {"minimumContentsLength", "0"},
    {"orientation", ""},
    {"minimum", "0"},
    {"maximum", ""},
    {"singleStep", "1"},
    {"pageStep", ""},
    {"value", ""},
    {"textVisible", ""},
    // Texts and tables
    {"verticalScrollBarPolicy", "ScrollBarAsNeeded"},
    {"horizontalScrollBarPolicy", "ScrollBarAsNeeded"},
    {"widgetResizable", "false"},
    {"lineWrapMode", "NoWrap"},
    {"undoRedoEnabled", "false"},
    {"selectionBehavior", "SelectItems"},
    {"selectionMode", ""},
    {"editTriggers", ""},
    {"tabKeyNavigation", "false"},
    {"horizontalScrollMode", "ScrollPerItem"},
    // Columns and bars
    {"childrenCollapsible", ""},
    {"movable", ""},
    {"floatable", ""},
};

QString sizeText(QSize size) {
  return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString policyText(const QSizePolicy& policy) {
  const auto policies = QMetaEnum::fromType<QSizePolicy::Policy>();
  QString text = QStringLiteral("%1 x %2").arg(
      QString::fromLatin1(policies.valueToKey(policy.horizontalPolicy())),
      QString::fromLatin1(policies.valueToKey(policy.verticalPolicy())));
  if (policy.horizontalStretch() != 0 || policy.verticalStretch() != 0) {
    text += QStringLiteral(" %1:%2").arg(policy.horizontalStretch()).arg(policy.verticalStretch());
  }
  return policy.retainSizeWhenHidden() ? text + QStringLiteral(" retained") : text;
}

QString valueText(const QMetaProperty& property, const QVariant& value) {
  if (property.isFlagType()) {
    return QString::fromLatin1(property.enumerator().valueToKeys(value.toInt()));
  }
  if (property.isEnumType()) {
    return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
  }
  switch (value.typeId()) {
    case QMetaType::QSize:
      return sizeText(value.toSize());
    case QMetaType::QSizePolicy:
      return policyText(value.value<QSizePolicy>());
    case QMetaType::QString:
    case QMetaType::QKeySequence:
      return value.toString().isEmpty() ? QString() : quoted(value.toString());
    default:
      return value.toString();
  }
}

}  // namespace

QString quoted(QString text) {
  const QString root = QUrl::fromLocalFile(QString::fromStdString(sourcePath(""))).toString();
  text.replace(root, QStringLiteral("file:///…/"));
  text.replace(QStringLiteral("Version ") + ui::programVersion(), QStringLiteral("Version …"));
  text.replace(QStringLiteral("Build ") + ui::programBuild(), QStringLiteral("Build …"));
  text.replace(QLatin1Char('\n'), QStringLiteral("⏎"));
  return QLatin1Char('"') + text + QLatin1Char('"');
}

QStringList unusualProperties(const QWidget& widget) {
  QStringList unusual;
  const QMetaObject& kind = *widget.metaObject();
  const bool isScrollBar = qobject_cast<const QScrollBar*>(&widget) != nullptr;
  for (const auto& [name, usual] : properties) {
    const int index = kind.indexOfProperty(name);
    if (index < 0 || (isScrollBar && QByteArray(name) != "orientation")) {
      continue;
    }
    const QMetaProperty property = kind.property(index);
    const QString value = valueText(property, property.read(&widget));
    if (value != QLatin1String(usual)) {
      unusual.append(QString::fromLatin1(name) + QLatin1Char(' ') + value);
    }
  }
  return unusual;
}

}  // namespace veyruna::tests
