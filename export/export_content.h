#pragma once

#include <QString>
#include <optional>

#include "documents/forms.h"
#include "export/output_tab.h"
#include "export/sheet.h"
#include "model/astronomy_model.h"

/// What is saved, as values: they hold what was on screen when the command was chosen, whatever
/// the model shows by the time a place on disk has been found.
namespace veyruna::exports {

/// A tab's sheet, to be saved in one of the forms that are made of it.
struct SheetExport : Sheet {
  documents::Form form = documents::Form::pdf;
  QString proposedName;  ///< ends in the form's extension
  QString message;       ///< what the save dialog asks
};

/// A text to be saved as it is.
struct NativeExport {
  QString text;
  documents::Form form;  ///< SVG or text
  QString proposedName;
  QString message;  ///< what the save dialog asks
};

/// The moment of the last calculation and the place of the inputs.
SheetSky skyOf(const model::AstronomyModel& model);

/// What the tab saves in a form that is made of its documents: HTML, PDF or, where it shows a
/// chart, PNG; nothing for the location, and nothing in a form that the tab's cannot have. Before
/// the first calculation the documents are empty.
std::optional<SheetExport> sheetExport(const model::AstronomyModel& model, OutputTab tab,
                                       documents::Form form);

/// What the tab saves as it is: a chart as SVG, tables as text; nothing for the location.
std::optional<NativeExport> nativeExport(const model::AstronomyModel& model, OutputTab tab);

}  // namespace veyruna::exports
