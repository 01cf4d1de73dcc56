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
/// together. Every element below the root has an id, "e1", "e2" and so on in document order of their making.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 start);

    const RandomElement &root() const { return m_root; }
    QByteArray text() const;

    /// An attribute given to (or, with a null value, taken from) an element; the document has the change already.
    struct Change
    {
        QString id;
        QString attribute;
        QString value;
    };
    Change change();

private:
    RandomElement make(const QString &name, int depth);
    void addChildren(RandomElement *parent, int depth);
    QString attributeFor(const QString &element);
    QString valueFor(const QString &attribute);
    QString reference();
    RandomElement *pick();
    int below(int bound) { return int(m_random.bounded(quint32(bound))); }

    QRandomGenerator m_random;
    RandomElement m_root;
    int m_count = 0;
};
