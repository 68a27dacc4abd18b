#pragma once

// PDF out of HTML. The pages are laid out by WeasyPrint, which runs as a process of its own
// and converts one document after the other, so that it is started once for many.

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>

#include <string>

/// A PDF, or in one line why there is none.
struct PdfAnswer {
    QByteArray pdf;
    QString trouble; ///< empty: there is a PDF
};

/// The size of the pages.
enum class Paper { A4, Letter };

class PdfEngine : public QObject {
    Q_OBJECT

public:
    explicit PdfEngine(QObject *parent = nullptr);

    /// Ends the process, whatever it does.
    ~PdfEngine() override;

    /// Why no PDF can be made on this machine: a line that names the package to install, where
    /// there is one. Empty where the engine is installed.
    static QString WhatIsMissing();

    /// Begins to make a PDF of `html`, a document in UTF-8 from which nothing else is loaded:
    /// no file, no page of the web. The same text gives the same bytes. answered() follows, even
    /// before this returns where the engine is missing or does not start. Only one document is in
    /// work at a time.
    void Start(const std::string &html, Paper paper);

    /// Ends the work that Start has begun: the process is gone, and answered() does not come.
    void Cancel();

    /// From Start until answered() or Cancel.
    bool IsAtWork() const { return atWork_; }

    /// The same as Start, but waits for the answer and returns it.
    PdfAnswer Make(const std::string &html, Paper paper);

signals:
    void answered(const PdfAnswer &answer);

private:
    void Launch();
    void TakeOutput();
    void HasEnded();
    void Answer(PdfAnswer answer);

    QProcess process_;
    QByteArray received_; ///< of the present answer
    bool atWork_ = false;
    PdfAnswer *waiting_ = nullptr; ///< where Make wants its answer
};
