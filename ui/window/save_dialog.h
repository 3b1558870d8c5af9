#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace veyruna::ui {

/// What a person is asked before a file is saved.
struct SaveQuestion {
  QString message;       ///< the dialog's title
  QString folder;        ///< where it opens
  QString proposedName;  ///< with its suffix
  QString typeName;      ///< "Plain text"
  QString suffix;        ///< "txt": the one type of file, added to a name without it
};

/// Opens the platform's save dialog over the window, which cannot be used meanwhile, and calls
/// `answered` with the path the person chose; never where they cancel. A file that exists is
/// answered only after the person has agreed to replace it.
void askWhereToSave(QWidget& window, const SaveQuestion& question,
                    const std::function<void(const QString& path)>& answered);

}  // namespace veyruna::ui
