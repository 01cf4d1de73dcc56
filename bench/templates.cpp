#include "templates.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace {

BenchTemplate readTemplate(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    const QFileInfo info(path);
    const bool inShapeFolder = info.fileName() == QStringLiteral("template.svg");
    return {inShapeFolder ? info.dir().dirName() : info.completeBaseName(), file.readAll()};
}

QVector<BenchTemplate> readTemplates()
{
    QVector<BenchTemplate> templates;
    const QStringList folders = QStringLiteral(GLIOLOLOK_TEMPLATES).split(QLatin1Char(':'));
    for (const QString &folder : folders) {
        QDirIterator files(folder, {QStringLiteral("*.svg")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            // The peers would read declarations that they don't know.
            if (!path.endsWith(QLatin1String(".shape.svg")))
                templates.append(readTemplate(path));
        }
    }
    std::sort(templates.begin(), templates.end(),
              [](const BenchTemplate &a, const BenchTemplate &b) { return a.name < b.name; });
    return templates;
}

} // namespace

const QVector<BenchTemplate> &benchTemplates()
{
    static const QVector<BenchTemplate> templates = readTemplates();
    return templates;
}

const BenchTemplate *findTemplate(const QString &name)
{
    const QVector<BenchTemplate> &all = benchTemplates();
    const auto found = std::find_if(all.cbegin(), all.cend(),
                                    [&name](const BenchTemplate &candidate) { return candidate.name == name; });
    return found == all.cend() ? nullptr : &*found;
}

QByteArray neverSeen(const BenchTemplate &source)
{
    static quint64 number = 0;
    return source.text + "<!-- " + QByteArray::number(++number) + " -->";
}
