#include "grammar/paints.h"

#include "grammar/colors.h"

#include <QtCore/QUrl>

namespace Svg {

namespace {

const QLatin1String referenceStart("url(");

std::optional<Paint> plainPaint(QStringView text, const QColor &current)
{
    Paint paint;
    if (text.compare(QLatin1String("none"), Qt::CaseInsensitive) == 0) {
        paint.kind = Paint::None;
        return paint;
    }
    if (text.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0) {
        paint.kind = Paint::CurrentColor;
        paint.followsColor = true;
        return paint;
    }
    if (text == QLatin1String("context-fill") || text == QLatin1String("context-stroke")) {
        paint.kind = text.endsWith(QLatin1Char('l')) ? Paint::ContextFill : Paint::ContextStroke;
        return paint;
    }
    const std::optional<QColor> color = parseColor(text, {current});
    if (!color)
        return std::nullopt;
    paint.kind = Paint::Color;
    paint.color = *color;
    return paint;
}

QStringView unquoted(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.size() < 2)
        return trimmed;
    const QChar quote = trimmed.front();
    if ((quote != QLatin1Char('"') && quote != QLatin1Char('\'')) || trimmed.back() != quote)
        return trimmed;
    return trimmed.mid(1, trimmed.size() - 2);
}

} // namespace

QString localReference(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (!trimmed.startsWith(QLatin1Char('#')))
        return QString();
    const QString id = trimmed.mid(1).toString();
    // References are URIs, whose characters may be percent-encoded (RFC 3986 §2.1).
    return id.contains(QLatin1Char('%')) ? QUrl::fromPercentEncoding(id.toUtf8()) : id;
}

QString functionReference(QStringView text, QStringView *rest)
{
    const QStringView trimmed = text.trimmed();
    if (!trimmed.startsWith(referenceStart, Qt::CaseInsensitive))
        return QString();
    const qsizetype end = trimmed.indexOf(QLatin1Char(')'));
    if (end < 0)
        return QString();
    if (rest)
        *rest = trimmed.mid(end + 1);
    return localReference(unquoted(trimmed.mid(referenceStart.size(), end - referenceStart.size())));
}

std::optional<Paint> parsePaint(QStringView text, const QColor &current)
{
    const QStringView trimmed = text.trimmed();
    if (!trimmed.startsWith(referenceStart, Qt::CaseInsensitive))
        return plainPaint(trimmed, current);
    const qsizetype end = trimmed.indexOf(QLatin1Char(')'));
    if (end < 0)
        return std::nullopt;
    Paint paint;
    paint.kind = Paint::Server;
    paint.server = localReference(unquoted(trimmed.mid(referenceStart.size(), end - referenceStart.size())));
    const QStringView rest = trimmed.mid(end + 1).trimmed();
    if (rest.isEmpty())
        return paint;
    const std::optional<Paint> fallback = plainPaint(rest, current);
    if (!fallback)
        return std::nullopt;
    if (fallback->kind == Paint::Color)
        paint.color = fallback->color;
    paint.followsColor = fallback->followsColor;
    return paint;
}

} // namespace Svg
