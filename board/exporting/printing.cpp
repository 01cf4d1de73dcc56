#include "exporting/printing.h"

#include "core/notices.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "exporting/sheetprinter.h"
#include "exporting/steps.h"
#include "output/objectsimage.h"
#include "output/pagedrawing.h"
#include "output/sheets.h"

#include <pagehost/document.h>
#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>

namespace board {

namespace {

/// Dots per inch of what has to become a picture. Outlines don't depend on it.
constexpr int resolution = 300;

Printable printableOf(pagehost::Page *page, const pagehost::ObjectRegistry &registry)
{
    return {page->size(),
            [page = QPointer<pagehost::Page>(page), &registry](QPainter *painter, const QRectF &target) {
                if (page)
                    drawPage(page, registry, painter, target);
            }};
}

Printable printableOf(const QVector<CBaseObject *> &objects, const pagehost::ObjectRegistry &registry)
{
    const QRectF area = imageOf(objects, 1).area;
    return {area.size(), [=, &registry](QPainter *painter, const QRectF &target) {
                drawObjects(objects, area, registry, painter, target);
            }};
}

QVector<Printable> pagesOf(const Workspace &workspace, int first, int last)
{
    QVector<Printable> pages;
    for (int i = first; i <= qMin(last, workspace.document()->pageCount() - 1); ++i)
        pages.append(printableOf(workspace.document()->page(i), workspace.registry()));
    return pages;
}

QVector<Printable> contentOf(const Workspace &workspace, const QPrinter &printer)
{
    const pagehost::Document &document = *workspace.document();
    switch (printer.printRange()) {
    case QPrinter::Selection:
        return {printableOf(document.currentPage()->selectedObjects(), workspace.registry())};
    case QPrinter::CurrentPage:
        return pagesOf(workspace, document.currentIndex(), document.currentIndex());
    case QPrinter::PageRange:
        return pagesOf(workspace, qMax(1, printer.fromPage()) - 1, printer.toPage() - 1);
    default:
        return pagesOf(workspace, 0, document.pageCount() - 1);
    }
}

std::shared_ptr<QPrinter> makePrinter(const QSizeF &page, const QString &name)
{
    auto printer = std::make_shared<QPrinter>();
    printer->setResolution(resolution);
    printer->setDocName(name);
    printer->setCreator(QStringLiteral("gliololok-board"));
    printer->setPageOrientation(page.width() > page.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    return printer;
}

} // namespace

Printing::Printing(const Workspace *workspace, const DocumentController *documents, Notices *notices,
                   QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_documents(documents)
    , m_notices(notices)
    , m_window(window)
{
}

Printing::~Printing() = default;

void Printing::ask()
{
    const std::shared_ptr<QPrinter> printer =
        makePrinter(m_workspace->document()->currentPage()->size(), m_documents->name());
    QPrintDialog *dialog = makeDialog(printer.get());
    const auto *perSheet = dialog->findChild<QComboBox *>(QStringLiteral("pagesPerSheet"));
    // The connection, which dies with the dialog, keeps the printer alive.
    connect(dialog, &QDialog::accepted, this, [=] { print(printer, perSheet->currentData().toInt()); });
    dialog->open();
}

QPrintDialog *Printing::makeDialog(QPrinter *printer) const
{
    auto *dialog = new QPrintDialog(printer, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const pagehost::Document &document = *m_workspace->document();
    dialog->setMinMax(1, document.pageCount());
    dialog->setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog->setOption(QAbstractPrintDialog::PrintSelection, !document.currentPage()->selectedObjects().isEmpty());

    auto *tab = new QWidget;
    tab->setWindowTitle(m_workspace->text("IDS_BOARD_PRINT_LAYOUT"));
    auto *perSheet = new QComboBox(tab);
    perSheet->setObjectName(QStringLiteral("pagesPerSheet"));
    const QVector<int> counts = sheetCounts();
    for (const int count : counts)
        perSheet->addItem(QString::number(count), count);
    auto *form = new QFormLayout(tab);
    form->addRow(m_workspace->text("IDS_BOARD_PAGES_PER_SHEET"), perSheet);
    dialog->setOptionTabs({tab});
    return dialog;
}

void Printing::print(const std::shared_ptr<QPrinter> &printer, int pagesPerSheet)
{
    const auto sheets = std::make_shared<SheetPrinter>(contentOf(*m_workspace, *printer), pagesPerSheet, printer);
    const auto finish = [this, sheets](bool cancelled) {
        if (!sheets->finish(cancelled) && !cancelled)
            m_notices->add({m_workspace->text("IDS_BOARD_NOT_PRINTED"), {}, {}, QStringLiteral("printNotice")});
    };
    takeSteps(*m_workspace, m_window,
              {m_workspace->text("IDS_BOARD_PRINTING"), sheets->sheetCount(),
               [sheets](int index) { sheets->print(index); }, finish});
}

} // namespace board
