#include <checklist/randomedits.h>

#include <checklist/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>
#include <QtGui/QBrush>

namespace checklist {

namespace {

constexpr double longestDrag = 60; // item units

template<class Value> QByteArray bytesOf(const Value &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

} // namespace

RandomEdits::RandomEdits(const ShapeDriver &shape, unsigned startValue)
    : m_shape(shape)
    , m_random(startValue)
{
}

void RandomEdits::edit()
{
    const int kind = upTo(5);
    if (kind <= 2 && m_shape.controlPointCount() > 0)
        dragAnyControlPoint();
    else if (kind > 4 || !setAnyStyle())
        answerAnyControl();
}

void RandomEdits::edit(int count)
{
    for (int i = 0; i < count; ++i)
        edit();
}

QString RandomEdits::answerTo(const QJsonObject &control)
{
    const QString type = control[QStringLiteral("type")].toString();
    if (type == QLatin1String("switch"))
        return control[QStringLiteral("on")].toBool() ? QStringLiteral("false") : QStringLiteral("true");
    if (type == QLatin1String("colorpicker"))
        return anyColor().name(QColor::HexArgb);
    if (type == QLatin1String("combobox")) {
        const int entries = qMax(control[QStringLiteral("icons")].toArray().size(),
                                 control[QStringLiteral("texts")].toArray().size());
        return QString::number((control[QStringLiteral("index")].toInt() + 1 + upTo(entries - 2)) % entries);
    }
    if (type == QLatin1String("slider")) {
        const double lowest = control[QStringLiteral("minimum")].toString().toDouble();
        const double highest = control[QStringLiteral("maximum")].toString().toDouble();
        const double step = control[QStringLiteral("step")].toString().toDouble();
        const int steps = qRound((highest - lowest) / step);
        const int present = qRound((control[QStringLiteral("value")].toString().toDouble() - lowest) / step);
        return QString::number(lowest + (present + 1 + upTo(steps - 1)) % (steps + 1) * step);
    }
    return QStringLiteral("%1 %2 %3").arg(between(-9, 9)).arg(upTo(9)).arg(upTo(9));
}

void RandomEdits::dragAnyControlPoint()
{
    const int number = 1 + upTo(m_shape.controlPointCount() - 1);
    const_cast<ShapeDriver &>(m_shape).dragControlPoint(
        number, QPointF(between(-longestDrag, longestDrag), between(-longestDrag, longestDrag)));
}

bool RandomEdits::setAnyStyle()
{
    int property = PROP_SVG_PENCOLOR + upTo(3);
    QByteArray value;
    switch (property) {
    case PROP_SVG_PENCOLOR:
        value = bytesOf(anyColor());
        break;
    case PROP_SVG_PENSTYLE:
        value = bytesOf(qint32(1 + upTo(4)));
        break;
    case PROP_SVG_PENWIDTH:
        value = bytesOf(qint32(upTo(7)));
        break;
    default:
        value = bytesOf(QBrush(anyColor()));
        break;
    }
    if (!m_shape.core().findPropItemByPropID(property))
        return false;
    QDataStream in(value);
    return m_shape.core().SetAttribute(property, in, true, true);
}

void RandomEdits::answerAnyControl()
{
    QString json;
    m_shape.object().GetSettingJson(json);
    const QJsonArray all = QJsonDocument::fromJson(json.toUtf8())[QStringLiteral("settings")].toArray();
    QVector<QJsonObject> controls;
    for (const QJsonValue &control : all)
        if (m_leftOut.isEmpty() || control.toObject()[QStringLiteral("section")].toString() != m_leftOut)
            controls.append(control.toObject());
    if (controls.isEmpty())
        return;
    const QJsonObject control = controls.at(upTo(controls.size() - 1));
    const QJsonObject answer{{control[QStringLiteral("id")].toString(), answerTo(control)}};
    m_shape.object().SetSettingJson(QString::fromUtf8(QJsonDocument(answer).toJson()), true, true);
}

int RandomEdits::upTo(int highest)
{
    return highest <= 0 ? 0 : int(m_random() % unsigned(highest + 1));
}

double RandomEdits::between(double low, double high)
{
    constexpr int steps = 1 << 20;
    return low + (high - low) * upTo(steps) / steps;
}

QColor RandomEdits::anyColor()
{
    return QColor(upTo(255), upTo(255), upTo(255), 128 + upTo(127));
}

} // namespace checklist
