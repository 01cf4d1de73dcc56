#pragma once

#include <QtCore/QStringList>
#include <QtGui/QAccessible>

class QObject;

namespace boardtest {

/// A screen reader that writes down what it would say. One at a time.
class ReaderDriver
{
public:
    ReaderDriver();
    ~ReaderDriver();

    /// Lines since the last call: "focus: Star, 5 corners, graphic, at 10, 20, 30 × 40", "value: 24",
    /// "alert: Saved", "now: at 18, 20, 30 × 40", "page: Page 1 of 1, 2 objects".
    QStringList said();
    /// "Corner radius, slider, 24".
    static QString wordsFor(QAccessibleInterface *interface);
    static QAccessibleInterface *of(QObject *object) { return QAccessible::queryAccessibleInterface(object); }
};

} // namespace boardtest
