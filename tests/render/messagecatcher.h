#pragma once

#include <QtCore/QMutex>
#include <QtCore/QStringList>

/// Collects what Qt says (warnings and worse) while it lives, instead of printing it.
class MessageCatcher
{
public:
    MessageCatcher()
        : m_before(qInstallMessageHandler(catchMessage))
    {
        const QMutexLocker locker(&mutex());
        caught().clear();
    }
    ~MessageCatcher() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY(MessageCatcher)

    QStringList messages() const
    {
        const QMutexLocker locker(&mutex());
        return caught();
    }

private:
    static QMutex &mutex()
    {
        static QMutex guard;
        return guard;
    }
    static QStringList &caught()
    {
        static QStringList list;
        return list;
    }
    static void catchMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        if (type == QtDebugMsg || type == QtInfoMsg)
            return;
        const QMutexLocker locker(&mutex());
        caught().append(text);
    }

    QtMessageHandler m_before;
};
