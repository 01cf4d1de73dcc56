#include <files/documentcodec.h>

#include <framework/ilocalize.h>

namespace pagehost {

namespace {

constexpr int mostMessages = 200;

QString withArguments(QString text, const QStringList &arguments)
{
    // All at once, so that arguments may contain "%1" themselves.
    switch (arguments.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(arguments[0]);
    default:
        return text.arg(arguments[0], arguments[1]);
    }
}

QString place(const FileMessage &message, const ILocalize &localizer)
{
    QStringList parts;
    const auto add = [&](const char *key, const QStringList &arguments) {
        parts.append(withArguments(localizer.text(QLatin1String(key)), arguments));
    };
    if (message.page > 0)
        add("IDS_FILE_WHERE_PAGE", {QString::number(message.page)});
    if (message.object > 0)
        add("IDS_FILE_WHERE_OBJECT", {QString::number(message.object)});
    if (message.line > 0)
        add("IDS_FILE_WHERE_LINE", {QString::number(message.line), QString::number(message.column)});
    else if (message.offset >= 0)
        add("IDS_FILE_WHERE_BYTE", {QString::number(message.offset)});
    return parts.join(QStringLiteral(", "));
}

FileMessage messageOf(FileMessage::Severity severity, const QString &textKey, const QStringList &arguments)
{
    FileMessage message;
    message.severity = severity;
    message.textKey = textKey;
    message.arguments = arguments;
    return message;
}

} // namespace

QString describe(const FileMessage &message, const ILocalize &localizer)
{
    const QString text = withArguments(localizer.text(message.textKey), message.arguments);
    const QString where = place(message, localizer);
    return where.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, where);
}

FileMessage warning(const QString &textKey, const QStringList &arguments)
{
    return messageOf(FileMessage::Warning, textKey, arguments);
}

FileMessage error(const QString &textKey, const QStringList &arguments)
{
    return messageOf(FileMessage::Error, textKey, arguments);
}

void addMessage(QVector<FileMessage> &messages, const FileMessage &message)
{
    if (messages.size() < mostMessages || message.severity == FileMessage::Error) {
        messages.append(message);
        return;
    }
    if (messages.size() == mostMessages)
        messages.append(warning(QStringLiteral("IDS_FILE_MORE_PROBLEMS"), {QString::number(0)}));
    QString &count = messages[mostMessages].arguments[0];
    count = QString::number(count.toInt() + 1);
}

bool isPageSize(const QSizeF &size)
{
    const auto isSide = [](double side) { return side >= smallestPageSide && side <= largestPageSide; };
    return isSide(size.width()) && isSide(size.height());
}

} // namespace pagehost
