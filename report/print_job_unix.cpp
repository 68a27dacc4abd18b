#include "report/print_job.h"

#include <QLocale>
#include <QPageLayout>
#include <QPdfWriter>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdlib>
#include <cups/cups.h>
#include <cups/pwg.h>
#include <optional>

using namespace Qt::StringLiterals;

// The job is the one that `lp` would send: for the same printer and with the same saved
// options, of which none is touched. Copies, sides, pages per sheet and the like are the
// server's business. Here the pages are only laid out for the paper and the orientation that
// these options, or else the printer's own defaults, name.

namespace {

constexpr int connectMilliseconds = 3000;
constexpr double silenceSeconds = 5; // a server that says nothing for longer is given up

// Lengths are in hundredths of a millimetre, as the library has them.

/// Papers that differ by less than this are one: sizes are also told in rounded points.
constexpr int sameSize = 200;

struct CloseServer {
    void operator()(http_t *server) const { httpClose(server); }
};
struct FreePrinter {
    void operator()(cups_dest_t *printer) const { cupsFreeDests(1, printer); }
};
struct FreeDetails {
    void operator()(cups_dinfo_t *details) const { cupsFreeDestInfo(details); }
};

using Server = std::unique_ptr<http_t, CloseServer>;
using Printer = std::unique_ptr<cups_dest_t, FreePrinter>;
using Details = std::unique_ptr<cups_dinfo_t, FreeDetails>;

Server ConnectToServer() {
    // Left to itself, the library would ask for a password on the terminal.
    cupsSetPasswordCB2([](auto...) -> const char * { return nullptr; }, nullptr);
    Server server(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                               connectMilliseconds, nullptr));
    if (server != nullptr)
        httpSetTimeout(
            server.get(), silenceSeconds, [](auto...) { return 0; }, nullptr);
    return server;
}

/// What the user's options and the server say about a printer.
class PrinterSettings {
public:
    PrinterSettings(http_t *server, cups_dest_t *printer)
        : server_(server), printer_(printer), details_(cupsCopyDestInfo(server, printer)) {}

    QPageLayout Layout() const {
        const Paper paper = ChosenPaper();
        const QPageSize sheet(QSizeF(paper.width, paper.length) / 100, QPageSize::Millimeter);
        const cups_size_t edges = EdgesOf(paper);
        // A small label keeps room for letters.
        const int least = std::min({narrowestMargin, paper.width / 10, paper.length / 10});
        const auto margins = [least](int left, int top, int right, int bottom) {
            return QMarginsF(std::max(left, least), std::max(top, least), std::max(right, least),
                             std::max(bottom, least)) /
                   100;
        };
        if (!IsLandscape())
            return {sheet, QPageLayout::Portrait,
                    margins(edges.left, edges.top, edges.right, edges.bottom),
                    QPageLayout::Millimeter};
        // The server turns the page one way or the other, so either edge can come to be on top.
        const int across = std::max(edges.top, edges.bottom);
        const int along = std::max(edges.left, edges.right);
        return {sheet, QPageLayout::Landscape, margins(across, along, across, along),
                QPageLayout::Millimeter};
    }

private:
    struct Paper {
        int width;
        int length;
    };

    const char *Option(const char *name) const {
        return cupsGetOption(name, printer_->num_options, printer_->options);
    }

    ipp_attribute_t *Default(const char *name) const {
        return details_ == nullptr ? nullptr
                                   : cupsFindDestDefault(server_, printer_, details_.get(), name);
    }

    Paper ChosenPaper() const {
        // In the order in which the server looks at them.
        for (const char *option : {"PageSize", "PageRegion", "media"})
            if (const pwg_media_t *paper = Named(Option(option)))
                return {paper->width, paper->length};
        if (const pwg_media_t *paper = Named(ippGetString(Default("media"), 0, nullptr)))
            return {paper->width, paper->length};
        // A printer that knows nothing of paper gets what is usual here.
        return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem
                   ? Paper{21590, 27940}
                   : Paper{21000, 29700};
    }

    /// The paper of a name such as "iso_a4_210x297mm", "a4" or "A4", or the first one of
    /// "A4,Tray2,Plain". Null where there is none.
    static const pwg_media_t *Named(const char *names) {
        const QByteArray name = QByteArray(names).split(',').first();
        if (name.isEmpty())
            return nullptr;
        for (const auto find : {pwgMediaForPWG, pwgMediaForLegacy, pwgMediaForPPD})
            if (const pwg_media_t *paper = find(name.constData()))
                return paper;
        return nullptr;
    }

    /// The edges that the printer cannot reach. Where it has several ways to print on this
    /// paper, such as with and without a border, the widest edges.
    cups_size_t EdgesOf(const Paper &paper) const {
        cups_size_t widest{};
        const int count = details_ == nullptr
                              ? 0
                              : cupsGetDestMediaCount(server_, printer_, details_.get(),
                                                      CUPS_MEDIA_FLAGS_DEFAULT);
        for (int index = 0; index < count; ++index) {
            cups_size_t size{};
            if (cupsGetDestMediaByIndex(server_, printer_, details_.get(), index,
                                        CUPS_MEDIA_FLAGS_DEFAULT, &size) == 0 ||
                std::abs(size.width - paper.width) > sameSize ||
                std::abs(size.length - paper.length) > sameSize)
                continue;
            widest.left = std::max(widest.left, size.left);
            widest.top = std::max(widest.top, size.top);
            widest.right = std::max(widest.right, size.right);
            widest.bottom = std::max(widest.bottom, size.bottom);
        }
        return widest;
    }

    bool IsLandscape() const {
        int orientation = ippGetInteger(Default("orientation-requested"), 0);
        if (const char *option = Option("orientation-requested"))
            orientation = std::atoi(option);
        else if (const char *landscape = Option("landscape"))
            orientation =
                qstricmp(landscape, "false") == 0 ? IPP_ORIENT_PORTRAIT : IPP_ORIENT_LANDSCAPE;
        return orientation == IPP_ORIENT_LANDSCAPE || orientation == IPP_ORIENT_REVERSE_LANDSCAPE;
    }

    http_t *server_;
    cups_dest_t *printer_;
    Details details_;
};

class CupsJob final : public PrintJob {
public:
    CupsJob(QString title, Server server, Printer printer)
        : title_(std::move(title)), server_(std::move(server)), printer_(std::move(printer)) {
        if (!file_.open())
            return;
        pages_.emplace(&file_);
        pages_->setTitle(title_);
        pages_->setPageLayout(PrinterSettings(server_.get(), printer_.get()).Layout());
    }

    bool IsReady() const { return pages_.has_value(); }

    QPagedPaintDevice &Pages() override { return *pages_; }

    void Submit() override {
        pages_.reset();
        if (!file_.flush())
            return;
        cupsPrintFile2(server_.get(), printer_->name, QFile::encodeName(file_.fileName()),
                       title_.toUtf8(), printer_->num_options, printer_->options);
    }

private:
    QString title_;
    Server server_;
    Printer printer_;
    QTemporaryFile file_;
    std::optional<QPdfWriter> pages_;
};

} // namespace

std::unique_ptr<PrintJob> PrintJob::ForDefaultPrinter(const QString &title) {
    Server server = ConnectToServer();
    if (server == nullptr)
        return nullptr;
    Printer printer(cupsGetNamedDest(server.get(), nullptr, nullptr));
    if (printer == nullptr)
        return nullptr;
    auto job = std::make_unique<CupsJob>(title, std::move(server), std::move(printer));
    return job->IsReady() ? std::move(job) : nullptr;
}
