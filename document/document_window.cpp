#include "document/document_window.h"

#include "core/clock.h"
#include "core/months.h"
#include "document/busy_bar.h"
#include "document/check_box.h"
#include "document/command_button.h"
#include "report/saving.h"
#include "shell/artwork.h"
#include "shell/group.h"
#include "shell/keys.h"
#include "shell/name_box.h"
#include "shell/page.h"
#include "shell/style.h"
#include "tools/file_names.h"
#include "tools/formats.h"
#include "tools/people.h"
#include "tools/reading.h"
#include "tools/refusal.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMessageBox>
#include <QShortcut>
#include <QUrl>

#include <array>

using namespace Qt::StringLiterals;

namespace {

// In logical pixels, as the sky behind the page was drawn for them.
constexpr QSize skySize(626, 440);
constexpr QSize windowSize(466, 440);
constexpr QRect pagePlace(14, 57, 438, 345);
constexpr QRect footPlace(14, 404, 438, 35);
constexpr int statusWidth = 340;

struct FormatRow {
    Format format;
    const char *entry;  ///< in the list
    const char *filter; ///< in the save dialog
    const char *suffix;
};

constexpr std::array formats{
    FormatRow{Format::Pdf, QT_TR_NOOP("PDF, to print and to hand over"), "PDF (*.pdf)", "pdf"},
    FormatRow{Format::Html, QT_TR_NOOP("HTML, to read in a browser"), "HTML (*.html)", "html"},
    FormatRow{Format::Markdown, QT_TR_NOOP("Markdown, to go on writing"), "Markdown (*.md)", "md"},
    FormatRow{Format::Rtf, QT_TR_NOOP("RTF, the readings for a word processor"),
              "Rich Text Format (*.rtf)", "rtf"}};

QLabel *Label(const QString &text, QWidget *buddy, QWidget *parent) {
    auto *label = new QLabel(text, parent);
    label->setBuddy(buddy);
    return label;
}

/// The layout of what is inside a group.
QGridLayout *Rows(Group *group) {
    auto *rows = new QGridLayout(group);
    rows->setContentsMargins(14, 4, 14, 10); // the title has its own room above them
    rows->setHorizontalSpacing(8);
    rows->setVerticalSpacing(8);
    rows->setColumnMinimumWidth(0, 96);
    return rows;
}

DateList *List(const QString &accessibleName, QWidget *parent) {
    auto *list = new DateList(parent);
    list->setAccessibleName(accessibleName);
    list->setFixedHeight(22);
    return list;
}

NameBox *Box(const QString &accessibleName, QWidget *parent) {
    auto *box = new NameBox(parent);
    box->setAccessibleName(accessibleName);
    box->setFixedHeight(22);
    return box;
}

/// `sentence` as it stands alone.
QString WithCapital(QString sentence) {
    if (!sentence.isEmpty())
        sentence.front() = sentence.front().toUpper();
    return sentence;
}

InputNames NamesInMessages() {
    InputNames names;
    names.first = DocumentWindow::tr("the first name");
    names.middle = DocumentWindow::tr("the middle name");
    names.last = DocumentWindow::tr("the last name");
    return names;
}

} // namespace

QString DocumentWindow::Title() { return u"Orravane Document"_s; }

DocumentWindow::DocumentWindow() {
    setWindowTitle(Title());
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    setFixedSize(windowSize);

    auto *page = new Page(this);
    page->setGeometry(pagePlace);
    auto *groups = new QVBoxLayout(page);
    groups->setContentsMargins(10, 8, 10, 10);
    groups->setSpacing(6);
    groups->addWidget(BuildName());
    groups->addWidget(BuildDates());
    groups->addWidget(BuildDocument());
    QWidget *foot = BuildFoot();
    foot->setGeometry(footPlace);

    // On the parts and not on the window, as dialogs keep the desktop's own colours. A control
    // that a style sheet touches no longer inherits its font.
    for (QWidget *part : {static_cast<QWidget *>(page), foot})
        part->setStyleSheet(u"* { font-family: \"Verdana\", \"DejaVu Sans\"; font-size: 11px; }"
                            "QLabel { color: white; background: transparent; }"_s +
                            ControlStyle());

    connect(make, &CommandButton::clicked, this, &DocumentWindow::Make);
    connect(cancel, &CommandButton::clicked, this, &DocumentWindow::Cancel);
    connect(&engine_, &PdfEngine::answered, this, &DocumentWindow::TakePdf);
    for (DateList *list : {month, year})
        connect(list, &DateList::currentIndexChanged, this, &DocumentWindow::FitDaysToMonth);
    connect(new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this,
            &QWidget::close);
    SetBusy(false);
    firstName->setFocus();
}

