#include "shape/findings.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstdio>

namespace shapetool {

namespace {

QJsonObject jsonOf(const pagehost::PluginMessage &fault)
{
    const bool isError = fault.severity == pagehost::PluginMessage::Error;
    QJsonObject object{{QStringLiteral("file"), fault.file},
                       {QStringLiteral("severity"), isError ? QStringLiteral("error") : QStringLiteral("warning")},
                       {QStringLiteral("code"), fault.code},
                       {QStringLiteral("message"), fault.text}};
    if (fault.line > 0) {
        object[QStringLiteral("line")] = fault.line;
        object[QStringLiteral("column")] = fault.column;
    }
    if (!fault.element.isEmpty())
        object[QStringLiteral("element")] = fault.element;
    return object;
}

} // namespace

void print(const Faults &faults, bool asJson)
{
    if (asJson) {
        QJsonArray all;
        for (const pagehost::PluginMessage &fault : faults)
            all.append(jsonOf(fault));
        printf("%s", QJsonDocument(all).toJson().constData());
        return;
    }
    for (const pagehost::PluginMessage &fault : faults)
        printf("%s\n", qUtf8Printable(fault.told()));
}

} // namespace shapetool
