#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

namespace Svg {

/// One name of a list of font families.
struct FamilyName
{
    QString text;
    /// A quoted name is never a keyword.
    bool quoted = false;
};

/// The names of a "font-family" (CSS Fonts 3 §3.1): strings, or words between commas. Leaves out empty names, and
/// those beyond `Limits::listedFamilies`.
QVector<FamilyName> parseFontFamilies(const QString &list);

/// Whether a list is longer than `Limits::familyCharacters` or has more commas than `Limits::listedFamilies` need.
bool hasTooManyFamilies(QStringView list);

} // namespace Svg
