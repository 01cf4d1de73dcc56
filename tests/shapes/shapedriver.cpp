#include <shapes/shapedriver.h>

#include <QtCore/QDir>
#include <QtCore/QPluginLoader>

namespace shapetest {

namespace {

/// Whether a declared file has taken the place of a coded shape, with its kind.
bool isSuccessor(const QString &fileName)
{
    QFile file(QStringLiteral(SHAPE_PLUGIN_DIRECTORY "/") + fileName);
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("layout=\"kit\"");
}

} // namespace

QStringList shapeNames()
{
    return {QStringLiteral("roundedrectangle"), QStringLiteral("blockarrow"), QStringLiteral("polygon"),
            QStringLiteral("flask")};
}

QStringList allShapeNames()
{
    QStringList names =
        QDir(QStringLiteral(SHAPE_PLUGIN_DIRECTORY)).entryList({QStringLiteral("*.so")}, QDir::Files);
    for (QString &name : names)
        name.chop(3);
    names.removeOne(QStringLiteral("declared"));
    const QStringList files =
        QDir(QStringLiteral(SHAPE_PLUGIN_DIRECTORY)).entryList({QStringLiteral("*.shape.svg")}, QDir::Files);
    for (const QString &file : files) {
        const QString name = file.section(QLatin1Char('.'), 0, 0);
        names.append(isSuccessor(file) ? name : QStringLiteral("declared/") + name);
    }
    return names;
}

QString kindOf(const QString &name)
{
    const bool isDeclared = name.startsWith(QLatin1String("declared/"));
    return isDeclared ? QString(name).replace(QLatin1Char('/'), QLatin1Char('.'))
                      : QStringLiteral("shapes.") + name;
}

QString pluginFile(const QString &name)
{
    const QString coded = QStringLiteral(SHAPE_PLUGIN_DIRECTORY "/%1.so").arg(name);
    return QFile::exists(coded) ? coded : QStringLiteral(SHAPE_PLUGIN_DIRECTORY "/declared.so");
}

pagehost::ObjectPlugin *pluginOf(const QString &name)
{
    QPluginLoader loader(pluginFile(name.section(QLatin1Char('/'), 0, 0)));
    auto *plugin = qobject_cast<pagehost::ObjectPlugin *>(loader.instance());
    if (!plugin)
        qFatal("%s", qPrintable(loader.errorString()));
    return plugin;
}

} // namespace shapetest
