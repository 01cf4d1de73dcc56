#include <shapekit/kind.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QFile>

namespace shapekit {

Group::Group(Known known)
{
    switch (known) {
    case Mathematics:
        key = QStringLiteral("IDS_SHAPEGROUP_MATHEMATICS");
        title = inEnglishAndGerman("Mathematics", "Mathematik");
        return;
    case Science:
        key = QStringLiteral("IDS_SHAPEGROUP_SCIENCE");
        title = inEnglishAndGerman("Science", "Naturwissenschaft");
        return;
    case None:
        return;
    case Basic:
        break;
    }
    key = QString::fromLatin1(pagehost::basicGroup);
    title = inEnglishAndGerman("Basic shapes", "Grundformen");
}

Group::Group(const QString &key, const Words &title)
    : key(key)
    , title(title)
{
}

void Kind::readTemplate()
{
    QFile file(QStringLiteral(":/gliololok/%1/template.svg").arg(name));
    if (file.open(QIODevice::ReadOnly))
        templateText = QString::fromUtf8(file.readAll());
}

} // namespace shapekit
