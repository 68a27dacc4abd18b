#include "report/printing.h"

#include "report/print_job.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

void PaintPages(const QTextDocument &document, QPagedPaintDevice &paper) {
    // The pane measures in pixels of 96 to the inch.
    constexpr qreal pixelsPerInch = 96;
    const QSizeF page = paper.pageLayout().paintRect(QPageLayout::Inch).size() * pixelsPerInch;
    const std::unique_ptr<QTextDocument> pages(document.clone());
    pages->setDocumentMargin(0);
    pages->setPageSize(page);

    // QTextDocument's own print would do, but it draws the line behind a page break on both
    // pages, once outside the paper, where searching and copying in a PDF still finds it.
    QPainter painter(&paper);
    const qreal scale = paper.logicalDpiX() / pixelsPerInch;
    painter.scale(scale, scale);
    for (int number = 0; number < pages->pageCount(); ++number) {
        if (number > 0 && !paper.newPage())
            return;
        const QRectF view(QPointF(0, number * page.height()), page);
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black);
        context.clip = view.adjusted(0, 1, 0, -1);
        painter.save();
        painter.translate(-view.topLeft());
        painter.setClipRect(view);
        pages->documentLayout()->draw(&painter, context);
        painter.restore();
    }
}

} // namespace

void PrintDocument(const QTextDocument &document) {
    const std::unique_ptr<PrintJob> job = PrintJob::ForDefaultPrinter(u"Orravane"_s);
    if (job == nullptr)
        return;
    PaintPages(document, job->Pages());
    job->Submit();
}
