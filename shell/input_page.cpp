#include "shell/input_page.h"

#include "shell/geometry.h"
#include "shell/image_button.h"
#include "shell/keys.h"
#include "shell/name_box.h"

InputPage::InputPage(QWidget *parent) : Page(parent) {
    Frame1 = Placed(new Group(tr("Note: "), this), At("Frame1"));
    Label2 = Placed(
        new QLabel(tr("This program has been designed keeping in mind date settings according to "
                      "MM/DD/YYYY format"),
                   Frame1),
        At("Label2"));
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    Label2->setContentsMargins(0, 0, 44, 0); // keeps MM/DD/YYYY on one line

    fraName = Placed(new Group(tr("Name"), this), At("fraName"));
    Label1 = Placed(new QLabel(tr("* First Name"), fraName), At("Label1"));
    txtFirstName = Placed(new NameBox(fraName), At("txtFirstName"));
    Label4 = Placed(new QLabel(tr("Middle Name"), fraName), At("Label4"));
    txtMiddleName = Placed(new NameBox(fraName), At("txtMiddleName"));
    Label5 = Placed(new QLabel(tr("* Last Name"), fraName), At("Label5"));
    txtLastName = Placed(new NameBox(fraName), At("txtLastName"));

    fraBirthDay = Placed(new Group(tr("* Birth Day"), this), At("fraBirthDay"));
    Label6 = Placed(new QLabel(tr("Month"), fraBirthDay), At("Label6"));
    cboMonth = Placed(new DateList(fraBirthDay), At("cboMonth"));
    Label3 = Placed(new QLabel(tr("Date"), fraBirthDay), At("Label3"));
    cboDate = Placed(new DateList(fraBirthDay), At("cboDate"));
    Label7 = Placed(new QLabel(tr("Year"), fraBirthDay), At("Label7"));
    cboYear = Placed(new DateList(fraBirthDay), At("cboYear"));

    picProceed = Placed(new ImageButton(7, tr("Proceed"), this), At("picProceed"));

    // Tells assistive technology which label belongs to which control.
    Label1->setBuddy(txtFirstName);
    Label4->setBuddy(txtMiddleName);
    Label5->setBuddy(txtLastName);
    Label6->setBuddy(cboMonth);
    Label3->setBuddy(cboDate);
    Label7->setBuddy(cboYear);
    txtFirstName->setAccessibleName(tr("First Name, required"));
    txtMiddleName->setAccessibleName(tr("Middle Name"));
    txtLastName->setAccessibleName(tr("Last Name, required"));
    cboMonth->setAccessibleName(tr("Birth Month"));
    cboDate->setAccessibleName(tr("Birth Date"));
    cboYear->setAccessibleName(tr("Birth Year"));
}

void InputPage::FillLists() {
    cboDate->AddNumbers(1, 31);
    cboMonth->AddMonths();
    cboYear->AddNumbers(1900, 2050);
}

void InputPage::SelectFirstDates() {
    cboMonth->setCurrentIndex(0);
    cboDate->setCurrentIndex(0);
    cboYear->setCurrentIndex(0);
}

void InputPage::keyPressEvent(QKeyEvent *event) {
    // Keys come here when the control that has the focus makes no use of them.
    if (!IsEnter(*event) || (event->modifiers() & ~Qt::KeypadModifier) != 0) {
        Page::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat()) // a missing name would bring up its message for ever
        emit enterPressed();
}
