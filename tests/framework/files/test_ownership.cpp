#include "framework/files/filetest.h"

#include <framework/idocument.h>
#include <framework/iframework.h>

#include <pagehost/application.h>
#include <pagehost/selection.h>

#include <QtTest/QSignalSpy>

// Which page and document an object finds while it is read.

using namespace pagehost;

namespace {

/// Notes what it finds.
class Curious : public TestObject
{
public:
    Curious()
        : madeIn(GetFramework()->currentDocument())
    {
    }
    bool load(QDataStream &in) override
    {
        readOn = GetPage();
        notifyObjPropertyChanged(AppearanceChanged, QString());
        return TestObject::load(in);
    }
    bool loadJson(QJsonObject &json) override
    {
        readOn = GetPage();
        return TestObject::loadJson(json);
    }

    IDocument *madeIn;
    IPsPage *readOn = nullptr;
};

class Plugin : public ObjectPlugin
{
public:
    QVector<ObjectKind> objectKinds() const override
    {
        return {
            {QStringLiteral("test.curious"), QStringLiteral("IDS_TEST_NAME"), QStringLiteral("IDS_TEST_GROUP")}};
    }
    CBaseObject *createObject(const QString &) const override { return new Curious; }
    TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_NAME"), QStringLiteral("Name")}};
    }
};

Curious *curious(CBaseObject *object)
{
    return dynamic_cast<Curious *>(object);
}

} // namespace

class TestOwnership : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { setCurrentDocument(nullptr); }

    void aPastedObjectFindsThePageThatItWillStandOn();
    void withoutAPageTheCurrentDocumentIsFound();
    void aCopyFindsThePageOfItsOriginal();
    void anOpenedObjectFindsItsPage_data();
    void anOpenedObjectFindsItsPage();
    void aPageHearsNothingOfWhatIsRead();

private:
    CBaseObject *original() const { return m_page->objects().constFirst(); }

    Plugin m_plugin;
    ObjectRegistry m_registry;
    std::unique_ptr<Document> m_current;
    std::unique_ptr<Document> m_other;
    Page *m_page = nullptr; ///< of the other, with an object
};

void TestOwnership::init()
{
    if (!m_registry.hasKind(QStringLiteral("test.curious")))
        m_registry.addPlugin(&m_plugin, QStringLiteral("test"));
    m_current = std::make_unique<Document>();
    m_other = std::make_unique<Document>();
    m_page = m_other->appendPage();
    m_page->addObject(m_registry.createObject(QStringLiteral("test.curious")));
    setCurrentDocument(m_current.get());
}

void TestOwnership::aPastedObjectFindsThePageThatItWillStandOn()
{
    const std::unique_ptr<CBaseObject> pasted(
        decodeObjects(encodeObjects({original()}), m_registry, nullptr, m_page).value(0));
    QVERIFY(pasted);
    QCOMPARE(curious(pasted.get())->madeIn, static_cast<IDocument *>(m_other.get()));
    QCOMPARE(curious(pasted.get())->readOn, static_cast<IPsPage *>(m_page));
    QVERIFY(!pasted->GetPage());
    QCOMPARE(GetFramework()->currentDocument(), static_cast<IDocument *>(m_current.get()));
}

void TestOwnership::withoutAPageTheCurrentDocumentIsFound()
{
    const std::unique_ptr<CBaseObject> pasted(decodeObjects(encodeObjects({original()}), m_registry).value(0));
    QVERIFY(pasted);
    QCOMPARE(curious(pasted.get())->madeIn, static_cast<IDocument *>(m_current.get()));
    QVERIFY(!curious(pasted.get())->readOn);
}

void TestOwnership::aCopyFindsThePageOfItsOriginal()
{
    const std::unique_ptr<CBaseObject> copy(cloneObject(original(), &m_registry));
    QVERIFY(copy);
    QCOMPARE(curious(copy.get())->readOn, static_cast<IPsPage *>(m_page));
}

void TestOwnership::anOpenedObjectFindsItsPage_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("binary") << int(DocumentFormat::Binary);
    QTest::newRow("text") << int(DocumentFormat::Json);
}

void TestOwnership::anOpenedObjectFindsItsPage()
{
    QFETCH(const int, format);
    const OpenResult opened = decodeDocument(encodeDocument(*m_other, DocumentFormat(format)), m_registry);
    QVERIFY(opened.document);
    Page *page = opened.document->page(0);
    const Curious *object = curious(page->objects().value(0));
    QVERIFY(object);
    QCOMPARE(object->madeIn, static_cast<IDocument *>(opened.document.get()));
    QCOMPARE(object->readOn, static_cast<IPsPage *>(page));
    QCOMPARE(object->GetPage(), static_cast<IPsPage *>(page));
}

void TestOwnership::aPageHearsNothingOfWhatIsRead()
{
    const QSignalSpy changed(m_page, &Page::objectChanged);
    const QSignalSpy told(m_page, &Page::objectPropertyChanged);
    const QVector<CBaseObject *> objects = decodeObjects(encodeObjects({original()}), m_registry, nullptr, m_page);
    QCOMPARE(objects.size(), 1);
    QCOMPARE(changed.size() + told.size(), 0);
    m_page->addObject(objects.first());
    objects.first()->notifyObjPropertyChanged(CPSRootObject::AppearanceChanged, QString());
    QCOMPARE(told.size(), 1);
}

QTEST_MAIN(TestOwnership)
#include "test_ownership.moc"
