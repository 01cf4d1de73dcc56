#pragma once

#include <QtCore/QString>

class QMenu;
class QWidget;

namespace board {

class Workspace;

/// The user's own folder of shapes, which the board watches.
QString userShapeFolder();

/// Writes a shape of this name to begin with into the user's folder, beside those that are there already. The
/// file's path, or an empty text and the reason where it could not be written.
QString writeNewShape(const QString &name, QString *problem);

/// Adds making a shape and opening the user's folder to a menu. Dialogs belong to `window`.
void addShapeFolderActions(QMenu *menu, const Workspace *workspace, QWidget *window);

} // namespace board
