#pragma once

#include <pagehost/textlinks.h>

#include <QtCore/QString>

class CBaseObject;

namespace board {

/// Gives a text of an object (pagehost::LabelPlaces) other letters, as an undo step.
void setLabelText(CBaseObject &object, qint32 propertyId, const QString &text);

/// Gives a text other links (pagehost::LabelLinks), as an undo step. `propertyId` is that of the links.
void setLabelLinks(CBaseObject &object, qint32 propertyId, const QVector<pagehost::TextLink> &links);

/// Whether the object is a text without a letter, which leaves the page (pagehost::VanishesEmpty).
bool vanishesEmpty(CBaseObject &object);

} // namespace board
