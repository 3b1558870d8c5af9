#include "export/export_content.h"

#include <QStringList>

#include "export/file_names.h"
#include "export/said_text.h"

namespace veyruna::exports {

namespace {

using documents::Form;
using model::AstronomyModel;

/// What the save dialog asks.
QString messageFor(Form form) {
  return QStringLiteral("Choose where to save the ") +
         (form == Form::text ? QStringLiteral("text") : saidText(documents::formEntry(form).name)) +
         QStringLiteral(" file");
}

QString nameFor(const AstronomyModel& model, const TabEntry& tab, Form form) {
  return proposedFileName(model, filePrefix(tab), saidText(documents::formEntry(form).extension));
}

/// The chart of a tab that has one.
QString chartSvg(const AstronomyModel& model, const TabEntry& tab) {
  return model.text(tab.sections.front().document);
}

QList<ReportSection> sectionsOf(const AstronomyModel& model, const TabEntry& tab) {
  QList<ReportSection> sections;
  for (const TabSection& section : tab.sections) {
    sections.append({heading(section.document), model.text(section.document),
                     documents::entryOf(section.document).columnHeadingLines});
  }
  return sections;
}

/// One table as it is; several under their headings between em dashes.
QString tablesText(const AstronomyModel& model, const TabEntry& tab) {
  if (tab.sections.size() == 1) {
    return model.text(tab.sections.front().document);
  }
  QStringList tables;
  for (const auto& [document, ownHeading] : tab.sections) {
    const QString shown = ownHeading.isEmpty() ? heading(document) : ownHeading.toString();
    tables.append(QStringLiteral("— ") + shown + QStringLiteral(" —\n\n") + model.text(document));
  }
  return tables.join(QStringLiteral("\n\n"));
}

}  // namespace

SheetSky skyOf(const AstronomyModel& model) {
  return {model.dateLabel(), inputPlaceText(model, u"  ")};
}

std::optional<SheetExport> sheetExport(const AstronomyModel& model, OutputTab tab, Form form) {
  const TabEntry& entry = entryOf(tab);
  if (entry.sections.empty() ||
      !documents::canBe(documents::entryOf(entry.sections.front().document).kind, form)) {
    return std::nullopt;
  }
  const SheetSky sky = skyOf(model);
  SheetExport content;
  static_cast<Sheet&>(content) =
      isChart(tab) ? chartSheet(entry, chartSvg(model, entry), sky)
                   : reportSheet(entry.reportTitle.toString(), sectionsOf(model, entry), sky);
  content.form = form;
  content.proposedName = nameFor(model, entry, form);
  content.message = messageFor(form);
  return content;
}

std::optional<NativeExport> nativeExport(const AstronomyModel& model, OutputTab tab) {
  const TabEntry& entry = entryOf(tab);
  if (entry.sections.empty()) {
    return std::nullopt;
  }
  const Form form = documents::ownForm(documents::entryOf(entry.sections.front().document).kind);
  return NativeExport{isChart(tab) ? chartSvg(model, entry) : tablesText(model, entry), form,
                      nameFor(model, entry, form), messageFor(form)};
}

}  // namespace veyruna::exports
