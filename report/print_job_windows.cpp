#include "report/print_job.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

// The toolkit's printer starts with all that the user has set for it: paper, orientation,
// sides, copies. Nothing of it is touched but the margins.

namespace {

class WindowsJob final : public PrintJob {
public:
    WindowsJob(const QString &title, const QPrinterInfo &info)
        : printer_(info, QPrinter::HighResolution) {
        printer_.setDocName(title);
        QPageLayout layout = printer_.pageLayout();
        layout.setUnits(QPageLayout::Millimeter);
        const QSizeF paper = layout.fullRect(QPageLayout::Millimeter).size();
        // A small label keeps room for letters.
        const double least =
            std::min({narrowestMargin / 100.0, paper.width() / 10, paper.height() / 10});
        const QMarginsF edges = layout.minimumMargins();
        printer_.setPageMargins({std::max(edges.left(), least), std::max(edges.top(), least),
                                 std::max(edges.right(), least), std::max(edges.bottom(), least)},
                                QPageLayout::Millimeter);
    }

    bool IsReady() const { return printer_.isValid(); }

    QPagedPaintDevice &Pages() override { return printer_; }

    void Submit() override {} // the spooler has it since the painting ended

private:
    QPrinter printer_;
};

} // namespace

std::unique_ptr<PrintJob> PrintJob::ForDefaultPrinter(const QString &title) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        return nullptr;
    auto job = std::make_unique<WindowsJob>(title, info);
    return job->IsReady() ? std::move(job) : nullptr;
}
