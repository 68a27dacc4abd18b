#include "report/printing.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>

#include <memory>

using namespace Qt::StringLiterals;

void PrintDocument(const QTextDocument &document) {
    const QPrinterInfo defaultPrinter = QPrinterInfo::defaultPrinter();
    if (defaultPrinter.isNull())
        return;

    QPrinter printer(defaultPrinter, QPrinter::HighResolution);
    printer.setDocName(u"Orravane"_s);
    printer.setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Millimeter);

    // The pane measures in pixels of 96 to the inch.
    constexpr qreal pixelsPerInch = 96;
    const QSizeF page = printer.pageLayout().paintRect(QPageLayout::Inch).size() * pixelsPerInch;
    const std::unique_ptr<QTextDocument> pages(document.clone());
    pages->setDocumentMargin(0);
    pages->setPageSize(page);

    // QTextDocument's own print would do, but it draws the line behind a page break on both
    // pages, once outside the paper, where searching and copying in a PDF still finds it.
    QPainter painter(&printer);
    const qreal scale = printer.resolution() / pixelsPerInch;
    painter.scale(scale, scale);
    for (int number = 0; number < pages->pageCount(); ++number) {
        if (number > 0 && !printer.newPage())
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
