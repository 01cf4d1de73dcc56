// Two shapes on a page: select and drag them with the mouse, undo and redo with Ctrl+Z and Ctrl+Y, save with
// Ctrl+S. The file named on the command line is opened if it is there. With "--once" the program saves and ends
// without a window.

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <pagehost/application.h>
#include <pagehost/creation.h>
#include <pagehost/document.h>
#include <pagehost/documentfile.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QUndoStack>

#include <cstdio>
#include <memory>

namespace {

std::unique_ptr<pagehost::Document> newDocument(const pagehost::ObjectRegistry &registry)
{
    auto document = std::make_unique<pagehost::Document>();
    pagehost::setCurrentDocument(document.get());
    pagehost::PageScene *scene = document->appendPage(QSizeF(640, 400))->scene();
    pagehost::CreationTool tool(&registry);
    tool.createAt(scene, QStringLiteral("shapes.star"), QPointF(80, 120));
    tool.createAt(scene, QStringLiteral("shapes.blockarrow"), QPointF(340, 140));
    return document;
}

/// The file's document; a new one where there is no file. Null, with a message, for a file that can't be read.
std::unique_ptr<pagehost::Document> documentOf(const QString &file, const pagehost::ObjectRegistry &registry)
{
    if (!QFileInfo::exists(file))
        return newDocument(registry);
    pagehost::OpenResult opened = pagehost::openDocument(file, registry);
    if (!opened.document)
        std::fprintf(stderr, "%s can't be read\n", qUtf8Printable(file));
    return std::move(opened.document);
}

bool save(pagehost::Document &document, const QString &file)
{
    const bool saved = pagehost::saveDocument(document, file).saved;
    saved ? document.markSaved() : void(std::fprintf(stderr, "%s can't be written\n", qUtf8Printable(file)));
    return saved;
}

int showWindow(pagehost::Document &document, const QString &file)
{
    QGraphicsView view(document.page(0)->scene());
    view.setRenderHint(QPainter::Antialiasing);
    view.setMouseTracking(true);
    QUndoStack *steps = CUndoRedo::GetInstance()->stack();
    QObject::connect(new QShortcut(QKeySequence::Undo, &view), &QShortcut::activated, steps, &QUndoStack::undo);
    QObject::connect(new QShortcut(QKeySequence::Redo, &view), &QShortcut::activated, steps, &QUndoStack::redo);
    QObject::connect(new QShortcut(QKeySequence::Save, &view), &QShortcut::activated, &view,
                     [&document, file] { save(document, file); });
    view.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QString file = application.arguments().value(1, QStringLiteral("two.board"));
    pagehost::ObjectRegistry registry;
    registry.loadDirectory(QStringLiteral(SHAPES_DIR));
    const std::unique_ptr<pagehost::Document> document = documentOf(file, registry);
    if (!document)
        return 1;
    pagehost::setCurrentDocument(document.get());
    const bool isOnce = application.arguments().contains(QStringLiteral("--once"));
    const int result = isOnce ? (save(*document, file) ? 0 : 1) : showWindow(*document, file);
    std::printf("%d shapes\n", document->page(0)->objectCount());
    CUndoRedo::GetInstance()->stack()->clear();
    pagehost::setCurrentDocument(nullptr);
    return result;
}
