#include <framework/cwbundocmd.h>

#include <framework/ilocalize.h>

CWbUndoCmd::CWbUndoCmd(QUndoCommand *parent)
    : QUndoCommand(parent)
{
}

CWbUndoCmd::~CWbUndoCmd() = default;

int CWbUndoCmd::getIdxCmd() const
{
    return m_index;
}

void CWbUndoCmd::setIdxCmd(int index)
{
    m_index = index;
}

QString CWbUndoCmd::getActionName(ILocalize *localize) const
{
    return localize ? localize->text(text()) : text();
}
