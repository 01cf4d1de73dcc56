#pragma once

#include <QtCore/QString>

class QMimeData;

namespace board {

/// The path of the document among what is dropped; empty when there is none, or more than one.
QString droppedDocument(const QMimeData &data);
/// The path of a PDF in the same way.
QString droppedPdf(const QMimeData &data);
bool isPdf(const QString &path);

} // namespace board
