#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QSet>

namespace pagehost {

/// Data that objects of a document share, kept once, compressed. The key is made of the contents: the first 32
/// hexadecimal digits of their SHA-256, in small letters.
///
/// Whoever uses an asset names it: the key stands as ASCII in its saved data, with no other such digit beside it.
class FRAMEWORK_EXPORT AssetStore
{
public:
    static constexpr int keySize = 32; ///< characters of a key

    /// The key of these contents.
    static QByteArray keyOf(const QByteArray &contents);
    /// Whether the text could be a key, of an asset or not.
    static bool isKey(const QByteArray &text);
    /// The keys that data name, and whatever else looks like one.
    static QSet<QByteArray> keysIn(const QByteArray &data);

    /// Whether nothing is kept.
    bool isEmpty() const { return m_compressed.isEmpty(); }
    /// Whether contents of this key are kept.
    bool contains(const QByteArray &key) const { return m_compressed.contains(key); }
    /// In the order of the keys.
    QList<QByteArray> keys() const { return m_compressed.keys(); }
    /// Empty for an unknown key.
    QByteArray contents(const QByteArray &key) const;
    /// As files hold it: qCompress() of the contents. Empty for an unknown key.
    QByteArray compressed(const QByteArray &key) const { return m_compressed.value(key); }

    /// Contents of another key, and contents beyond the limits, are left out.
    void add(const QByteArray &key, const QByteArray &contents);
    /// Adds what a file holds. False, with nothing added, for damaged data, for those of another key, and beyond
    /// the limits: 64 MiB of contents, 256 MiB in all.
    bool addCompressed(const QByteArray &key, const QByteArray &compressed);
    /// Adds all that `other` has.
    void unite(const AssetStore &other);
    /// Those of the keys that are there.
    AssetStore part(const QSet<QByteArray> &keys) const;

private:
    bool hasRoomFor(qint64 size) const;
    void insert(const QByteArray &key, const QByteArray &compressed, qint64 size);

    QMap<QByteArray, QByteArray> m_compressed; ///< by key
    qint64 m_size = 0;                         ///< of all contents, bytes
};

} // namespace pagehost
