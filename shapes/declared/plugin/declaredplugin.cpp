#include <declared/plugin/declaredplugin.h>

#include <declared/core/declaredobject.h>
#include <declared/core/declaredshape.h>
#include <declared/core/iconpicture.h>

#include <declared/reader/plaindrawing.h>

#include <shapekit/shapeobject.h>
#include <shapekit/styledshape.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QFileInfo>

#include <algorithm>

namespace declared {

namespace {

const QLatin1String svgType("image/svg+xml");
/// Of a file whose name isn't known.
const QString droppedId = QStringLiteral("Dropped");

/// Compressed data become text; the library bounds what it unpacks.
QByteArray textOf(const QByteArray &svg)
{
    constexpr char compressed[] = "\x1f\x8b";
    if (!svg.startsWith(compressed))
        return svg;
    const std::unique_ptr<QZeSvgTinyDocument> drawing(QZeSvgTinyDocument::load(svg));
    return drawing ? drawing->toSvg() : QByteArray();
}

/// Where kinds come from that were just read, by the hash of their text.
QHash<QString, QString> filesOf(const std::vector<std::unique_ptr<ShapeKind>> &kinds, const GoodFiles &good)
{
    QHash<const Declaration *, QString> paths;
    for (auto file = good.begin(); file != good.end(); ++file)
        paths.insert(file.value().get(), file.key());
    QHash<QString, QString> files;
    for (const auto &kind : kinds)
        files.insert(kind->declaration().hash, paths.value(&kind->declaration()));
    return files;
}

} // namespace

DeclaredPlugin::DeclaredPlugin()
    : m_library(std::make_shared<ShapeLibrary>())
    , m_folders(shapeFolders())
{
    m_library->setListener([this] {
        if (m_listener)
            m_listener(TextsChanged);
    });
    connect(&m_watch, &ShapeWatch::changed, this, &DeclaredPlugin::reload);
    read();
}

void DeclaredPlugin::read()
{
    m_faults.clear();
    m_folders.removeDuplicates();
    const FaultListeners listeners{[this](const pagehost::PluginMessage &fault) {
                                       m_faults.append(fault.told());
                                       m_log->report(fault);
                                   },
                                   [log = m_log](const pagehost::PluginMessage &fault) {
                                       qWarning("%s", qPrintable(fault.told()));
                                       log->report(fault);
                                   }};
    auto kinds = readFolders(m_folders, listeners, m_good);
    m_files = filesOf(kinds, m_good);
    m_library->offer(std::move(kinds));
    m_watch.watch(m_folders);
}

void DeclaredPlugin::reload()
{
    const QVector<DeclaredObject *> objects = m_library->objects();
    if (std::any_of(objects.begin(), objects.end(),
                    [](const DeclaredObject *object) { return object->isDragged(); })) {
        m_watch.tellLater();
        return;
    }
    const ShapeLibrary::Kinds before = m_library->offered();
    const QHash<QString, QString> filesBefore = m_files;
    const QStringList faultsBefore = m_faults;
    read();
    // The watch also notices files that are none of ours, as in the folder above one that isn't there yet.
    if (m_library->offered() == before && m_files == filesBefore && m_faults == faultsBefore)
        return;
    followFiles(before);
    if (m_listener)
        m_listener(KindsChanged);
}

void DeclaredPlugin::followFiles(const ShapeLibrary::Kinds &before)
{
    for (const ShapeKind *former : before) {
        const ShapeKind *present = m_library->offered(former->kind().id());
        if (!present || present == former)
            continue;
        // Drawing an object may make and delete others.
        const QVector<DeclaredObject *> objects = m_library->objects();
        for (DeclaredObject *object : objects)
            if (m_library->objects().contains(object) && &object->shapeKind() == former)
                object->become(*present);
    }
}

/// Objects may live on, and the library with them.
DeclaredPlugin::~DeclaredPlugin()
{
    m_library->setListener({});
    m_log->setListener({});
}

QStringList DeclaredPlugin::dataTypes() const
{
    return {svgType};
}

CBaseObject *DeclaredPlugin::createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const
{
    const QByteArray text =
        mimeType == svgType ? declarationOfDrawing(textOf(data), droppedDrawing()) : QByteArray();
    const ShapeKind *kind = text.isEmpty() ? nullptr : m_library->remember(text, droppedId);
    if (!kind)
        return nullptr;
    kindId = kind->kind().id();
    return new DeclaredObject(m_library, *kind);
}

QString DeclaredPlugin::kindFamily() const
{
    return QStringLiteral("declared.");
}

void DeclaredPlugin::setKindsListener(const Listener &listener)
{
    m_listener = listener;
}

void DeclaredPlugin::addFolders(const QStringList &folders)
{
    m_folders = folders + m_folders;
    reload();
}

QString DeclaredPlugin::kindOfFile(const QString &path) const
{
    const QString file = QFileInfo(path).absoluteFilePath();
    for (const ShapeKind *shape : m_library->offered())
        if (fileOf(*shape) == file)
            return shape->kind().id();
    return {};
}

QString DeclaredPlugin::fileOf(const ShapeKind &shape) const
{
    return m_files.value(shape.declaration().hash);
}

bool DeclaredPlugin::isOwn(const ShapeKind &shape) const
{
    return QFileInfo(fileOf(shape)).absolutePath() == QFileInfo(userFolder()).absoluteFilePath();
}

QVector<pagehost::ObjectKind> DeclaredPlugin::objectKinds() const
{
    QVector<pagehost::ObjectKind> kinds;
    for (const ShapeKind *shape : m_library->offered()) {
        const QString group = isOwn(*shape) ? QString::fromLatin1(pagehost::ownGroup) : shape->groupKey();
        kinds.append({shape->kind().id(), shape->kind().nameKey(), group, shape->kind().rank});
    }
    return kinds;
}

CBaseObject *DeclaredPlugin::createObject(const QString &kindId) const
{
    const ShapeKind *offered = m_library->offered(kindId);
    return new DeclaredObject(m_library, offered ? *offered : m_library->blank());
}

pagehost::TextTable DeclaredPlugin::texts(const QString &language) const
{
    pagehost::TextTable table;
    // Versions of one shape share keys; the one on offer comes last.
    const ShapeLibrary::Kinds kinds = m_library->remembered() + m_library->offered();
    for (const ShapeKind *shape : kinds) {
        const QMap<QString, QString> texts = shape->texts(language);
        for (auto text = texts.begin(); text != texts.end(); ++text)
            table.insert(text.key(), text.value());
    }
    return table;
}

QByteArray DeclaredPlugin::dataOf(CBaseObject *object, const QString &mimeType) const
{
    auto *shape = dynamic_cast<shapekit::ShapeObject *>(object);
    auto *core = shape ? dynamic_cast<DeclaredShape *>(shape->core()) : nullptr;
    if (!core)
        return {};
    if (mimeType == QLatin1String(pagehost::iconType))
        return iconPicture(core->icon());
    return mimeType == svgType ? core->toSvg() : QByteArray();
}

} // namespace declared
