#include "report/printing.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>

#include <memory>

void PrintDocument(const QTextDocument &document) {
    const QPrinterInfo defaultPrinter = QPrinterInfo::defaultPrinter();
    if (defaultPrinter.isNull())
        return;

    QPrinter printer(defaultPrinter, QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Orravane"));
    printer.setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Millimeter);

    // A document that is paginated already is printed as it is; any other would get page
    // numbers. The pane measures in pixels of 96 to the inch.
    const std::unique_ptr<QTextDocument> pages(document.clone());
    pages->setDocumentMargin(0);
    pages->setPageSize(printer.pageLayout().paintRect(QPageLayout::Inch).size() * 96);
    pages->print(&printer);
}
