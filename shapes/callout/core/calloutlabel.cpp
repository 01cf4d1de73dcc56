// The text in a balloon.

#include "callout/core/callout.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace callout {

namespace {

/// Between the letters and the outline, document units.
constexpr double labelMargin = 6;
const QString labelKey = QStringLiteral("SVG_Label");

} // namespace

QRectF Callout::labelBox()
{
    return balloonBox().adjusted(labelMargin, labelMargin, -labelMargin, -labelMargin);
}

void Callout::drawLabel()
{
    const QRectF box = labelBox();
    m_letters = layOut(m_label.look(box.size()), m_letters.letters);
    set("label", "d", shapekit::pathOfLetters(m_isLabelHidden ? QPainterPath() : m_letters.outline, box.topLeft()));
    set("label", "fill", m_label.color().name());
}

QVector<shapekit::LabelPlace> Callout::labelPlaces()
{
    settleDrawing();
    return {m_label.place(labelBox(), m_letters.size)};
}

bool Callout::hideLabel(int propertyId)
{
    m_isLabelHidden = propertyId == m_label.properties().front()->id();
    ShapeOfType::updateSVG(false);
    invalidate();
    return true;
}

bool Callout::GetSettingArray(QJsonArray &settings)
{
    ShapeOfType::GetSettingArray(settings);
    for (int i = 0; i < settings.size(); ++i) {
        const QJsonObject control = settings.at(i).toObject();
        if (const auto part = m_label.partOfControl(control.value(QLatin1String("id")).toString()))
            settings[i] = letterControl(control, *part);
    }
    return true;
}

void Callout::saveValues(QJsonObject &object)
{
    ShapeOfType::saveValues(object);
    if (!m_label.isAsNew())
        object[labelKey] = m_label.toJson();
}

void Callout::loadValues(const QJsonObject &object)
{
    m_label.fromJson(object.value(labelKey).toObject());
    ShapeOfType::loadValues(object);
}

QByteArray Callout::furtherValue() const
{
    return m_label.isAsNew() ? QByteArray() : QJsonDocument(m_label.toJson()).toJson(QJsonDocument::Compact);
}

void Callout::takeFurtherValue(const QByteArray &bytes)
{
    m_label.fromJson(QJsonDocument::fromJson(bytes).object());
}

} // namespace callout
