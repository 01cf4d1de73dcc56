#pragma once

#include <framework/framework_global.h>

#include <QtWidgets/QUndoCommand>

class ILocalize;

/// Base of every command on the host's undo stack. Its text() is a localisation key.
class FRAMEWORK_EXPORT CWbUndoCmd : public QUndoCommand
{
public:
    /// A child of `parent`, if given, which owns it then.
    explicit CWbUndoCmd(QUndoCommand *parent = nullptr);
    ~CWbUndoCmd() override;

    /// Position of the command in the host's history list; -1 until the host sets it.
    virtual int getIdxCmd() const;
    /// See getIdxCmd().
    virtual void setIdxCmd(int index);
    /// The command's text in the user's language; the key itself for a null `localize`.
    virtual QString getActionName(ILocalize *localize) const;

private:
    int m_index = -1;
};
