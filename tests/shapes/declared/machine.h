#pragma once

#include "shapefile.h"

#include <declared/core/declaredobject.h>
#include <declared/core/declaredshape.h>
#include <declared/plugin/declaredplugin.h>

#include <pagehost/application.h>
#include <pagehost/commands.h>
#include <pagehost/creation.h>
#include <pagehost/documentfile.h>
#include <pagehost/localizer.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

namespace declaredtest {

/// A computer with a folder of shapes of its own.
class Machine
{
public:
    Machine()
        : m_registry(&m_localizer)
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("GLIOLOLOK_SHAPES", QFile::encodeName(m_folder.path()));
    }

    QString pathOf(const QString &name) const { return m_folder.filePath(name + QStringLiteral(".shape.svg")); }
    void write(const QString &name, const QByteArray &content)
    {
        QFile file(pathOf(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s cannot be written", qPrintable(file.fileName()));
    }
    /// Starts the program, which reads the files.
    void start()
    {
        m_plugin = std::make_unique<DeclaredPlugin>();
        const pagehost::PluginReport report = m_registry.addPlugin(m_plugin.get(), QStringLiteral("declared"));
        const QString problems = report.problem + m_plugin->faults().join(QLatin1Char('\n'));
        if (!problems.isEmpty())
            qFatal("%s", qPrintable(problems));
    }
    DeclaredPlugin &plugin() { return *m_plugin; }
    pagehost::ObjectRegistry &registry() { return m_registry; }
    const pagehost::Localizer &localizer() const { return m_localizer; }

private:
    QTemporaryDir m_folder;
    pagehost::Localizer m_localizer;
    std::unique_ptr<DeclaredPlugin> m_plugin;
    pagehost::ObjectRegistry m_registry;
};

inline DeclaredObject *objectOn(const pagehost::Document &document, int index = 0)
{
    return dynamic_cast<DeclaredObject *>(document.page(0)->objects().value(index));
}

inline QImage pictureOf(const pagehost::Document &document)
{
    pagehost::Page *page = document.page(0);
    QImage picture(page->size().toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    pagehost::paintPage(page, &painter, page->rect());
    return picture;
}

inline QByteArray savedBytes(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object->save(out);
    return bytes;
}

/// A bar whose end its control point holds, in one colour.
inline QByteArray barFile(const char *colour, const char *range = "20 .. w - 8", const QByteArray &more = {})
{
    return fileAbout("name='Bar'", "<shape:property name='parts' type='whole' value='3' from='0' to='9'/>\n"
                                   "<path id='figure' fill='" +
                                       QByteArray(colour) +
                                       "' stroke='#000' d='M0 0H60V80H0Z' shape:d='M0 0H{p1.x}V{h}H0Z'/>\n"
                                       "<rect id='control_1' x='56' y='36' width='8' height='8' fill='none' "
                                       "shape:range-x='" +
                                       range + "' shape:range-y='h / 2'/>\n" + more);
}

const QString barKind = QStringLiteral("declared.bar");

/// A document with a bar on its page.
inline std::unique_ptr<pagehost::Document> documentWithBar(Machine &machine)
{
    auto document = std::make_unique<pagehost::Document>();
    pagehost::setCurrentDocument(document.get());
    pagehost::Page *page = document->appendPage(QSizeF(400, 300));
    pagehost::CreationTool tool(&machine.registry());
    tool.createAt(page->scene(), barKind, QPointF(100, 100));
    return document;
}

} // namespace declaredtest
