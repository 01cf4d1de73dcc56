#include <pagehost/assetstore.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QtEndian>

#include <zlib.h>

#include <algorithm>

namespace pagehost {

namespace {

// Bytes of contents: damaged or hostile files must not ask for more memory than there is.
constexpr qint64 largestAsset = 64 << 20;
constexpr qint64 largestStore = 256 << 20;
/// qCompress() begins with the size of the contents, big-endian.
constexpr int sizeBytes = 4;

bool isDigit(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f');
}

qint64 claimedSize(const QByteArray &compressed)
{
    return compressed.size() < sizeBytes ? 0 : qFromBigEndian<quint32>(compressed.constData());
}

/// Empty for data that are not exactly as many bytes as they claim; qUncompress() would go on and take more memory.
QByteArray uncompressed(const QByteArray &compressed)
{
    QByteArray contents(int(claimedSize(compressed)), Qt::Uninitialized);
    uLongf size = uLongf(contents.size());
    const int result = uncompress(reinterpret_cast<Bytef *>(contents.data()), &size,
                                  reinterpret_cast<const Bytef *>(compressed.constData()) + sizeBytes,
                                  uLong(compressed.size() - sizeBytes));
    return result == Z_OK && size == uLongf(contents.size()) ? contents : QByteArray();
}

} // namespace

QByteArray AssetStore::keyOf(const QByteArray &contents)
{
    return QCryptographicHash::hash(contents, QCryptographicHash::Sha256).toHex().left(keySize);
}

bool AssetStore::isKey(const QByteArray &text)
{
    return text.size() == keySize && std::all_of(text.begin(), text.end(), isDigit);
}

QSet<QByteArray> AssetStore::keysIn(const QByteArray &data)
{
    QSet<QByteArray> keys;
    const char *const end = data.constData() + data.size();
    for (const char *from = data.constData(); from < end;) {
        from = std::find_if(from, end, isDigit);
        const char *const behind = std::find_if_not(from, end, isDigit);
        if (behind - from == keySize)
            keys.insert(QByteArray(from, keySize));
        from = behind;
    }
    return keys;
}

QByteArray AssetStore::contents(const QByteArray &key) const
{
    const QByteArray compressed = m_compressed.value(key);
    return compressed.isEmpty() ? QByteArray() : uncompressed(compressed);
}

void AssetStore::add(const QByteArray &key, const QByteArray &contents)
{
    if (!contains(key) && hasRoomFor(contents.size()) && keyOf(contents) == key)
        insert(key, qCompress(contents), contents.size());
}

bool AssetStore::addCompressed(const QByteArray &key, const QByteArray &compressed)
{
    if (contains(key))
        return m_compressed.value(key) == compressed;
    const qint64 size = claimedSize(compressed);
    if (!isKey(key) || size == 0 || !hasRoomFor(size))
        return false;
    if (keyOf(uncompressed(compressed)) != key)
        return false;
    insert(key, compressed, size);
    return true;
}

void AssetStore::unite(const AssetStore &other)
{
    for (auto asset = other.m_compressed.begin(); asset != other.m_compressed.end(); ++asset)
        if (!contains(asset.key()) && hasRoomFor(claimedSize(*asset)))
            insert(asset.key(), *asset, claimedSize(*asset));
}

AssetStore AssetStore::part(const QSet<QByteArray> &keys) const
{
    AssetStore part;
    for (auto asset = m_compressed.begin(); asset != m_compressed.end(); ++asset)
        if (keys.contains(asset.key()))
            part.insert(asset.key(), *asset, claimedSize(*asset));
    return part;
}

bool AssetStore::hasRoomFor(qint64 size) const
{
    return size <= largestAsset && m_size + size <= largestStore;
}

void AssetStore::insert(const QByteArray &key, const QByteArray &compressed, qint64 size)
{
    // The bytes of a file may go before the store does.
    m_compressed.insert(QByteArray(key.constData(), key.size()),
                        QByteArray(compressed.constData(), compressed.size()));
    m_size += size;
}

} // namespace pagehost
