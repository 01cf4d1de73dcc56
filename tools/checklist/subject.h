#pragma once

#include <pagehost/objectplugin.h>

#include <QtCore/QString>
#include <QtCore/QVector>

#include <memory>
#include <vector>

namespace checklist {

/// A kind of shape that is checked; any number of objects can be made.
struct Subject
{
    QString name; ///< in findings
    pagehost::ObjectPlugin *plugin = nullptr;
    QString kindId;
};

/// The shapes of a plug-in, of a declared file, or of a folder of both.
class Subjects
{
public:
    explicit Subjects(const QString &path);
    ~Subjects();

    /// The reason why there is nothing to check; empty when there is.
    QString problem() const { return m_problem; }
    /// Faults of files and plug-ins.
    QVector<pagehost::PluginMessage> faults() const;
    const QVector<Subject> &all() const { return m_subjects; }

private:
    void addFolder(const QString &path);
    void addFile(const QString &path);
    void addPlugin(const QString &path);
    void addDeclared(const QString &path);

    QString m_problem;
    QVector<pagehost::PluginMessage> m_faults;
    QVector<Subject> m_subjects;
    std::vector<std::unique_ptr<pagehost::ObjectPlugin>> m_declared;
    QVector<pagehost::ObjectPlugin *> m_plugins;
};

} // namespace checklist
