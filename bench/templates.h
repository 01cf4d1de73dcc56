#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

/// A shape template of the kind that plug-ins ship.
struct BenchTemplate
{
    QString name;
    QByteArray text;
    QString movingId; ///< a node with a numeric "x" that a benchmark may change
};

/// The templates of this folder and of the shape plug-ins, by name.
const QVector<BenchTemplate> &benchTemplates();

/// The text made unlike any before it, as a template that was never seen: a comment is added at its end.
QByteArray neverSeen(const BenchTemplate &source);
/// The text with another position of its moving node.
QByteArray withMovedNode(const BenchTemplate &source, double x);
