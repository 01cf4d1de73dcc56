#include <pagehost/assetstore.h>

#include <QtTest/QtTest>

#include "framework/files/chunkedit.h"

using namespace pagehost;

class TestAssetStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyIsTheHashOfTheContents();
    void keysAreFoundBetweenOtherCharacters();
    void contentsComeBack();
    void contentsOfAnotherKeyAreLeftOut();
    void damagedBytesAreLeftOut();
    void bytesThatClaimTooMuchAreLeftOut();
    void bytesThatHoldMoreThanTheyClaimAreLeftOut();
    void contentsBeyondTheLimitAreLeftOut();
    void partHasTheWantedAssetsAlone();
};

namespace {

// The first half of the SHA-256 of "abc" (FIPS 180-4).
const QByteArray abcKey = "ba7816bf8f01cfea414140de5dae2223";

} // namespace

void TestAssetStore::keyIsTheHashOfTheContents()
{
    QCOMPARE(AssetStore::keyOf("abc"), abcKey);
    QVERIFY(AssetStore::isKey(abcKey));
    QVERIFY(!AssetStore::isKey(abcKey.toUpper()));
    QVERIFY(!AssetStore::isKey(abcKey.left(31)));
}

void TestAssetStore::keysAreFoundBetweenOtherCharacters()
{
    const QByteArray other(32, '0');
    QCOMPARE(AssetStore::keysIn("{\"text\":\"" + abcKey + "\"}" + other), QSet<QByteArray>({abcKey, other}));
    QVERIFY(AssetStore::keysIn('"' + abcKey + "0\"").isEmpty());
    QVERIFY(AssetStore::keysIn(abcKey.left(31)).isEmpty());
    QVERIFY(AssetStore::keysIn({}).isEmpty());
}

void TestAssetStore::contentsComeBack()
{
    AssetStore store;
    store.add(abcKey, "abc");
    QCOMPARE(store.contents(abcKey), QByteArray("abc"));
    AssetStore copy;
    QVERIFY(copy.addCompressed(abcKey, store.compressed(abcKey)));
    QCOMPARE(copy.contents(abcKey), QByteArray("abc"));
    QVERIFY(copy.contents(QByteArray(32, '0')).isEmpty());
}

void TestAssetStore::contentsOfAnotherKeyAreLeftOut()
{
    AssetStore store;
    store.add(abcKey, "abd");
    QVERIFY(!store.addCompressed(abcKey, qCompress("abd")));
    QVERIFY(store.isEmpty());
}

void TestAssetStore::damagedBytesAreLeftOut()
{
    const QByteArray compressed = qCompress("abc");
    AssetStore store;
    for (int size = 0; size < compressed.size(); ++size)
        QVERIFY(!store.addCompressed(abcKey, compressed.left(size)));
    QVERIFY(store.isEmpty());
    QVERIFY(store.addCompressed(abcKey, compressed));
}

void TestAssetStore::bytesThatClaimTooMuchAreLeftOut()
{
    AssetStore store;
    const QByteArray content = qCompress("abc").mid(4);
    QVERIFY(!store.addCompressed(abcKey, bigEndian(0xffffffff) + content));
    QVERIFY(!store.addCompressed(abcKey, bigEndian(4) + content));
    QVERIFY(!store.addCompressed(abcKey, bigEndian(0) + content));
    QVERIFY(store.addCompressed(abcKey, bigEndian(3) + content));
}

void TestAssetStore::bytesThatHoldMoreThanTheyClaimAreLeftOut()
{
    AssetStore store;
    const QByteArray contents(100000, 'a');
    const QByteArray content = qCompress(contents).mid(4);
    QVERIFY(!store.addCompressed(AssetStore::keyOf(contents), bigEndian(10) + content));
    QVERIFY(store.addCompressed(AssetStore::keyOf(contents), bigEndian(100000) + content));
}

void TestAssetStore::contentsBeyondTheLimitAreLeftOut()
{
    const QByteArray contents((64 << 20) + 1, 'a');
    AssetStore store;
    store.add(AssetStore::keyOf(contents), contents);
    QVERIFY(store.isEmpty());
}

void TestAssetStore::partHasTheWantedAssetsAlone()
{
    AssetStore store;
    store.add(abcKey, "abc");
    store.add(AssetStore::keyOf("x"), "x");
    const AssetStore part = store.part({abcKey, QByteArray(32, '0')});
    QCOMPARE(part.keys(), QList<QByteArray>({abcKey}));
    AssetStore both;
    both.unite(part);
    both.unite(store);
    QCOMPARE(both.keys().size(), 2);
    QCOMPARE(both.contents(abcKey), QByteArray("abc"));
}

QTEST_APPLESS_MAIN(TestAssetStore)
#include "test_assetstore.moc"