QWidget *DocumentWindow::BuildName() {
    auto *group = new Group(tr("Name"), this);
    QGridLayout *rows = Rows(group);
    firstName = Box(tr("First name, required"), group);
    middleName = Box(tr("Middle name"), group);
    lastName = Box(tr("Last name, required"), group);
    rows->addWidget(Label(tr("* &First name"), firstName, group), 0, 0);
    rows->addWidget(firstName, 0, 1);
    rows->addWidget(Label(tr("M&iddle name"), middleName, group), 1, 0);
    rows->addWidget(middleName, 1, 1);
    rows->addWidget(Label(tr("* &Last name"), lastName, group), 2, 0);
    rows->addWidget(lastName, 2, 1);
    rows->setColumnStretch(1, 1);
    return group;
}

QWidget *DocumentWindow::BuildDates() {
    auto *group = new Group(tr("Dates"), this);
    QGridLayout *rows = Rows(group);
    birthMonth = List(tr("Month of birth"), group);
    birthDay = List(tr("Day of birth"), group);
    birthYear = List(tr("Year of birth"), group);
    month = List(tr("Month of the reading"), group);
    day = List(tr("Day of the reading"), group);
    year = List(tr("Year of the reading"), group);

    birthMonth->AddMonths();
    birthDay->AddNumbers(1, 31); // whatever the month, as in the window
    birthYear->AddNumbers(1900, 2050);
    month->AddMonths();
    year->AddNumbers(1900, 2100);
    const auto today = modReadings::Clock::Date();
    month->setCurrentIndex(static_cast<int>(static_cast<unsigned>(today.month())) - 1);
    year->setCurrentText(QString::number(static_cast<int>(today.year())));
    FitDaysToMonth();
    day->setCurrentIndex(static_cast<int>(static_cast<unsigned>(today.day())) - 1);

    rows->addWidget(Label(tr("&Born"), birthMonth, group), 0, 0);
    rows->addWidget(Label(tr("&Read for"), month, group), 1, 0);
    int row = 0;
    for (const auto &lists : {std::array{birthMonth, birthDay, birthYear}, {month, day, year}}) {
        lists[0]->setFixedWidth(112);
        lists[1]->setFixedWidth(58);
        lists[2]->setFixedWidth(72);
        for (int column = 0; column < 3; ++column)
            rows->addWidget(lists[static_cast<std::size_t>(column)], row, column + 1);
        ++row;
    }
    rows->setColumnStretch(4, 1);
    return group;
}

QWidget *DocumentWindow::BuildDocument() {
    auto *group = new Group(tr("Document"), this);
    QGridLayout *rows = Rows(group);
    format = List(tr("Format"), group);
    for (const FormatRow &row : formats)
        format->addItem(tr(row.entry));
    if (!PdfEngine::WhatIsMissing().isEmpty())
        format->setCurrentIndex(1); // PDF stays in the list, and says what it needs
    opens = new CheckBox(tr("&Open it when it is made"), group);
    opens->setChecked(true);
    rows->addWidget(Label(tr("Forma&t"), format, group), 0, 0);
    rows->addWidget(format, 0, 1);
    rows->addWidget(opens, 1, 1);
    rows->setColumnStretch(1, 1);
    return group;
}

QWidget *DocumentWindow::BuildFoot() {
    auto *foot = new QWidget(this);
    auto *row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    status = new QLabel(foot);
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    busy = new BusyBar(foot);
    busy->setAccessibleName(tr("The PDF is being made"));
    busy->setFixedWidth(110);
    make = new CommandButton(tr("&Make"), foot);
    cancel = new CommandButton(tr("&Cancel"), foot);
    row->addWidget(status, 1);
    row->addWidget(busy);
    row->addWidget(cancel);
    row->addWidget(make);
    return foot;
}

void DocumentWindow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QRect whole(QPoint(), skySize);
    const QSize size = DeviceSize(painter, whole);
    if (sky_.size() != size) // the first paint, or the window is on another display now
        sky_ = LoadBackground(size);
    DrawPicture(painter, whole, sky_);
    // Beside the page, the right edge of the sky, which is wider than this window.
    painter.setClipRect(QRect(pagePlace.right() + 1, pagePlace.top(), width(), pagePlace.height()));
    DrawPicture(painter, whole.translated(width() - skySize.width(), 0), sky_);
}

void DocumentWindow::keyPressEvent(QKeyEvent *event) {
    // Keys come here when the control that has the focus makes no use of them.
    const bool enter = IsEnter(*event);
    const bool alone = !event->isAutoRepeat() && (event->modifiers() & ~Qt::KeypadModifier) == 0;
    if (alone && (event->key() == Qt::Key_Escape || (enter && cancel->hasFocus())))
        Cancel();
    else if (alone && enter)
        Make();
    else
        QWidget::keyPressEvent(event);
}

void DocumentWindow::closeEvent(QCloseEvent *event) {
    engine_.Cancel();
    QWidget::closeEvent(event);
}

