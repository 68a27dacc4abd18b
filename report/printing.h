#pragma once

// The report on paper.

class QTextDocument;

/// Prints the whole of `document` on the default printer, on the paper and with the settings
/// that the user and the printer have, up to the margins of the printer, but none narrower than
/// narrowestMargin (report/print_job.h): no dialog, no heading, no page numbers. Returns once the
/// spooler has the job. Does nothing, silently, where there is no printer.
void PrintDocument(const QTextDocument &document);
