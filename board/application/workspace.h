#pragma once

#include <pagehost/document.h>
#include <pagehost/localizer.h>
#include <pagehost/objectregistry.h>

namespace board {

/// What every part of the program works with: texts, kinds of object, and the document with its first page.
class Workspace
{
public:
    /// `language` is a code such as "en" or "de_AT"; English where there are no texts in it.
    explicit Workspace(const QString &language);
    ~Workspace();
    Workspace(const Workspace &) = delete;
    Workspace &operator=(const Workspace &) = delete;

    /// Loads every plug-in of the folders; what went wrong is in pluginProblems().
    void loadPlugins(const QStringList &folders);
    /// Reports on plug-ins that could not be used, or not fully.
    QVector<pagehost::PluginReport> pluginProblems() const;

    const pagehost::Localizer &localizer() const { return m_localizer; }
    const pagehost::ObjectRegistry &registry() const { return m_registry; }
    pagehost::ObjectRegistry &registry() { return m_registry; }
    pagehost::Document *document() { return &m_document; }

    /// The text of a localisation key in the user's language.
    QString text(const QString &key) const { return m_localizer.text(key); }
    QString text(const char *key) const { return m_localizer.text(QLatin1String(key)); }

private:
    pagehost::Localizer m_localizer;
    pagehost::ObjectRegistry m_registry;
    pagehost::Document m_document;
};

} // namespace board
