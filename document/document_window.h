#pragma once

// The one window of orravane-document: a person, a day and a format go in, a file comes out.

#include "report/pdf_engine.h"
#include "shell/date_list.h"

#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include <chrono>
#include <string_view>

class BusyBar;
class CheckBox;
class CommandButton;
class NameBox;

class DocumentWindow : public QWidget {
    Q_OBJECT

public:
    DocumentWindow();

    /// The title of the window and of all that stands in front of it.
    static QString Title();

    NameBox *firstName;
    NameBox *middleName;
    NameBox *lastName;
    DateList *birthMonth;
    DateList *birthDay;
    DateList *birthYear;
    DateList *month; ///< of the reading, like the next two
    DateList *day;   ///< has the days that the month has
    DateList *year;
    DateList *format;
    CheckBox *opens; ///< whether the finished document is opened
    CommandButton *make;
    CommandButton *cancel; ///< can be seen while a PDF is made
    BusyBar *busy;         ///< likewise
    QLabel *status;        ///< what has become of the latest document

    /// While a PDF is being made: from Make until its end or Cancel.
    bool IsBusy() const { return engine_.IsAtWork(); }

public slots:
    /// Checks the inputs, asks for a file, makes the document and writes it there. What is
    /// missing or fails gets a message. Returns at once where a PDF is made; the rest follows.
    void Make();

    /// Gives up the PDF that is being made. No file is written.
    void Cancel();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *BuildName();
    QWidget *BuildDates();
    QWidget *BuildDocument();
    QWidget *BuildFoot();

    std::chrono::year_month_day DayOfReading() const;
    void FitDaysToMonth();
    void SetBusy(bool isBusy);
    void ShowStatus(const QString &text);
    /// Shows a message and moves the focus to `control`.
    void Complain(const QString &message, QWidget *control);
    /// The name box that `message` of a refusal begins with.
    QWidget *BoxNamedIn(const QString &message) const;
    void TakePdf(const PdfAnswer &answer);
    void Write(std::string_view content);

    QPixmap sky_; ///< behind all
    PdfEngine engine_;
    QString file_; ///< of the document that is being made
};
