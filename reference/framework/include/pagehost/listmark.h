#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QString>

namespace pagehost {

/// Users write lists with these marks at the beginning of lines, in texts of several lines (LabelPlaces).
constexpr char16_t listBullet = 0x2022;

/// The mark of a line that is an item of a list: a bullet and a space, or a number of at most three digits, a full
/// stop and a space ("12. "). Empty for any other line.
inline QString listMark(const QString &line)
{
    static const QRegularExpression mark(QStringLiteral("^(%1|[0-9]{1,3}\\.) ").arg(QChar(listBullet)));
    return mark.match(line).captured();
}

} // namespace pagehost
