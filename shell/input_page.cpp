#include "shell/input_page.h"

#include "shell/geometry.h"
#include "shell/image_button.h"
#include "shell/name_box.h"

#include <QLocale>
#include <QStyledItemDelegate>

namespace {

/// A caption, and the control that it names.
QLabel *Buddy(QLabel *label, QWidget *control) {
    label->setBuddy(control);
    return label;
}

} // namespace

InputPage::InputPage(QWidget *parent) : Page(parent) {
    Frame1 = Placed(new QGroupBox(tr("Note: "), this), "Frame1", PlaceOf("Frame1"));
    Label2 = Placed(
        new QLabel(tr("This program has been designed keeping in mind date settings according to "
                      "MM/DD/YYYY format"),
                   Frame1),
        "Label2", PlaceOf("Label2"));
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    Label2->setContentsMargins(0, 0, 44, 0); // keeps MM/DD/YYYY on one line

    fraName = Placed(new QGroupBox(tr("Name"), this), "fraName", PlaceOf("fraName"));
    Label1 = Placed(new QLabel(tr("* First Name"), fraName), "Label1", PlaceOf("Label1"));
    txtFirstName = Placed(new NameBox(fraName), "txtFirstName", PlaceOf("txtFirstName"));
    Label4 = Placed(new QLabel(tr("Middle Name"), fraName), "Label4", PlaceOf("Label4"));
    txtMiddleName = Placed(new NameBox(fraName), "txtMiddleName", PlaceOf("txtMiddleName"));
    Label5 = Placed(new QLabel(tr("* Last Name"), fraName), "Label5", PlaceOf("Label5"));
    txtLastName = Placed(new NameBox(fraName), "txtLastName", PlaceOf("txtLastName"));

    fraBirthDay =
        Placed(new QGroupBox(tr("* Birth Day"), this), "fraBirthDay", PlaceOf("fraBirthDay"));
    Label6 = Placed(new QLabel(tr("Month"), fraBirthDay), "Label6", PlaceOf("Label6"));
    cboMonth = Placed(new QComboBox(fraBirthDay), "cboMonth", PlaceOf("cboMonth"));
    Label3 = Placed(new QLabel(tr("Date"), fraBirthDay), "Label3", PlaceOf("Label3"));
    cboDate = Placed(new QComboBox(fraBirthDay), "cboDate", PlaceOf("cboDate"));
    Label7 = Placed(new QLabel(tr("Year"), fraBirthDay), "Label7", PlaceOf("Label7"));
    cboYear = Placed(new QComboBox(fraBirthDay), "cboYear", PlaceOf("cboYear"));

    picProceed =
        Placed(new ImageButton(7, 8, tr("Proceed"), this), "picProceed", PlaceOf("picProceed"));

    Buddy(Label1, txtFirstName);
    Buddy(Label4, txtMiddleName);
    Buddy(Label5, txtLastName);
    Buddy(Label6, cboMonth);
    Buddy(Label3, cboDate);
    Buddy(Label7, cboYear);
    txtFirstName->setAccessibleName(tr("First Name, required"));
    txtMiddleName->setAccessibleName(tr("Middle Name"));
    txtLastName->setAccessibleName(tr("Last Name, required"));
    cboMonth->setAccessibleName(tr("Birth Month"));
    cboDate->setAccessibleName(tr("Birth Date"));
    cboYear->setAccessibleName(tr("Birth Year"));
}

void InputPage::FillLists() {
    for (QComboBox *list : {cboMonth, cboDate, cboYear}) {
        list->setMaxVisibleItems(12);
        list->setItemDelegate(new QStyledItemDelegate(list)); // the one that heeds the style sheet
    }
    for (int day = 1; day <= 31; ++day)
        cboDate->addItem(QString::number(day));
    const QLocale locale = QLocale::system();
    for (int month = 1; month <= 12; ++month)
        cboMonth->addItem(locale.standaloneMonthName(month, QLocale::LongFormat));
    for (int year = 1900; year <= 2050; ++year)
        cboYear->addItem(QString::number(year));
}

void InputPage::SelectFirstDates() {
    cboMonth->setCurrentIndex(0);
    cboDate->setCurrentIndex(0);
    cboYear->setCurrentIndex(0);
}
