#include "page/controlpoints.h"

#include <framework/cbaseobject.h>

#include <pagehost/objectplugin.h>
#include <pagehost/page.h>

#include <QtCore/QDataStream>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

namespace board {

namespace {

/// Larger ranges are those of points without limits, item units.
constexpr double largestRange = 1e5;
constexpr int decimals = 1;
constexpr QChar separator(u';');

QDataStream &operator>>(QDataStream &in, ControlPoint &point)
{
    qint32 number = 0;
    in >> number >> point.hint >> point.place >> point.press >> point.range >> point.movesAcross >> point.movesDown;
    point.number = number;
    return in;
}

QString numberText(double value)
{
    const double rounded = QString::number(value, 'f', decimals).toDouble();
    return QLocale().toString(rounded, 'g', 9);
}

/// The present value where the text is no number.
double numberFrom(const QString &text, double present)
{
    bool isNumber = false;
    const double value = QLocale().toDouble(text.trimmed(), &isNumber);
    return isNumber ? value : present;
}

} // namespace

QVector<ControlPoint> controlPointsOf(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::ControlPoints, out))
        return {};
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    QVector<ControlPoint> points;
    for (int i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        ControlPoint point;
        in >> point;
        if (in.status() == QDataStream::Ok && point.moves())
            points.append(point);
    }
    return points;
}

ControlPoint controlPointOf(CBaseObject &object, int number)
{
    const QVector<ControlPoint> points = controlPointsOf(object);
    for (const ControlPoint &point : points)
        if (point.number == number)
            return point;
    return {};
}

QRectF limitsOf(const ControlPoint &point, const CBaseObject &object)
{
    const auto *page = dynamic_cast<const pagehost::Page *>(object.GetPage());
    if (!page)
        return point.range;
    const QRectF around = object.mapFromScene(page->rect()).boundingRect();
    QRectF limits = point.range;
    if (limits.width() > largestRange) {
        limits.setLeft(qMin(around.left(), point.place.x()));
        limits.setRight(qMax(around.right(), point.place.x()));
    }
    if (limits.height() > largestRange) {
        limits.setTop(qMin(around.top(), point.place.y()));
        limits.setBottom(qMax(around.bottom(), point.place.y()));
    }
    return limits;
}

QString valueOf(const ControlPoint &point)
{
    if (!point.hint.isEmpty())
        return point.hint;
    QStringList numbers;
    if (point.movesAcross)
        numbers.append(numberText(point.place.x()));
    if (point.movesDown)
        numbers.append(numberText(point.place.y()));
    return numbers.join(separator + QLatin1Char(' '));
}

std::optional<double> numberIn(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("[-−]?[0-9]+([.,][0-9]+)?"));
    const QRegularExpressionMatch first = pattern.match(text);
    if (!first.hasMatch() || pattern.match(text, first.capturedEnd()).hasMatch())
        return std::nullopt;
    QString number = first.captured();
    return number.replace(QChar(u'−'), QLatin1Char('-')).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
}

std::optional<QPair<double, double>> valueRangeOf(CBaseObject &object, int number)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::ControlPointEnds, out))
        return std::nullopt;
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    for (int i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        qint32 which = 0;
        QString start, end;
        in >> which >> start >> end;
        const std::optional<double> first = numberIn(start);
        const std::optional<double> second = numberIn(end);
        if (which == number && first && second)
            return qMakePair(qMin(*first, *second), qMax(*first, *second));
    }
    return std::nullopt;
}

QPointF placeFrom(const QString &text, const ControlPoint &point)
{
    const QStringList numbers = text.split(separator);
    QPointF place = point.place;
    if (point.movesAcross)
        place.setX(numberFrom(numbers.first(), place.x()));
    if (point.movesDown)
        place.setY(numberFrom(numbers.value(point.movesAcross ? 1 : 0), place.y()));
    return place;
}

} // namespace board
