#pragma once

#include <framework/cwbundocmd.h>

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

class Page;

/// Base of steps whose change may have been made already when they are pushed: the redo of the push is then
/// skipped.
class AppliedCommand : public CWbUndoCmd
{
public:
    void redo() final;

protected:
    AppliedCommand(const QString &textKey, bool alreadyApplied);
    virtual void apply() = 0;

private:
    bool m_skipsRedo;
};

/// A step that changes objects of a page and keeps the page alive.
class PageCommand : public AppliedCommand
{
public:
    ~PageCommand() override;

protected:
    PageCommand(Page *page, const QVector<CBaseObject *> &objects, const QString &textKey,
                bool alreadyApplied = false);
    Page *page() const { return m_page; }
    const QVector<CBaseObject *> &objects() const { return m_objects; }

private:
    QPointer<Page> m_page;
    QVector<CBaseObject *> m_objects;
};

} // namespace pagehost
