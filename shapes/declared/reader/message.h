#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

namespace declared {

/// Something that is wrong with a file: what, and where.
struct Message
{
    enum Severity { Warning, Error };

    Severity severity = Error;
    QString code; ///< "C07"
    int line = 0; ///< from 1
    int column = 0;
    QString text;

    /// "star.shape.svg:14:22: error C07: ...".
    QString told(const QString &file) const;
};

} // namespace declared
