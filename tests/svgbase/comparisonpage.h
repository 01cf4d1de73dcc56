#pragma once

#include "svgbase/comparisonrules.h"

#include <QtGui/QImage>

/// A page that shows pairs of pictures, and why the first of each is right.
class ComparisonPage
{
public:
    /// Everything goes into the folder.
    explicit ComparisonPage(const QString &folder)
        : m_folder(folder)
    {
    }

    /// Saves both pictures. False when that fails.
    bool add(const QString &name, const QImage &own, const QImage &peer, const ComparisonRule &rule);
    int count() const { return m_count; }
    /// Writes index.html. False when that fails.
    bool write() const;

private:
    QString m_folder;
    QString m_rows;
    int m_count = 0;
};
