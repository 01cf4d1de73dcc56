// Opens bytes as a document of either format, saves the result in both and opens that again, which must give the
// same document without salvaging. Uses plain objects of the host, so that the fuzzer explores the readers
// themselves.

#include <framework/cbaseobject.h>

#include <pagehost/documentfile.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <QtCore/QJsonDocument>
#include <QtWidgets/QApplication>

#include <cstdlib>

using namespace pagehost;

namespace {

class PlainObject : public CBaseObject
{
public:
    PlainObject()
        : CBaseObject(1, true, nullptr, nullptr)
    {
    }
    QString kindName() const override { return QStringLiteral("IDS_PLAIN"); }
};

class PlainPlugin : public ObjectPlugin
{
public:
    QVector<ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("test.plain"), QStringLiteral("IDS_PLAIN"), QString()}};
    }
    CBaseObject *createObject(const QString &) const override { return new PlainObject; }
    TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_PLAIN"), QStringLiteral("Plain")}};
    }
};

const ObjectRegistry &registry()
{
    static PlainPlugin plugin;
    static ObjectRegistry *made = [] {
        auto *instance = new ObjectRegistry;
        instance->addPlugin(&plugin, QStringLiteral("plain"));
        return instance;
    }();
    return *made;
}

/// The number of objects on each page, followed by the number of lessons.
QVector<int> partsOf(const Document &document)
{
    QVector<int> counts;
    const QVector<Page *> pages = document.pages();
    for (const Page *page : pages)
        counts.append(page->objectCount());
    return counts << document.lessons().size();
}

void silence(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*argc, *argv);
    qInstallMessageHandler(silence);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const OpenResult opened = decodeDocument(bytes, registry());
    if (!opened.document) {
        if (opened.messages.isEmpty())
            std::abort();
        return 0;
    }
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        const QByteArray saved = encodeDocument(*opened.document, format);
        if (format == DocumentFormat::Json && !QJsonDocument::fromJson(saved).isObject())
            std::abort();
        const OpenResult again = decodeDocument(saved, registry());
        if (!again.document || partsOf(*again.document) != partsOf(*opened.document))
            std::abort();
    }
    return 0;
}
