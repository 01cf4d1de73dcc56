#pragma once

#include <pagehost/document.h>
#include <pagehost/localizer.h>
#include <pagehost/objectregistry.h>

#include <QtCore/QObject>

#include <memory>

namespace board {

/// Shared by all parts of the program: texts, kinds of object, and the document, which has at least one page.
class Workspace : public QObject
{
    Q_OBJECT

public:
    /// `language` is a code such as "en" or "de_AT"; English where there are no texts in it.
    explicit Workspace(const QString &language);
    ~Workspace() override;

    /// Loads every plug-in of the folders; what went wrong is in pluginProblems().
    void loadPlugins(const QStringList &folders);
    /// Reports on plug-ins that could not be used, or not fully.
    QVector<pagehost::PluginReport> pluginProblems() const;

    const pagehost::Localizer &localizer() const { return m_localizer; }
    const pagehost::ObjectRegistry &registry() const { return m_registry; }
    pagehost::ObjectRegistry &registry() { return m_registry; }
    /// Never null; another one after replaceDocument().
    pagehost::Document *document() const { return m_document.get(); }
    /// Replaces the present document, which is deleted with all its undo steps once everybody has been notified. A
    /// document without a page gets one.
    void replaceDocument(std::unique_ptr<pagehost::Document> document);

    /// The text of a localisation key in the user's language.
    QString text(const QString &key) const { return m_localizer.text(key); }
    QString text(const char *key) const { return m_localizer.text(QLatin1String(key)); }

Q_SIGNALS:
    /// document() is the new one; the one before is still alive.
    void documentReplaced();
    /// Kinds of shape that come from files have changed, or their looks or faults.
    void kindsChanged();
    /// A plug-in that had been loaded failed.
    void pluginProblemFound(const pagehost::PluginReport &report);

private:
    pagehost::Localizer m_localizer;
    pagehost::ObjectRegistry m_registry;
    std::unique_ptr<pagehost::Document> m_document;
};

} // namespace board
