#pragma once

// A document on its way to the user's default printer. The print system of the machine
// stands behind it: one implementation for each.

#include <QtGlobal>

#include <memory>

class QPagedPaintDevice;
class QString;

/// In hundredths of a millimetre. No margin is narrower, even where the printer would reach the
/// edge: paper is never fed quite straight, and letters at the edge would be lost. A quarter of
/// an inch, which most printers keep to themselves.
inline constexpr int narrowestMargin = 635;

class PrintJob {
public:
    /// A new job with this title for the default printer, with the settings that the user has
    /// saved for it. Null where there is no such printer or its server does not answer.
    static std::unique_ptr<PrintJob> ForDefaultPrinter(const QString &title);

    virtual ~PrintJob() = default;

    /// Where to paint. The pages have the paper, the orientation and the margins with which
    /// they will be printed.
    virtual QPagedPaintDevice &Pages() = 0;

    /// Hands the pages to the spooler; a failure goes unnoticed. To be called once, when the
    /// painting has ended.
    virtual void Submit() = 0;

protected:
    PrintJob() = default;
    Q_DISABLE_COPY_MOVE(PrintJob)
};
