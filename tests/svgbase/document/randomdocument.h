#pragma once

#include <QtCore/QMap>
#include <QtCore/QRandomGenerator>
#include <QtCore/QString>
#include <QtCore/QVector>

/// An element of a random document.
struct RandomElement
{
    QString name;
    QMap<QString, QString> attributes;
    QString text;
    QVector<RandomElement> children;
};

/// Makes documents, and changes to them, from lists of elements, attributes and values that have a meaning
/// together. The root has the id "e0", a style sheet "sheet"; every other element has "e1", "e2" and so on in the
/// order of their making. Copies of an element hold ids a second time.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 start);

    const RandomElement &root() const { return m_root; }
    QByteArray text() const;

    /// A change of the first element with an id; the random document already contains it.
    struct Change
    {
        enum Kind {
            /// An attribute is given, or with a null value taken away.
            SetAttribute,
            Remove,
            /// A copy goes behind the children of another element, under a new id.
            Copy,
            /// The element itself goes there.
            Move
        };
        Kind kind = SetAttribute;
        QString id;
        QString attribute;
        QString value;
        QString parentId;
        QString newId;
    };
    Change change();

private:
    RandomElement make(const QString &name, int depth);
    RandomElement makeSheet();
    void addChildren(RandomElement *parent, int depth);
    void addParts(RandomElement *parent, int depth, const QStringList &names, int most);
    QString attributeFor(const QString &element);
    QString valueFor(const QString &attribute);
    QString reference();
    QString referenceTo(const QString &name);
    RandomElement *pick();
    RandomElement *find(const QString &id);
    Change changeAttribute();
    Change changeStructure();
    int below(int bound) { return int(m_random.bounded(quint32(bound))); }

    QRandomGenerator m_random;
    RandomElement m_root;
    int m_count = 0;
    /// By element name.
    QMap<QString, QStringList> m_ids;
};
