#pragma once

#include <QtCore/QObject>

namespace board {

class Notices;
class Workspace;

/// Tells of files of shapes that cannot be used, and offers to update objects of an earlier version of theirs.
class ShapeNotices : public QObject
{
    Q_OBJECT

public:
    ShapeNotices(Workspace *workspace, Notices *notices, QObject *parent = nullptr);

private:
    void show();
    void showFaults();
    void showEarlierVersions();

    Workspace *m_workspace;
    Notices *m_notices;
};

} // namespace board
