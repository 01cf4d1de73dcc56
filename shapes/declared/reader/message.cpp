#include <declared/reader/message.h>

namespace declared {

QString Message::told(const QString &file) const
{
    return QStringLiteral("%1:%2:%3: %4 %5: %6")
        .arg(file, QString::number(line), QString::number(column),
             severity == Error ? QStringLiteral("error") : QStringLiteral("warning"), code, text);
}

} // namespace declared
