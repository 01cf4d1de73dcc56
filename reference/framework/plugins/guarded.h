#pragma once

#include <QtCore/QString>

#include <exception>

namespace pagehost {

/// Runs code of a plug-in; false, with `problem` in English for people, when it throws.
template<typename Work> bool guarded(const QString &operation, QString &problem, const Work &work)
{
    try {
        work();
        return true;
    } catch (const std::exception &thrown) {
        problem = QStringLiteral("%1 threw an exception: %2").arg(operation, QString::fromLocal8Bit(thrown.what()));
    } catch (...) {
        problem = QStringLiteral("%1 threw an exception").arg(operation);
    }
    return false;
}

} // namespace pagehost
