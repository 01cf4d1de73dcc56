#pragma once

#include <QtWidgets/QFrame>

namespace board {

class Workspace;

/// Tells, above the page, which plug-ins could not be loaded and why, until the user closes it. Hidden when all is
/// well.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(const Workspace *workspace, QWidget *parent = nullptr);
};

} // namespace board
