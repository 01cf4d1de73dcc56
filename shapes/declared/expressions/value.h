#pragma once

#include <shapekit/suggestion.h>

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtCore/QtNumeric>

namespace declared {

/// The types of expressions; known when a file is read, so that nothing has to be checked while drawing.
enum class Type : quint8 { Number, Point, Text };

/// "number", "point" or "text".
QString nameOf(Type type);

/// A value of any type; which one it is, is known from elsewhere.
struct Value
{
    Value() = default;
    Value(double number)
        : point(number, 0)
    {
    }
    Value(QPointF point)
        : point(point)
    {
    }
    Value(const QString &text)
        : text(text)
    {
    }

    double number() const { return point.x(); }
    /// Texts are made of numbers, too: one whose number is not finite gets a point that is not.
    bool isFinite() const { return qIsFinite(point.x()) && qIsFinite(point.y()); }
    static Value notFinite() { return QPointF(qQNaN(), qQNaN()); }

    QPointF point; ///< a number stands in x
    QString text;
};

/// Something wrong with a file: a documented code, and where it stands.
struct Fault
{
    QString code;   ///< "C20"
    int offset = 0; ///< into the text that was read, UTF-16 units
    QString message;
};

/// Line and column of a text, from 1; a column is one UTF-16 unit.
struct Place
{
    int line = 1;
    int column = 1;
};

Place placeOf(const QString &text, int offset);

/// How numbers are written into attributes: ten digits.
QString numberText(double number);
void appendNumber(QString &text, double number);

using shapekit::nearestName;
using shapekit::suggestion;

} // namespace declared