void DocumentWindow::FitDaysToMonth() {
    const int days = QDate(year->currentText().toInt(), month->currentIndex() + 1, 1).daysInMonth();
    while (day->count() > days) // a day that goes gives way to the last one that there is
        day->removeItem(day->count() - 1);
    day->AddNumbers(day->count() + 1, days);
}

std::chrono::year_month_day DocumentWindow::DayOfReading() const {
    return {std::chrono::year(year->currentText().toInt()),
            std::chrono::month(static_cast<unsigned>(month->currentIndex() + 1)),
            std::chrono::day(static_cast<unsigned>(day->currentIndex() + 1))};
}

void DocumentWindow::SetBusy(bool isBusy) {
    const bool moves = isBusy ? make->hasFocus() : cancel->hasFocus();
    busy->setVisible(isBusy);
    cancel->setVisible(isBusy);
    make->setEnabled(!isBusy);
    if (moves)
        (isBusy ? cancel : make)->setFocus();
}

void DocumentWindow::ShowStatus(const QString &text) {
    status->setToolTip(text);
    status->setAccessibleName(text);
    status->setText(fontMetrics().elidedText(text, Qt::ElideMiddle, statusWidth));
    QAccessibleEvent changed(status, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void DocumentWindow::Complain(const QString &message, QWidget *control) {
    QMessageBox(QMessageBox::Warning, Title(), message, QMessageBox::Ok, this).exec();
    control->setFocus();
}

QWidget *DocumentWindow::BoxNamedIn(const QString &message) const {
    const InputNames names = NamesInMessages();
    return message.startsWith(names.last)     ? lastName
           : message.startsWith(names.middle) ? middleName
                                              : firstName;
}

void DocumentWindow::Make() {
    if (IsBusy())
        return;
    ShowStatus({});
    const FormatRow &chosen = formats.at(static_cast<std::size_t>(format->currentIndex()));

    if (firstName->text().isEmpty())
        return Complain(tr("Please enter the first name."), firstName);
    if (lastName->text().isEmpty())
        return Complain(tr("Please enter the last name."), lastName);
    const modReadings::FixedClock onThatDay(DayOfReading());
    const PersonInput input{
        firstName->text(),       middleName->text(),
        lastName->text(),        QString::number(birthMonth->currentIndex() + 1),
        birthDay->currentText(), birthYear->currentText()};
    modReadings::UserProfile person;
    try {
        person = CheckPerson(input, NamesInMessages());
    } catch (const Refusal &refusal) {
        return Complain(WithCapital(refusal.Line()) + u'.', BoxNamedIn(refusal.Line()));
    }
    if (chosen.format == Format::Pdf && !PdfEngine::WhatIsMissing().isEmpty())
        return Complain(PdfEngine::WhatIsMissing() + u'.', format);

    const QString name = QStringList{input.first, input.middle, input.last}.join(u' ').simplified();
    const QString suffix = QLatin1StringView(chosen.suffix);
    file_ = AskForFile({Title(), QLatin1StringView(chosen.filter), suffix,
                        SafeFileName(name, u'.' + suffix), true},
                       this);
    if (file_.isEmpty())
        return;

    if (chosen.format == Format::Rtf) {
        PersonReading reading = ReadPerson(person, AllCaptions());
        reading.head = HeadOf(person, DayOfReading());
        return Write(ReadingAsRtf(reading));
    }
    const std::string document = DocumentAs(chosen.format, person, GivenNameOf(input));
    if (chosen.format != Format::Pdf)
        return Write(document);
    ShowStatus(tr("The PDF is being made"));
    // Where inches are the measure, so is the paper of inches.
    const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    engine_.Start(document, inches ? Paper::Letter : Paper::A4);
    SetBusy(IsBusy());
}

void DocumentWindow::Cancel() {
    if (!IsBusy())
        return;
    engine_.Cancel();
    SetBusy(false);
    ShowStatus(tr("Cancelled; nothing was written"));
}

void DocumentWindow::TakePdf(const PdfAnswer &answer) {
    SetBusy(false);
    ShowStatus({});
    if (!answer.trouble.isEmpty())
        return Complain(answer.trouble + u'.', format);
    Write({answer.pdf.constData(), static_cast<std::size_t>(answer.pdf.size())});
}

void DocumentWindow::Write(std::string_view content) {
    const QString trouble = WriteWhole(file_, content);
    if (!trouble.isEmpty())
        return Complain(tr("The file %1 could not be written: %2.")
                            .arg(QDir::toNativeSeparators(file_), trouble),
                        make);
    ShowStatus(tr("Made %1").arg(QFileInfo(file_).fileName()));
    if (opens->isChecked() && !QDesktopServices::openUrl(QUrl::fromLocalFile(file_)))
        ShowStatus(tr("Made %1; nothing here can show it").arg(QFileInfo(file_).fileName()));
}
