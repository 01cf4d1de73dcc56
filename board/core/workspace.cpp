#include "core/workspace.h"

#include "core/texts.h"

#include <pagehost/application.h>

#include <framework/iframework.h>

#include <QtGui/QColor>

namespace board {

namespace {

constexpr QRgb newPenColor = 0xff34495e;

} // namespace

Workspace::Workspace(const QString &language)
    : m_registry(&m_localizer)
    , m_document(std::make_unique<pagehost::Document>())
{
    const QStringList languages = boardLanguages();
    for (const QString &code : languages)
        m_localizer.addTexts(code, boardTexts(code));
    m_localizer.setLanguage(language);
    qRegisterMetaType<pagehost::PluginReport>();
    m_registry.setProblemListener(
        [this](const pagehost::PluginReport &report) { Q_EMIT pluginProblemFound(report); });
    m_registry.setKindsListener([this] { Q_EMIT kindsChanged(); });
    pagehost::setColorSetting(IFramework::DefaultPenColor, false, QColor(newPenColor));
    pagehost::setCurrentDocument(m_document.get());
    m_document->appendPage();
}

Workspace::~Workspace()
{
    pagehost::setCurrentDocument(nullptr);
}

void Workspace::replaceDocument(std::unique_ptr<pagehost::Document> document)
{
    if (document->pageCount() == 0)
        document->appendPage();
    pagehost::setCurrentDocument(document.get());
    m_document.swap(document);
    Q_EMIT documentReplaced();
}

void Workspace::loadPlugins(const QStringList &folders)
{
    for (const QString &folder : folders)
        m_registry.loadDirectory(folder);
}

QVector<pagehost::PluginReport> Workspace::pluginProblems() const
{
    QVector<pagehost::PluginReport> problems;
    const QVector<pagehost::PluginReport> reports = m_registry.reports();
    for (const pagehost::PluginReport &report : reports)
        if (!report.problem.isEmpty())
            problems.append(report);
    return problems;
}

} // namespace board
