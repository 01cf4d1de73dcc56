#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QVector>

/// A sample and the readable listing beside it.
namespace frozen {

/// A line of a listing.
struct Field
{
    int offset; ///< of a stream's field, else 0
    QString
        type; ///< "bool", "byte", "quint16" (hexadecimal), "qint32", "double", "string", "hex"; for JSON "number"
    QString value;      ///< as it stands in the listing
    QString name;       ///< of the field, or the key
    QByteArray encoded; ///< the bytes of a stream's field, big-endian
};

/// The names of all samples with that suffix ("bin" or "json"), without it.
QStringList sampleNames(const QString &suffix);
/// The contents of a file of the samples; null when there is none.
QByteArray contents(const QString &fileName);

/// The listing of a stream.
QVector<Field> streamListing(const QString &name);
/// The listing of a JSON object; keys of objects in it are joined by dots.
QVector<Field> jsonListing(const QString &name);

/// The members of an object as a listing writes them, in the order of their keys.
QStringList membersOf(const QJsonObject &object, const QString &prefix = {});

} // namespace frozen
