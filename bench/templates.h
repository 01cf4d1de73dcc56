#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

/// A shape template of the kind that plug-ins ship.
struct BenchTemplate
{
    QString name;
    QByteArray text;
};

/// The templates of this folder and of the shape plug-ins, by name.
const QVector<BenchTemplate> &benchTemplates();

/// The template of that name; null when there is none.
const BenchTemplate *findTemplate(const QString &name);

/// The text made unique by a comment at its end, like a new template.
QByteArray neverSeen(const BenchTemplate &source);
